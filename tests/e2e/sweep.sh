#!/usr/bin/env bash
# `vrk run --workdir` and `vrk sweep`: relative outputs land in the work directory while
# inputs beside the script are still read there; a 12-row sweep two at a time gives each
# run the value of its row; a table may begin with a byte-order mark; a failing row is
# recorded and the others complete; a sweep interrupted by Ctrl-C is resumed with only
# the missing rows, keeping the summary entries of the others; a run killed by a signal
# is recorded; a bad table is refused at its place before any run starts.
set -u
vrk="$1"
. "$(dirname "$0")/sweep_common.sh"

echo "beside the script" > model/in.txt
cat > model/copy.vrk <<'SCRIPT'
load := LoadText filename = "in.txt";
save := SaveText text = load.text filename = "copy.txt";
SCRIPT
"$vrk" run model/copy.vrk --workdir out/deeper > /dev/null 2> err.log || fail "run --workdir: $(cat err.log)"
[ "$(cat out/deeper/copy.txt 2>&1)" = "beside the script" ] || fail "run --workdir: copy.txt not in the folder"
[ ! -e model/copy.txt ] || fail "run --workdir: copy.txt written beside the script"
# A work directory that cannot be made stops the run before it reads anything.
"$vrk" run model/copy.vrk --workdir model/in.txt/sub > /dev/null 2> err.log
[ $? = 2 ] || fail "run --workdir on a file: status"
grep -q 'error: The work directory "model/in.txt/sub" cannot be created' err.log || fail "run --workdir on a file: $(cat err.log)"

table 0 ok > ok.csv
"$vrk" sweep model/pair.vrk ok.csv --jobs 2 --out ok > ok.log 2>&1 || fail "sweep: status $?: $(cat ok.log)"
expect_outputs ok ok
[ "$(grep -c ',0,' ok/summary.csv)" = 12 ] || fail "sweep: summary: $(cat ok/summary.csv)"
[ "$(grep -c '^run .* finished: status 0' ok.log)" = 12 ] || fail "sweep: progress: $(cat ok.log)"
grep -q "12 of 12 done, 0 failed" ok.log || fail "sweep: last progress line: $(cat ok.log)"

# A table saved with a byte-order mark reads as one saved without.
{ printf '\xef\xbb\xbf'; table 0 ok 3; } > bom.csv
"$vrk" sweep model/pair.vrk bom.csv --jobs 2 --out bom > bom.log 2>&1 ||
    fail "byte-order mark: status $?: $(cat bom.log)"
expect_outputs bom ok 3

table 0 fail > fail.csv
"$vrk" sweep model/pair.vrk fail.csv --jobs 2 --out fail > fail.log 2>&1
[ $? = 1 ] || fail "failing row: the sweep did not end with status 1"
expect_outputs fail fail
[ "$(status_of fail 7)" = 2 ] || fail "failing row: summary: $(cat fail/summary.csv)"
grep -q '^7,2,.*missing' fail/summary.csv || fail "failing row: no error line: $(cat fail/summary.csv)"
[ "$(grep -c ',0,' fail/summary.csv)" = 11 ] || fail "failing row: the others: $(cat fail/summary.csv)"

table 2 ok > slow.csv
"$vrk" sweep model/pair.vrk slow.csv --jobs 2 --out slow > slow.log 2>&1 &
sweep=$!
for _ in $(seq 1 200); do
    [ -f slow/5/log.txt ] && [ -f slow/6/log.txt ] && [ "$(grep -c ',0,' slow/summary.csv 2>/dev/null)" = 4 ] && break
    sleep 0.1
done
# The two runs at a time share the default budget of half the physical memory.
share=$(($(getconf _PHYS_PAGES) * $(getconf PAGE_SIZE) / 2 / 2))
pgrep -af -- "--workdir slow/5 " | grep -q -- "--memory $share" ||
    fail "the runs at a time do not share the default budget: $(pgrep -af -- '--workdir slow/')"
