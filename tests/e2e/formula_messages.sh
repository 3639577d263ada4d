#!/usr/bin/env bash
# Every message that a broken formula raises reaches the modeller through "vrk check",
# at the line and column of the mistake with the caret under it, in a text script and
# in an XML script alike (the two are read through different kinds of scanner).
set -u
vrk="$1"
work=$(mktemp -d "${TMPDIR:-/tmp}/vrk_formulas.XXXXXX")
trap 'rm -rf "$work"' EXIT
failed=0
checked=0

# One case a line: the formula, the column of the mistake in the formula's line, and
# the message; fields apart by tabs. The formula stands on a line of its own, followed
# by " ]". Column 0 puts the mistake at the opening "[" on the line before.
cases=$(cat <<'EOF'
v1 +	6	Expecting an image subexpression.
if v1 v1 else 1	7	Expecting "then".
if v1 then 1	14	Expecting "else".
sqrt 2	6	Expecting '('.
max(1, 2 3)	10	Expecting ')'.
min(1 2)	7	Expecting ','.
t1[1 2]	6	Expecting ']'.
t1{1]	5	Expecting '}'.
nbcount(1, 1, 1, 1, 1)	9	Expecting an image identifier.
nbconvol(i1, 2, 0, 0, 1, 1)	14	Expecting a table identifier.
t1["nothing"]	5	Expecting a valid predefined key name.
t1 + 1	4	Expecting '[==', '[=', '[' '[<=', '[<', '[>=', '[>', '[><', '[/' or '{'.
v1 v2	0	Expecting an image expression enclosed by '[' and ']'.
EOF
)

# $1 the script, $2 the line of the mistake, $3 its column, $4 the message: the
# diagnostic, the line it names and a caret under the column.
expect() {
    local script="$1" line="$2" column="$3" message="$4" name
    name=$(basename "$script")
    local expected actual
    expected="$name:$line:$column: error: $message
$(sed -n "${line}p" "$script")
$(printf '%*s^' $((column - 1)) '')"
    actual=$(cd "$(dirname "$script")" && "$vrk" check "$name" 2>&1)
    local status=$?
    checked=$((checked + 1))
    if [ "$status" != 2 ] || [[ "$actual" != *"$expected"* ]]; then
        echo "FAIL $name ($formula): exit status $status, expected 2 and:"
        echo "$expected"
        echo "got:"
        echo "$actual"
        failed=$((failed + 1))
    fi
}

n=0
while IFS=$'\t' read -r formula column message; do
    n=$((n + 1))
    case "$formula" in *[\<\>\&]*)
        echo "FAIL case $n: a formula with <, > or & would need escaping in XML"; failed=$((failed + 1)); continue ;;
    esac
    printf 'CalculateValue expression = [\n%s ] {\n    NumberValue value = 1 valueNumber = 1;\n}\n' \
        "$formula" >"$work/formula$n.vrk"
    printf '%s\n' '<?xml version="1.0" encoding="UTF-8"?>' '<script>' \
        '    <functor name="CalculateValue">' '        <input port="expression">[' \
        "$formula ]</input>" '    </functor>' '</script>' >"$work/formula$n.xml"
    if [ "$column" = 0 ]; then
        expect "$work/formula$n.vrk" 1 29 "$message"
        expect "$work/formula$n.xml" 4 34 "$message"
    else
        expect "$work/formula$n.vrk" 2 "$column" "$message"
        expect "$work/formula$n.xml" 5 "$column" "$message"
    fi
done <<<"$cases"

echo "$checked broken formulas reported where they fail, $failed not"
[ "$failed" -eq 0 ] && [ "$checked" -gt 0 ]
