#!/usr/bin/env bash
# `mpirun -np K vrk sweep`: a 12-row sweep over 2 ranks gives each run the value of its
# row and runs rows on both ranks; a failing row is recorded and the others complete; a
# bad table is refused at its place before any run starts, on every rank; Ctrl-C
# cancels the runs under way on every rank and --resume runs only the missing rows; a
# rank killed outright is reported as lost with its run while the others go on (with
# mpirun's --enable-recovery), and without rank 0 the others end; one rank sweeps on its
# own, without MPI.
set -u
vrk="$1"
mpirun="$2"
. "$(dirname "$0")/sweep_common.sh"
# CI runs as root on 2 processors.
export OMPI_ALLOW_RUN_AS_ROOT=1 OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1
# Called as is rather than through a function, so that $! of a sweep in the background
# is mpirun itself, which a signal must reach.
mpi=("$mpirun" --oversubscribe)
# The processes that run the rows of the sweep in $1, one "parent-pid run" line each.
runs_of() {
    ps -eo ppid=,args= | awk -v out="$1/" '$2 == "vrk" {
        for (i = 3; i < NF; ++i)
            if ($i == "--workdir" && index($(i + 1), out) == 1) print $1, $(i + 1)
    }'
}

table 0.3 ok > ok.csv
"${mpi[@]}" -np 2 "$vrk" sweep model/pair.vrk ok.csv --out mpi_ok < /dev/null > ok.log 2>&1 &
sweep=$!
while kill -0 "$sweep" 2> /dev/null; do
    runs_of mpi_ok >> parents.txt
    sleep 0.05
done
wait "$sweep" || fail "2 ranks: status $?: $(cat ok.log)"
expect_outputs mpi_ok ok
[ "$(grep -c ',0,' mpi_ok/summary.csv)" = 12 ] || fail "2 ranks: summary: $(cat mpi_ok/summary.csv)"
[ "$(grep -c '^run .* finished: status 0' ok.log)" = 12 ] || fail "2 ranks: progress: $(cat ok.log)"
# Each rank starts its runs as its own children.
[ "$(awk '{ print $1 }' parents.txt | sort -u | wc -l)" = 2 ] || fail "2 ranks: rows ran under $(sort -u parents.txt)"

table 0 fail > fail.csv
"${mpi[@]}" -np 2 "$vrk" sweep model/pair.vrk fail.csv --out mpi_fail < /dev/null > fail.log 2>&1
[ $? = 1 ] || fail "failing row: status"
expect_outputs mpi_fail fail
[ "$(status_of mpi_fail 7)" = 2 ] || fail "failing row: summary: $(cat mpi_fail/summary.csv)"
grep -q '^7,2,.*missing' mpi_fail/summary.csv || fail "failing row: no error line: $(cat mpi_fail/summary.csv)"
[ "$(grep -c ',0,' mpi_fail/summary.csv)" = 11 ] || fail "failing row: the others: $(cat mpi_fail/summary.csv)"

printf 'a.value,c.value\n1,2\n' > bad.csv
"${mpi[@]}" -np 2 "$vrk" sweep model/pair.vrk bad.csv --out mpi_bad < /dev/null > /dev/null 2> bad.log
[ $? = 2 ] || fail "bad table: status"
[ "$(grep -c 'bad.csv:1:9: error: The script has no functor aliased "c".' bad.log)" = 1 ] ||
    fail "bad table: $(cat bad.log)"
[ ! -e mpi_bad ] || fail "bad table: a run started"

# mpirun passes Ctrl-C on to every rank as SIGTERM.
table 3 ok > slow.csv
"${mpi[@]}" -np 2 "$vrk" sweep model/pair.vrk slow.csv --out mpi_slow < /dev/null > slow.log 2>&1 &
sweep=$!
for _ in $(seq 1 300); do
    [ "$(runs_of mpi_slow | grep -c -E ' mpi_slow/(5|6)$')" = 2 ] && break
    sleep 0.1
done
sleep 0.5
kill -INT "$sweep"
wait "$sweep"
[ $? != 0 ] || fail "Ctrl-C: the sweep ended with status 0"
grep -q 'vrk: the sweep was cancelled.' slow.log || fail "Ctrl-C: $(cat slow.log)"
[ "$(status_of mpi_slow 5)" = cancelled ] && [ "$(status_of mpi_slow 6)" = cancelled ] ||
    fail "Ctrl-C: runs not marked cancelled: $(cat mpi_slow/summary.csv)"
