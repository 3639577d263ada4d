#!/usr/bin/env bash
# Every functor that "vrk list functors" names describes itself: exit status 0, nothing
# on standard error, its name and description first, then each port on a line of its
# own (direction, name, type) with its description, in quotes, on the next. The
# formula ports of the map and table calculations show the default formula that their
# editor makes for the functor.
set -u
vrk="$1"
work=$(mktemp -d "${TMPDIR:-/tmp}/vrk_describe.XXXXXX")
trap 'rm -rf "$work"' EXIT
failed=0
described=0

mapfile -t names < <("$vrk" list functors | sed -n 's/^  \([A-Za-z0-9_]*\)  .*/\1/p')
for name in "${names[@]}"; do
    described=$((described + 1))
    "$vrk" describe "$name" >"$work/$name.out" 2>"$work/$name.err"
    status=$?
    out=$(cat "$work/$name.out")
    errors=$(cat "$work/$name.err")
    problem=""
    if [ "$status" != 0 ]; then
        problem="exit status $status"
    elif [ -n "$errors" ]; then
        problem="standard error: $errors"
    elif [[ "$(head -n 1 <<<"$out")" != "$name  (group \""* ]]; then
        problem="first line is not the functor's name and group"
    elif [[ "$(sed -n 2p <<<"$out")" != '  "'*'"' ]]; then
        problem="second line is not the functor's description"
    else
        # From the third line on: a port line, then its quoted description.
        problem=$(tail -n +3 <<<"$out" | awk '
            NR % 2 == 1 && !/^  (input|output|internal output|internal input) [A-Za-z_][A-Za-z0-9_]* : [A-Za-z0-9_()]+/ {
                print "line " NR + 2 " is not a port: " $0; exit }
            NR % 2 == 0 && !/^      ".*"$/ { print "line " NR + 2 " is not a description: " $0; exit }')
    fi
    if [ -n "$problem" ]; then
        echo "FAIL describe $name: $problem"
        echo "$out" | head -20
        failed=$((failed + 1))
    fi
done

# Fewer names than the plugins register would mean that the list was misread.
if [ "$described" -lt 40 ]; then
    echo "FAIL only $described functors were listed"
    failed=$((failed + 1))
fi

# name and the default formula its "expression" port shows
while read -r name formula; do
    line=$(grep '^  input expression ' "$work/$name.out")
    if [ "$line" != "  input expression : ImageExpression  optional, default [ $formula ]" ]; then
        echo "FAIL describe $name: expression port: $line"
        failed=$((failed + 1))
    fi
done <<'EOF_FORMULAS'
CalculateMap i1
CalculateCategoricalMap i1
CalculateMap2 #image
CalculateCategoricalMap2 #image
CalculateLookupTable t1[line]
CalculateLookupTable2 %table[line]
EOF_FORMULAS

echo "$described functors described, $failed failures"
[ "$failed" = 0 ]
