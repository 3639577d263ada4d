#!/usr/bin/env bash
# Joins a sweep's summary with its table and each run's "balance.txt" into one CSV table
# on standard output: run, rate, deposit, status, balance.
#     examples/sweep/collect.sh examples/sweep/table.csv runs
set -eu
table="$1"
out="${2:-runs}"
echo "run,rate,deposit,status,balance"
tail -n +2 "$table" | while IFS=, read -r run rate deposit; do
    status=$(awk -F, -v run="$run" '$1 == run { print $2 }' "$out/summary.csv")
    balance=$(cat "$out/$run/balance.txt" 2>/dev/null || true)
    echo "$run,$rate,$deposit,${status:-not run},$balance"
done
