#!/usr/bin/env bash
# Errors quote their line as a terminal can show it: a line of 20 MB is quoted as a
# window of about 120 characters around the column, with "..." where it is cut, and
# bytes that would not show as themselves are written as \xHH; either way the caret
# stands under the character that the error is about.
set -u
vrk="$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failed=0
fail() { echo "FAIL $*"; failed=1; }

# Whether standard error ($1) is printable UTF-8: no control byte but line breaks and tabs.
printable() {
    python3 - "$1" <<'PYTHON'
import sys
text = open(sys.argv[1], "rb").read().decode("utf-8")
sys.exit(any((ord(c) < 32 and c not in "\t\n") or 127 <= ord(c) < 160 for c in text))
PYTHON
}
# The column of the caret on line 3 of $1 is that of the text $2 on line 2.
caret_under() {
    python3 - "$1" "$2" <<'PYTHON'
import sys
lines = open(sys.argv[1], encoding="utf-8").read().split("\n")
sys.exit(not (len(lines) > 2 and lines[2].endswith("^")
              and lines[1].find(sys.argv[2]) == len(lines[2]) - 1))
PYTHON
}

# The error lies 20 MB into its line, behind a long comment.
python3 -c "
import sys
sys.stdout.write('b := Bool /* ' + 'x' * 20000000 + ' */ constant = .maybe; // after\n')" > long.vrk
"$vrk" check long.vrk > /dev/null 2> long.err
status=$?
[ "$status" = 2 ] || fail "long line: status $status"
[ "$(wc -c < long.err)" -lt 1000 ] || fail "long line: $(wc -c < long.err) bytes of error"
grep -q '^long.vrk:1:20000029: error: Expecting .yes, .no, .true or .false.$' long.err ||
    fail "long line: $(head -c 300 long.err)"
grep -q '^\.\.\.x*x \*/ constant = \.maybe; // after$' long.err || fail "long line: $(head -c 600 long.err)"
caret_under long.err ".maybe" || fail "long line: the caret is misplaced: $(cat long.err)"

# Control bytes and a byte that is not UTF-8 before the error, a tab and a letter of
# two bytes that stays as it is.
printf 'b := Bool /* \a\033[2J\t\xff caf\xc3\xa9 */ constant = .maybe;\n' > bytes.vrk
"$vrk" check bytes.vrk > /dev/null 2> bytes.err
[ $? = 2 ] || fail "control bytes: status"
printable bytes.err || fail "control bytes: not printable: $(od -c bytes.err | head)"
grep -qF 'b := Bool /* \x07\x1b[2J	\xff café */ constant = .maybe;' bytes.err ||
    fail "control bytes: $(cat bytes.err)"
caret_under bytes.err ".maybe" || fail "control bytes: the caret is misplaced: $(cat bytes.err)"

[ "$failed" -eq 0 ] && echo "long lines and unprintable bytes were quoted in a window, printable"
[ "$failed" -eq 0 ]
