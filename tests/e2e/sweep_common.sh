# Sourced by the sweep tests: a temporary folder to work in, a model whose run writes
# "A B" from its two parameters after a pause, and helpers to make tables of it and
# check what their sweeps left.
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
cd "$top"
failed=0
fail() { echo "FAIL $*"; failed=1; }

mkdir model
# The pause lets a sweep be interrupted while runs are under way.
cat > model/pair.vrk <<'SCRIPT'
pause := RunExternalProcess fileName = "sleep" parameters = "0";
text := CreateString format = "<v1> <v2>" {
    a := NumberValue value = 1 valueNumber = 1;
    b := NumberValue value = 2 valueNumber = 2;
}
save := SaveText text = text.result filename = "out.txt";
SCRIPT
# $1: the pause of rows 5 to 12; row 7 writes into a missing folder when $2 says so;
# $3: the number of rows (default 12).
table() {
    echo "a.value,b.value,pause.parameters,save.filename"
    for i in $(seq 1 "${3:-12}"); do
        local pause=0 file=out.txt
        [ "$i" -gt 4 ] && pause=$1
        [ "$i" = 7 ] && [ "$2" = fail ] && file=missing/out.txt
        echo "$i,$((i * 10)),\"\"\"$pause\"\"\",\"\"\"$file\"\"\""
    done
}
# $1: the sweep's folder; $2: "fail" when row 7 failed; $3: the number of rows.
expect_outputs() {
    for i in $(seq 1 "${3:-12}"); do
        [ "$i" = 7 ] && [ "$2" = fail ] && continue
        [ "$(cat "$1/$i/out.txt" 2>&1)" = "$i $((i * 10))" ] || fail "$1: run $i wrote $(cat "$1/$i/out.txt" 2>&1)"
    done
}
status_of() { awk -F, -v run="$2" '$1 == run { print $2 }' "$1/summary.csv"; }
