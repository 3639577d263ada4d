#!/usr/bin/env bash
# A formula of a quarter of a million terms (each term one level deeper in its tree) is
# read, checked, written back, run and freed without overflowing the stack: a chain of
# additions and subtractions, and a chain of catches whose every guard is null.
set -u
vrk="$1"
work=$(mktemp -d "${TMPDIR:-/tmp}/vrk_long_formula.XXXXXX")
trap 'rm -rf "$work"' EXIT
failed=0
terms=250000

# $1 the file, $2 the formula, $3 the label
script() {
    printf 'c := CalculateValue expression = [ %s ] {\n    NumberValue value = 2 valueNumber = 1;\n}\nPrintValue value = c.result label = "%s ";\n' \
        "$2" "$3" >"$1"
}

# v1 + 1 - 1 + 1 - 1 ... : 2 whatever the length, since the pairs cancel; then + 7.
sum="v1$(printf ' + 1 - 1%.0s' $(seq $((terms / 2))))"
script "$work/sum.vrk" "$sum + 7" "sum"
# (1 / 0) ? (1 / 0) ? ... ? v1: every guard is null but the last.
catches="$(printf '(1 / 0) ? %.0s' $(seq $((terms / 4))))v1"
script "$work/catch.vrk" "$catches" "catch"

# $1 what, $2 the expected status, then the command
expect_status() {
    local what="$1" expected="$2"
    shift 2
    "$@" >"$work/out" 2>"$work/err"
    local status=$?
    if [ "$status" != "$expected" ]; then
        echo "FAIL $what: exit status $status, expected $expected"
        head -c 600 "$work/err"
        failed=$((failed + 1))
    fi
}

for name in sum catch; do
    expect_status "check $name" 0 "$vrk" check "$work/$name.vrk"
    expect_status "run $name" 0 "$vrk" --log-level .result run "$work/$name.vrk"
    expected="$name 9"
    [ "$name" = catch ] && expected="catch 2"
    if [ "$(cat "$work/out")" != "$expected" ]; then
        echo "FAIL run $name: printed $(head -c 200 "$work/out"), expected $expected"
        failed=$((failed + 1))
    fi
    # The writer writes the formula back in full, and the written script runs alike.
    expect_status "convert $name" 0 "$vrk" convert "$work/$name.vrk" "$work/$name.written.vrk"
    expect_status "run written $name" 0 "$vrk" --log-level .result run "$work/$name.written.vrk"
    if [ "$(cat "$work/out")" != "$expected" ]; then
        echo "FAIL run written $name: printed $(head -c 200 "$work/out"), expected $expected"
        failed=$((failed + 1))
    fi
done
if [[ "$(cat "$work/sum.written.vrk")" != *"$sum + 7"* ]]; then
    echo "FAIL the written sum is not the formula that was read"
    failed=$((failed + 1))
fi

[ "$failed" = 0 ]
