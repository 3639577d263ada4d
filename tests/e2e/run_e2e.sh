#!/usr/bin/env bash
# Runs every case under cases/: a case is a folder with the command line arguments
# (args, one per line; "SCRIPT" stands for the case's script.vrk), the expected
# standard output (stdout) and exit status (status). An optional "stderr" file holds
# text the standard error must contain, as one block (a diagnostic, its source line
# and its caret line together).
set -u
vrk="$1"
root="$2"
failed=0
count=0
for case_dir in "$root"/cases/*/; do
    name=$(basename "$case_dir")
    count=$((count + 1))
    mapfile -t args < <(sed "s|SCRIPT|${case_dir}script.vrk|g; s|CASE|${case_dir%/}|g" "$case_dir/args")
    actual_out=$(cd "$case_dir" && "$vrk" "${args[@]}" 2>/tmp/vrk_e2e_err.$$)
    actual_status=$?
    expected_status=$(cat "$case_dir/status")
    if [ "$actual_status" != "$expected_status" ]; then
        echo "FAIL $name: exit status $actual_status, expected $expected_status"
        cat /tmp/vrk_e2e_err.$$
        failed=$((failed + 1))
        continue
    fi
    if [ -f "$case_dir/stdout" ] && [ "$actual_out" != "$(cat "$case_dir/stdout")" ]; then
        echo "FAIL $name: standard output differs"
        diff <(echo "$actual_out") "$case_dir/stdout" | head -20
        failed=$((failed + 1))
        continue
    fi
    if [ -f "$case_dir/stderr" ] && [[ "$(cat /tmp/vrk_e2e_err.$$)" != *"$(cat "$case_dir/stderr")"* ]]; then
        echo "FAIL $name: standard error lacks: $(cat "$case_dir/stderr")"
        cat /tmp/vrk_e2e_err.$$
        failed=$((failed + 1))
        continue
    fi
done
rm -f /tmp/vrk_e2e_err.$$
echo "$((count - failed)) of $count end-to-end cases passed"
[ "$failed" -eq 0 ]
