#!/usr/bin/env bash
# Ctrl-C while SaveText writes a large text over and over: the run ends with status
# 130, the file is either whole or absent, and no temporary file is left behind.
set -u
vrk="$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
head -c 24000000 /dev/urandom | base64 > big.txt
cat > save.vrk <<'SCRIPT'
big := LoadText filename = "big.txt";
loop := For firstIterationStep = 1 lastIterationStep = 1000000 {
    SaveText text = big.text filename = "copy.txt";
    SaveText text = big.text filename = "numbered_.txt" suffixDigits = 7 step = loop.step;
}
SCRIPT
failed=0
fail() { echo "FAIL $*"; failed=1; }
# The signal comes a moment after the loop has begun, as its banner tells, so that it
# meets the writes rather than the reading of big.txt, however long that takes.
for delay in 0.2 0.9; do
    rm -f copy.txt numbered_*.txt run.log
    "$vrk" run save.vrk --log-level .info > run.log &
    pid=$!
    for _ in $(seq 1 600); do
        grep -q "Running step 1," run.log && break
        sleep 0.1
    done
    sleep "$delay"
    kill -INT "$pid"
    wait "$pid"
    status=$?
    [ "$status" = 130 ] || fail "after $delay s: exit status $status, expected 130"
    leftovers=$(find . -name '.*.tmp')
    [ -z "$leftovers" ] || fail "after $delay s: temporary files left: $leftovers"
    for written in copy.txt numbered_*.txt; do
        [ -e "$written" ] || continue
        cmp -s big.txt "$written" || fail "after $delay s: $written is not whole"
    done
done
[ "$failed" -eq 0 ] && echo "SIGINT left only whole files"
[ "$failed" -eq 0 ]
