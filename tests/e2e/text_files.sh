#!/usr/bin/env bash
# Scripts that save and load text files, each run in a fresh folder: the files written
# and their bytes, numbered names of several digit counts, nested work directories, a
# work directory named by another functor, and the files that verification refuses
# before anything is written, from "vrk check" and from "vrk run" alike.
set -u
vrk="$1"
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
failed=0
fail() { echo "FAIL $*"; failed=1; }

# Runs `script` (text on standard input) in the fresh folder $work, made with `setup`.
fresh() {
    work=$(mktemp -d "$top/case.XXXX")
    cat > "$work/script.vrk"
}
# The files under $work apart from the script, with their bytes, one per line.
listing() {
    (cd "$work" && find . -type f ! -name script.vrk | sort | while read -r f; do
        printf '%s=%s\n' "$f" "$(cat "$f")"
    done)
}
expect_files() {
    local actual
    actual=$(listing)
    [ "$actual" = "$2" ] || fail "$1: files differ:
$(diff <(echo "$actual") <(echo "$2"))"
}
run_ok() {
    (cd "$work" && "$vrk" run script.vrk --log-level .result > out.log 2> err.log) ||
        fail "$1: the run failed: $(cat "$work/err.log")"
    rm -f "$work/out.log" "$work/err.log"
}

fresh <<'SCRIPT'
loop := For firstIterationStep = 0 lastIterationStep = 10 stepIncrement = 5 {
    SaveText text = "one" filename = "one_.txt" suffixDigits = 1 step = loop.step;
    SaveText text = "three" filename = "three_.txt" suffixDigits = 3 step = loop.step;
    SaveText text = "none" filename = "none.txt" suffixDigits = 0 step = loop.step;
}
SCRIPT
run_ok "numbered"
expect_files "numbered" "./none.txt=none
./one_0.txt=one
./one_10.txt=one
./one_5.txt=one
./three_000.txt=three
./three_005.txt=three
./three_010.txt=three"

fresh <<'SCRIPT'
Workdir folder = "outer" {
    SaveText text = "a" filename = "a.txt";
    Workdir folder = "inner" {
        SaveText text = "b" filename = "b.txt";
        Workdir folder = "deeper/." {
            SaveText text = "c" filename = "./c.txt";
        }
    }
    SaveText text = "up" filename = "../up.txt";
}
SCRIPT
mkdir -p "$work/outer/inner/deeper"
run_ok "nested"
expect_files "nested" "./outer/a.txt=a
./outer/inner/b.txt=b
./outer/inner/deeper/c.txt=c
./up.txt=up"

fresh <<'SCRIPT'
out := Folder constant = "reports";
Workdir folder = out.object {
    loop := For firstIterationStep = 1 lastIterationStep = 2 {
        written := Group {
            name := CreateString format = "report<v1,2>.txt" {
                NumberValue value = loop.step valueNumber = 1;
            }
            SaveText text = name.result filename = name.result;
        }
        back := LoadText filename = name.result;
        SaveText text = back.text filename = "copy_.txt" suffixDigits = 2 step = loop.step;
    }
}
SCRIPT
mkdir -p "$work/reports"
run_ok "folder from a functor"
expect_files "folder from a functor" "./reports/copy_01.txt=report01.txt
./reports/copy_02.txt=report02.txt
./reports/report01.txt=report01.txt
./reports/report02.txt=report02.txt"

# Bytes are written as they are: no line end added, none changed.
fresh <<'SCRIPT'
SaveText text = "tab\there \"quoted\"" filename = "bytes.txt";
SCRIPT
run_ok "bytes"
printf '%s' 'tab\there "quoted"' | cmp -s - "$work/bytes.txt" ||
    fail "bytes: $(od -An -c "$work/bytes.txt")"

# Each refused file: the message, at the functor, from check (2) and run (2); no file.
refused() {
    local name="$1" message="$2" place="$3"
    for command in check run; do
        (cd "$work" && "$vrk" "$command" script.vrk > /dev/null 2> err.log)
        status=$?
        [ "$status" = 2 ] || fail "$name: $command ended with $status"
        grep -qF "script.vrk:$place: error: $message" "$work/err.log" ||
            fail "$name: $command said: $(cat "$work/err.log")"
        rm -f "$work/err.log"
    done
}
fresh <<'SCRIPT'
SaveText text = "x" filename = "early.txt";
LoadText filename = "missing.txt";
SCRIPT
refused "missing input" "The file \"$work/missing.txt\" can not be read." 2:1
expect_files "missing input" ""

fresh <<'SCRIPT'
Group {
    SaveText text = "x" filename = "early.txt";
    SaveText text = "x" filename = "program.exe";
}
SCRIPT
refused "unsupported extension" "The \"$work/program.exe\" does not represent a supported file format." 3:5
expect_files "unsupported extension" ""

fresh <<'SCRIPT'
Workdir folder = "there" {
    SaveText text = "x" filename = "nowhere/out.txt";
}
SCRIPT
mkdir "$work/there"
refused "missing folder" "The directory/folder \"$work/there/nowhere\" does not exist." 2:5
expect_files "missing folder" ""

fresh <<'SCRIPT'
SaveText text = "x" filename = "early.txt";
SaveText text = "x" filename = "taken.txt";
SCRIPT
mkdir "$work/taken.txt"
refused "unwritable target" "The file \"$work/taken.txt\" can not be written." 2:1
expect_files "unwritable target" ""

# A numbered name is refused for its folder only, since its files do not exist yet.
fresh <<'SCRIPT'
loop := For firstIterationStep = 1 lastIterationStep = 2 {
    LoadText filename = "gone/in_.txt" suffixDigits = 2 step = loop.step;
}
SCRIPT
refused "numbered input" "The directory/folder \"$work/gone\" does not exist." 2:5

# A name built at run time is checked when it is met, with the same message.
fresh <<'SCRIPT'
name := String constant = "absent.txt";
LoadText filename = name.object;
SCRIPT
(cd "$work" && "$vrk" run script.vrk > /dev/null 2> err.log)
status=$?
[ "$status" = 1 ] || fail "run-time name: run ended with $status"
grep -qF "The file \"$work/absent.txt\" can not be read." "$work/err.log" ||
    fail "run-time name: $(cat "$work/err.log")"

# Conversion keeps names inside work directories relative and complete names as written.
fresh <<'SCRIPT'
Workdir folder = "data" {
    SaveText text = "x" filename = "inside.txt";
    SaveText text = "x" filename = "/etc/complete.txt";
    Path constant = "/etc/hosts";
}
SCRIPT
mkdir -p "$work/data" "$work/elsewhere/deep"
(cd "$work" && "$vrk" convert script.vrk elsewhere/deep/once.vrk &&
    "$vrk" convert elsewhere/deep/once.vrk elsewhere/twice.vrk) || fail "convert failed"
for converted in elsewhere/deep/once.vrk elsewhere/twice.vrk; do
    for value in '"inside.txt"' '"/etc/complete.txt"' '"/etc/hosts"'; do
        grep -qF "$value" "$work/$converted" || fail "convert: $converted lacks $value:
$(cat "$work/$converted")"
    done
done

[ "$failed" -eq 0 ] && echo "Text files are written and refused as expected"
[ "$failed" -eq 0 ]
