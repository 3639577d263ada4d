#!/usr/bin/env bash
# Converts every example script and every end-to-end script that reads to XML and back
# and to Graphviz, and checks that nothing is lost:
#   SCRIPT -> .vrk                  the text writer's form of the script (reference)
#   SCRIPT -> .xml -> .vrk          equals the reference
#   .xml -> .xml                    equals the first XML (the XML form is a fixed point)
#   SCRIPT -> .dot -> PNG           Graphviz renders the drawing
# Examples must convert; end-to-end scripts that are broken on purpose are skipped.
set -u
vrk="$1"
root="$2"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failed=0
converted=0

fail() {
    echo "FAIL $1: $2"
    failed=$((failed + 1))
}

check_script() {
    local script="$1" required="$2" out="$work/$3"
    mkdir -p "$out"
    if ! "$vrk" convert "$script" "$out/reference.vrk" 2>"$out/errors"; then
        [ "$required" = yes ] && fail "$script" "does not convert: $(cat "$out/errors")"
        return
    fi
    "$vrk" convert "$script" "$out/model.xml" 2>>"$out/errors" || { fail "$script" "to XML: $(cat "$out/errors")"; return; }
    "$vrk" convert "$out/model.xml" "$out/back.vrk" 2>>"$out/errors" || { fail "$script" "from XML: $(cat "$out/errors")"; return; }
    "$vrk" convert "$out/model.xml" "$out/again.xml" 2>>"$out/errors" || { fail "$script" "XML to XML: $(cat "$out/errors")"; return; }
    diff "$out/reference.vrk" "$out/back.vrk" >"$out/diff" || { fail "$script" "lost in XML: $(head -20 "$out/diff")"; return; }
    diff "$out/model.xml" "$out/again.xml" >"$out/diff" || { fail "$script" "XML not a fixed point: $(head -20 "$out/diff")"; return; }
    "$vrk" convert "$script" "$out/graph.dot" 2>>"$out/errors" || { fail "$script" "to Graphviz: $(cat "$out/errors")"; return; }
    dot -Tpng "$out/graph.dot" -o "$out/graph.png" 2>"$out/dot-errors" || { fail "$script" "Graphviz refuses the drawing: $(cat "$out/dot-errors")"; return; }
    converted=$((converted + 1))
}

n=0
for script in "$root"/examples/*.vrk; do
    [ -e "$script" ] || continue
    n=$((n + 1))
    check_script "$script" yes "example$n"
done
for script in "$root"/tests/e2e/cases/*/script.vrk; do
    n=$((n + 1))
    check_script "$script" no "case$n"
done

echo "$converted scripts converted to XML and back and to Graphviz without loss, $failed failed"
[ "$failed" -eq 0 ] && [ "$converted" -gt 0 ]