sleep 0.3
kill -INT "$sweep"
wait "$sweep"
[ $? = 130 ] || fail "Ctrl-C: the sweep did not end with status 130"
[ "$(status_of slow 5)" = cancelled ] && [ "$(status_of slow 6)" = cancelled ] ||
    fail "Ctrl-C: runs not marked cancelled: $(cat slow/summary.csv)"
pgrep -f " slow/[0-9]+ " > /dev/null && fail "Ctrl-C: a run outlived the sweep"
touch -d '2000-01-01' slow/1/out.txt
# What the summary says of the runs that are not run again stays as it was written.
sed -i 's/^1,0,[0-9.]*,.*$/1,0,12.345,"an error, kept"/; s/^2,0,[0-9.]*,/2,0,7.500,/' slow/summary.csv
"$vrk" sweep model/pair.vrk slow.csv --jobs 2 --out slow --resume > resume.log 2>&1 ||
    fail "resume: status $?: $(cat resume.log)"
[ "$(grep -o '^run [0-9]*' resume.log | sort -k2 -n | tr '\n' ' ')" = "run 5 run 6 run 7 run 8 run 9 run 10 run 11 run 12 " ] ||
    fail "resume: ran $(cat resume.log)"
[ "$(find slow/1/out.txt -newermt 2001-01-01)" = "" ] || fail "resume: run 1 ran again"
expect_outputs slow ok
[ "$(grep -c ',0,' slow/summary.csv)" = 12 ] || fail "resume: summary: $(cat slow/summary.csv)"
grep -qx '1,0,12.345,"an error, kept"' slow/summary.csv && grep -q '^2,0,7\.500,' slow/summary.csv ||
    fail "resume: earlier entries changed: $(cat slow/summary.csv)"

# A run that dies of a signal is recorded as such and the others complete.
table 0 ok | sed 's/^3,30,"""0"""/3,30,"""30"""/' > crash.csv
"$vrk" sweep model/pair.vrk crash.csv --jobs 2 --out crash > crash.log 2>&1 &
sweep=$!
victim=
for _ in $(seq 1 200); do
    victim=$(pgrep -f -- "--workdir crash/3 ") && break
    sleep 0.1
done
sleep 0.5
[ -n "$victim" ] && kill -KILL $victim
wait "$sweep"
[ $? = 1 ] || fail "crash: the sweep did not end with status 1"
grep -q '^3,137,.*,The run ended on signal 9\.$' crash/summary.csv || fail "crash: $(cat crash/summary.csv)"
[ "$(grep -c ',0,' crash/summary.csv)" = 11 ] || fail "crash: the others: $(cat crash/summary.csv)"

# A bad table names its place and starts nothing.
refused() {
    printf "$2" > bad.csv
    rm -rf bad
    "$vrk" sweep model/pair.vrk bad.csv --out bad > /dev/null 2> bad.log
    local status=$?
    [ "$status" = 2 ] || fail "$1: status $status"
    grep -qF "$3" bad.log || fail "$1: $(cat bad.log)"
    [ ! -e bad ] || fail "$1: a run started"
}
refused "unknown alias" 'a.value,c.value\n1,2\n' 'bad.csv:1:9: error: The script has no functor aliased "c".'
refused "unknown port" 'a.value,b.valu\n1,2\n' 'bad.csv:1:9: error: The functor "b" (NumberValue) has no input "valu".'
refused "refused value" 'a.value,b.value\n1,2\n3,x\n' 'bad.csv:3:3: error: Expecting a double precision real.'
refused "ragged row" 'a.value,b.value\n1,2\n3\n' 'bad.csv:3:1: error: The row has 1 field where the header names 2 columns.'
refused "run twice" 'run,a.value\nx,1\nx,2\n' 'bad.csv:3:1: error: The run name "x" is used twice.'
[ -n "${VRK_SWEEP_SHOW:-}" ] && cat slow.log resume.log
exit $failed
