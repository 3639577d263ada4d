#!/bin/sh
# Runs MapBenchmark of the build directory given (default: build) with its peers'
# script, so that one run prints the calculator's cells per second next to numpy's and
# numexpr's and their ratios. Extra arguments go to the benchmark program.
#
# map_benchmark.sh BUILD --instructions [FILTER] instead counts, under callgrind, the
# instructions per cell of the calculations of the benchmarks matching FILTER (default
# ifOneThread): a measure of the kernels that the machine's load does not change.
set -e
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-build}
[ $# -gt 0 ] && shift
if [ "$1" = "--instructions" ]; then
    profile=$(mktemp)
    trap 'rm -f "$profile"' EXIT
    valgrind --tool=callgrind --callgrind-out-file="$profile" \
        --toggle-collect='Tessaly::ImageCalculator::calculate*' \
        "$build/bin/MapBenchmark" --benchmark_filter="${2:-ifOneThread}" \
        --benchmark_repetitions=1 --benchmark_min_time=0.01 >/dev/null 2>&1
    exec python3 - "$profile" <<'PYTHON'
import re, sys
lines = open(sys.argv[1]).read().split("\n")
names, calls = {}, 0
for i, line in enumerate(lines):
    found = re.match(r"c?fn=\((\d+)\)(.*)", line)
    if found and found.group(2).strip():
        names[found.group(1)] = found.group(2)
    called = re.match(r"cfn=\((\d+)\)", line)
    if called and names[called.group(1)].strip().startswith("Tessaly::ImageCalculator::calculate("):
        calls += int(lines[i + 1].split()[0].split("=")[1])
total = int(next(l for l in lines if l.startswith("totals:")).split()[1])
print(f"{total / (calls * 4096 * 4096):.2f} instructions per cell over {calls} calculations")
PYTHON
fi
exec "$build/bin/MapBenchmark" --peers="$here/map_peers.py" "$@"
