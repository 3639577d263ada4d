#!/bin/sh
# Runs MapBenchmark of the build directory given (default: build) with its peers'
# script, so that one run prints the calculator's cells per second next to numpy's and
# numexpr's and their ratios. Extra arguments go to the benchmark program.
set -e
here=$(cd "$(dirname "$0")" && pwd)
build=${1:-build}
[ $# -gt 0 ] && shift
exec "$build/bin/MapBenchmark" --peers="$here/map_peers.py" "$@"
