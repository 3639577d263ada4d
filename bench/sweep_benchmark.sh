#!/usr/bin/env bash
# Sweeps of 200 tiny runs through the vrk of the build directory given (default: build):
# prints the runs per second with 1 and 2 jobs, the speedup of 2 jobs over 1, and the
# time each run of a sweep costs beyond running `vrk run` 200 times in a shell loop; with
# a vrk built with MPI and mpirun at hand, also the runs per second of the same sweep over
# 2 MPI ranks of one run at a time each.
set -eu
build=${1:-build}
vrk="$(cd "$build" && pwd)/bin/vrk"
runs=${RUNS:-200}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cat > tiny.vrk <<'SCRIPT'
text := CreateString format = "<v1>" {
    n := NumberValue value = 0 valueNumber = 1;
}
SaveText text = text.result filename = "out.txt";
SCRIPT
{
    echo "n.value"
    seq 1 "$runs"
} > table.csv

now() { date +%s.%N; }
seconds() { # command...: the seconds it took
    local start
    start=$(now)
    "$@" > /dev/null 2>&1
    echo "$(now) - $start" | bc -l
}
sweep() { rm -rf "out$1" && "$vrk" sweep tiny.vrk table.csv --jobs "$1" --out "out$1"; }
loop() {
    rm -rf loop
    for i in $(seq 1 "$runs"); do
        "$vrk" run tiny.vrk --workdir "loop/$i" --set "n.value=$i" > /dev/null 2>&1
    done
}

ranks() {
    rm -rf outmpi && OMPI_ALLOW_RUN_AS_ROOT=1 OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1 \
        mpirun --oversubscribe -np 2 "$vrk" sweep tiny.vrk table.csv --out outmpi < /dev/null
}

one=$(seconds sweep 1)
two=$(seconds sweep 2)
shell=$(seconds loop)
[ "$(grep -c ',0,' out2/summary.csv)" = "$runs" ] || { echo "the sweep failed"; exit 1; }
printf 'runs: %d on %d processors\n' "$runs" "$(nproc)"
printf 'jobs 1: %.1f runs/s\n' "$(echo "$runs / $one" | bc -l)"
printf 'jobs 2: %.1f runs/s\n' "$(echo "$runs / $two" | bc -l)"
printf 'speedup of 2 jobs: %.2f\n' "$(echo "$one / $two" | bc -l)"
printf 'shell loop of vrk run: %.1f runs/s\n' "$(echo "$runs / $shell" | bc -l)"
if command -v mpirun > /dev/null && ldd "$vrk" | grep -q libmpi; then
    mpi=$(seconds ranks)
    [ "$(grep -c ',0,' outmpi/summary.csv)" = "$runs" ] || { echo "the MPI sweep failed"; exit 1; }
    printf 'mpirun -np 2: %.1f runs/s, speedup %.2f over 1 job\n' "$(echo "$runs / $mpi" | bc -l)" \
        "$(echo "$one / $mpi" | bc -l)"
else
    echo "mpirun -np 2: skipped, vrk is built without MPI or mpirun is missing"
fi
printf 'overhead per run of jobs 1 against the loop: %.1f ms\n' \
    "$(echo "($one - $shell) * 1000 / $runs" | bc -l)"
