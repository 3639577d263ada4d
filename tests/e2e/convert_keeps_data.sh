#!/usr/bin/env bash
# vrk convert changes and loses nothing it was given: a NUL byte in a string reads back
# from text and is refused by XML (which cannot hold one) instead of being cut; a
# carriage return stays one through XML; paths that normalising would change read back
# as they were; aliases that nothing references stay, so parameters still find them.
set -u
vrk="$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failed=0
fail() { echo "FAIL $*"; failed=1; }

printf 's := String constant = "ab\0cd";\n' > nul.vrk
"$vrk" convert nul.vrk nul2.vrk || fail "a NUL byte does not convert to text"
cmp -s nul.vrk nul2.vrk || fail "a NUL byte changed through text: $(od -c nul2.vrk | head -3)"
"$vrk" convert nul.vrk nul.xml 2> nul.err
status=$?
[ "$status" = 1 ] || fail "XML took a NUL byte with status $status"
grep -q "holds a NUL character, which XML cannot hold" nul.err || fail "no reason given: $(cat nul.err)"
[ -e nul.xml ] && fail "XML was written with a NUL byte cut out"

printf 's := String constant = "a\rb";\n@comment = "x\ry"\nt := String constant = "c";\n' > cr.vrk
"$vrk" convert cr.vrk cr.xml && "$vrk" convert cr.xml cr2.vrk || fail "carriage returns do not convert"
"$vrk" convert cr.vrk cr1.vrk
cmp -s cr1.vrk cr2.vrk || fail "a carriage return changed through XML: $(od -c cr2.vrk | head -4)"

printf 'p := Path constant = "//:";\nq := Path constant = "//://:x";\nf := Folder constant = "//:";\n' > paths.vrk
"$vrk" convert paths.vrk paths1.vrk || fail "paths do not convert"
"$vrk" convert paths1.vrk paths2.vrk || fail "converted paths do not read back: $(cat paths1.vrk)"
cmp -s paths1.vrk paths2.vrk || fail "paths changed on a second conversion"
grep -q 'p := Path constant = "//:";' paths1.vrk || fail "the empty path became: $(cat paths1.vrk)"

printf 'a := Int constant = 1;\nPrintValue value = 7;\n' > alias.vrk
printf 'a.constant = 2;\n' > params.txt
for converted in alias2.vrk alias.xml; do
    "$vrk" convert alias.vrk "$converted" || fail "$converted is not written"
    "$vrk" run "$converted" --params params.txt > /dev/null 2> run.err ||
        fail "the alias nothing references is lost in $converted: $(cat run.err)"
done
[ "$failed" -eq 0 ] && echo "convert kept every value and alias, or refused what a format cannot hold"
[ "$failed" -eq 0 ]