sleep 1
[ -z "$(runs_of mpi_slow)" ] || fail "Ctrl-C: a run outlived the sweep: $(runs_of mpi_slow)"
table 0 ok > slow.csv
"${mpi[@]}" -np 2 "$vrk" sweep model/pair.vrk slow.csv --out mpi_slow --resume < /dev/null > resume.log 2>&1 ||
    fail "resume: status $?: $(cat resume.log)"
[ "$(grep -o '^run [0-9]*' resume.log | sort -k2 -n | tr '\n' ' ')" = "run 5 run 6 run 7 run 8 run 9 run 10 run 11 run 12 " ] ||
    fail "resume: ran $(cat resume.log)"
expect_outputs mpi_slow ok
[ "$(grep -c ',0,' mpi_slow/summary.csv)" = 12 ] || fail "resume: summary: $(cat mpi_slow/summary.csv)"

# A rank killed outright takes its run with it; rank 0 goes on with the rest.
table 1 ok 6 > lost.csv
"${mpi[@]}" --enable-recovery -np 2 "$vrk" sweep model/pair.vrk lost.csv --out mpi_lost < /dev/null \
    > lost.log 2>&1 &
sweep=$!
victim= victim_run=
for _ in $(seq 1 300); do
    for rank in $(pgrep -P "$sweep"); do
        tr '\0' '\n' < "/proc/$rank/environ" 2> /dev/null | grep -qx 'OMPI_COMM_WORLD_RANK=1' || continue
        victim_run=$(runs_of mpi_lost | awk -v rank="$rank" '$1 == rank { sub(".*/", "", $2); print $2 }')
        [ -n "$victim_run" ] && [ "$victim_run" -gt 4 ] && victim=$rank
    done
    [ -n "$victim" ] && break
    sleep 0.1
done
[ -n "$victim" ] && kill -KILL "$victim"
wait "$sweep"
[ "$(status_of mpi_lost "$victim_run")" = lost ] || fail "lost rank: run $victim_run: $(cat mpi_lost/summary.csv)"
grep -q "^$victim_run,lost,.*The rank 1 was lost, and its run with it." mpi_lost/summary.csv ||
    fail "lost rank: no message: $(cat mpi_lost/summary.csv)"
[ "$(grep -c ',0,' mpi_lost/summary.csv)" = 5 ] || fail "lost rank: the others: $(cat mpi_lost/summary.csv)"

# Without rank 0 the others stop their runs and end rather than wait for it forever.
"${mpi[@]}" --enable-recovery -np 2 "$vrk" sweep model/pair.vrk lost.csv --out mpi_orphan < /dev/null \
    > orphan.log 2>&1 &
sweep=$!
for _ in $(seq 1 300); do
    [ -n "$(runs_of mpi_orphan)" ] && break
    sleep 0.1
done
for rank in $(pgrep -P "$sweep"); do
    tr '\0' '\n' < "/proc/$rank/environ" 2> /dev/null | grep -qx 'OMPI_COMM_WORLD_RANK=0' &&
        kill -KILL "$rank"
done
for _ in $(seq 1 600); do
    kill -0 "$sweep" 2> /dev/null || break
    sleep 0.1
done
kill -0 "$sweep" 2> /dev/null && fail "lost rank 0: the job goes on" && kill -KILL "$sweep"
wait "$sweep"
grep -q "The rank 0 of the sweep was lost; the rank 1 stops its runs." orphan.log ||
    fail "lost rank 0: $(cat orphan.log)"
sleep 1
[ -z "$(runs_of mpi_orphan)" ] || fail "lost rank 0: a run outlived the job: $(runs_of mpi_orphan)"

# One rank is no MPI job: the sweep runs as without mpirun.
table 0 ok 3 > one.csv
"${mpi[@]}" -np 1 "$vrk" sweep model/pair.vrk one.csv --jobs 2 --out mpi_one < /dev/null > one.log 2>&1 || fail "1 rank: $(cat one.log)"
expect_outputs mpi_one ok 3
[ -n "${VRK_SWEEP_SHOW:-}" ] && cat ok.log slow.log resume.log lost.log
exit $failed
