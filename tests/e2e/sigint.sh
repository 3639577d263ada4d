#!/usr/bin/env bash
# Ctrl-C during a run: a While whose condition never turns false is interrupted with
# SIGINT; vrk must notice it at the next pass and exit with status 130 within two
# seconds, under each scheduler.
set -u
vrk="$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cat > "$work/forever.vrk" <<'SCRIPT'
forever := While initialCondition = .yes condition = again.condition {
    again := SetWhileCondition condition = .yes;
}
SCRIPT
failed=0
for scheduler in sequential parallel auto; do
    "$vrk" run "$work/forever.vrk" --scheduler "$scheduler" --log-level .result &
    pid=$!
    sleep 0.5
    if ! kill -0 "$pid" 2>/dev/null; then
        echo "FAIL $scheduler: the run ended before it was interrupted"
        failed=1
        continue
    fi
    kill -INT "$pid"
    waited=0
    while kill -0 "$pid" 2>/dev/null && [ "$waited" -lt 20 ]; do
        sleep 0.1
        waited=$((waited + 1))
    done
    if kill -0 "$pid" 2>/dev/null; then
        echo "FAIL $scheduler: still running two seconds after SIGINT"
        kill -KILL "$pid"
        wait "$pid" 2>/dev/null
        failed=1
        continue
    fi
    wait "$pid"
    status=$?
    if [ "$status" -ne 130 ]; then
        echo "FAIL $scheduler: exit status $status, expected 130"
        failed=1
    fi
done
[ "$failed" -eq 0 ] && echo "SIGINT cancelled the run under every scheduler"
[ "$failed" -eq 0 ]
