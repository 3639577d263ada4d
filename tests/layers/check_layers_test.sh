#!/bin/bash
# The layer check finds a higher layer's functor named in a lower layer's string, in
# the host and in Prim, and lets pass comments, a layer's own functors and a clean tree.
set -u
check=$(dirname "$0")/check_layers.sh
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
fail() { echo "FAIL: $*"; exit 1; }

mkdir -p "$tree"/base/graph "$tree"/plugins/prim/flow "$tree"/plugins/maps "$tree"/apps/vrk
cat >"$tree"/plugins/prim/flow/PrimPlugin.cpp <<'SRC'
registrar.registerFunctor<Carrier>("Carrier", "Control");
registrar.registerFunctor<Own>(
    "Own", "Control");
SRC
cat >"$tree"/plugins/maps/MapsPlugin.cpp <<'SRC'
registrar.registerFunctor<Paint>("Paint", "Map Algebra");
SRC
cat >"$tree"/plugins/prim/flow/Editor.cpp <<'SRC'
// "Paint" in a comment is no dependency,
/* nor "Paint" here,
   "Paint" */ const char* own = "Own";
SRC
cat >"$tree"/base/graph/Clean.cpp <<'SRC'
const char* port = "workdir"; // "Carrier"
SRC
"$check" "$tree" >"$tree/out" || fail "a clean tree is refused: $(cat "$tree/out")"

cat >"$tree"/base/graph/Binding.cpp <<'SRC'
int x;
const char* type = "Carrier";
SRC
cat >"$tree"/plugins/prim/flow/Default.cpp <<'SRC'
if (name == "Paint" || name == "Own") {}
SRC
cat >"$tree"/apps/vrk/Main.cpp <<'SRC'
run("Paint");
SRC
"$check" "$tree" >"$tree/out" && fail "the violations pass: $(cat "$tree/out")"
expected='apps/vrk/Main.cpp:1: "Paint" (apps names a plugin'"'"'s functor)
base/graph/Binding.cpp:2: "Carrier" (base names a plugin'"'"'s functor)
plugins/prim/flow/Default.cpp:1: "Paint" (Prim names a functor of a plugin built on it)'
[ "$(sort "$tree/out")" = "$expected" ] || fail "unexpected report:
$(cat "$tree/out")"
echo "The layer check finds each violation and nothing else."
