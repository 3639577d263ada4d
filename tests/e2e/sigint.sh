#!/usr/bin/env bash
# Ctrl-C during a run: a While whose condition never turns false is interrupted with
# SIGINT; vrk must notice it at the next pass and exit with status 130 within two
# seconds, under each scheduler. The signal is sent once the banner of the Repeat around
# the loop shows that the run has begun, so that it never meets a vrk still starting.
set -u
vrk="$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cat > "$work/forever.vrk" <<'SCRIPT'
once := Repeat iterations = 1 {
    forever := While initialCondition = .yes condition = again.condition {
        again := SetWhileCondition condition = .yes;
    }
}
SCRIPT
failed=0
for scheduler in sequential parallel auto; do
    rm -f "$work/out.log"
    "$vrk" run "$work/forever.vrk" --scheduler "$scheduler" --log-level .info > "$work/out.log" &
    pid=$!
    tries=0
    while ! grep -q "Running step 1 of 1" "$work/out.log" && kill -0 "$pid" 2>/dev/null &&
        [ "$tries" -lt 600 ]; do
        sleep 0.1
        tries=$((tries + 1))
    done
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
