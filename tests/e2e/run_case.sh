#!/usr/bin/env bash
# Runs one end-to-end case: a folder with the command line arguments (args, one per
# line; "SCRIPT" stands for the case's script.vrk, "CASE" for the folder), the expected
# exit status (status) and, if present, the expected standard output (stdout). An
# optional "stderr" file holds text the standard error must contain, as one block (a
# diagnostic, its source line and its caret line together).
set -u
vrk="$1"
case_dir="${2%/}"
name=$(basename "$case_dir")
# ctest runs the cases at once: each keeps its standard error in a file of its own.
errors=$(mktemp "${TMPDIR:-/tmp}/vrk_e2e_${name}.XXXXXX")
trap 'rm -f "$errors"' EXIT

mapfile -t args < <(sed "s|SCRIPT|${case_dir}/script.vrk|g; s|CASE|${case_dir}|g" "$case_dir/args")
# A run that never ends is a failure of its own, not a hung test.
limit="${VRK_E2E_TIMEOUT:-60}"
actual_out=$(cd "$case_dir" && timeout "$limit" "$vrk" "${args[@]}" 2>"$errors")
actual_status=$?
expected_status=$(cat "$case_dir/status")
if [ "$actual_status" = 124 ] && [ "$expected_status" != 124 ]; then
    echo "FAIL $name: still running after $limit seconds"
    head -c 2000 "$errors"
    exit 1
fi
if [ "$actual_status" != "$expected_status" ]; then
    echo "FAIL $name: exit status $actual_status, expected $expected_status"
    cat "$errors"
    exit 1
fi
if [ -f "$case_dir/stdout" ] && [ "$actual_out" != "$(cat "$case_dir/stdout")" ]; then
    echo "FAIL $name: standard output differs"
    diff <(echo "$actual_out") "$case_dir/stdout" | head -20
    exit 1
fi
if [ -f "$case_dir/stderr" ] && [[ "$(cat "$errors")" != *"$(cat "$case_dir/stderr")"* ]]; then
    echo "FAIL $name: standard error lacks: $(cat "$case_dir/stderr")"
    cat "$errors"
    exit 1
fi
