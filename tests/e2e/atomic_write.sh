#!/usr/bin/env bash
# Writes replace their target atomically and tidily: the target's permissions stay, a
# symbolic link stays a link and its file is written, a name at the file system's limit
# is written, a write beyond the size limit on files (SIGXFSZ) fails with status 1, and
# SIGTERM or SIGINT during a write end it with 143 or 130; none leaves a temporary file.
# What a write killed by SIGKILL left is removed by the next write of the same file.
# SIGTERM also cancels a run (143), and a script too large for memory is refused.
set -u
vrk="$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failed=0
fail() { echo "FAIL $*"; failed=1; }
# Sends a signal while the process's temporary file exists: the process is stopped, the
# file looked for, and the signal sent before the process goes on, so that the write
# cannot end between the look and the signal. Fails once the process has ended.
signal_during_write() { # SIGNAL PID PATTERN
    for _ in $(seq 1 6000); do
        kill -STOP "$2" 2> /dev/null || return 1
        if [ -n "$(find . -name "$3")" ]; then
            kill "-$1" "$2"
            kill -CONT "$2"
            return 0
        fi
        kill -CONT "$2"
        sleep 0.005
    done
    return 1
}
no_temporaries() { [ -z "$(find . -name '.*.tmp')" ] || fail "$1 left $(find . -name '.*.tmp')"; }

printf 'b := Bool constant = .yes;\n' > small.vrk
printf 'old\n' > kept.vrk
chmod 600 kept.vrk
"$vrk" convert small.vrk kept.vrk || fail "kept.vrk is not written"
[ "$(stat -c %a kept.vrk)" = 600 ] || fail "the mode became $(stat -c %a kept.vrk)"

printf 'old\n' > real.vrk
ln -s real.vrk link.vrk
"$vrk" convert small.vrk link.vrk || fail "link.vrk is not written"
[ -L link.vrk ] || fail "the symbolic link was replaced by a file"
cmp -s real.vrk small.vrk || fail "the link's file was not written"

long=$(printf 'n%.0s' $(seq 1 246)).vrk
"$vrk" convert small.vrk "$long" && [ -s "$long" ] || fail "a name of ${#long} characters is not written"

python3 -c "
print('\n'.join('s%d := String constant = \"%s\";' % (i, 'x' * 200) for i in range(6000)))" > big.vrk
printf 'old\n' > limited.vrk
(ulimit -f 100; "$vrk" convert big.vrk limited.vrk 2> limited.err)
status=$?
[ "$status" = 1 ] || fail "a write beyond the size limit ended with status $status"
grep -q "cannot be written" limited.err || fail "no reason given: $(cat limited.err)"
[ "$(cat limited.vrk)" = old ] || fail "the size limit changed the target"
no_temporaries "the size limit"

# The signal comes while the temporary file is being written. A convert may end before
# it is ever caught with its file open: that attempt shows nothing and is made again.
for signal in TERM INT; do
    expected=143
    [ "$signal" = INT ] && expected=130
    status=0
    for _ in 1 2 3 4 5; do
        rm -f "signalled.vrk"
        "$vrk" convert big.vrk signalled.vrk &
        pid=$!
        signal_during_write "$signal" "$pid" '.signalled.vrk.*.tmp'
        wait "$pid"
        status=$?
        [ "$status" = 0 ] || break
    done
    [ "$status" = "$expected" ] || fail "SIG$signal during a write ended with status $status"
    no_temporaries "SIG$signal"
done

# SIGKILL during a write leaves its temporary file, which no handler can remove; the
# next write of that file removes it, but not a temporary file whose writer still runs
# nor one of another file. The file is written over and over until one write is caught.
head -c 3000000 /dev/zero | tr '\0' 'k' > text.txt
cat > rewrite.vrk <<'SCRIPT'
text := LoadText filename = "text.txt";
For firstIterationStep = 1 lastIterationStep = 1000000 {
    SaveText text = text.text filename = "killed.txt";
}
SCRIPT
printf 'SaveText text = "new" filename = "killed.txt";\n' > once.vrk
left=
for _ in 1 2 3 4 5; do
    "$vrk" run rewrite.vrk --log-level .result &
    pid=$!
    signal_during_write KILL "$pid" '.killed.txt.*.tmp' || kill -KILL "$pid" 2> /dev/null
    wait "$pid" 2> /dev/null
    left=$(find . -name '.killed.txt.*.tmp')
    [ -n "$left" ] && break
done
[ -n "$left" ] || fail "SIGKILL during a write left no temporary file to remove"
sleep 600 &
running=$!
other=".other${left#./.killed}"
cp "$left" "$other"
printf 'half' > ".killed.txt.$running.0123abcd.tmp"
touch -d '2000-01-01' ".killed.txt.$running.0123abcd.tmp" "$other"
"$vrk" run once.vrk --log-level .result || fail "killed.txt is not written again"
[ "$(cat killed.txt)" = new ] || fail "killed.txt is not the new text"
[ ! -e "$left" ] || fail "the temporary file of the killed write stayed"
[ -e ".killed.txt.$running.0123abcd.tmp" ] || fail "the temporary file of a running writer was removed"
[ -e "$other" ] || fail "the temporary file of another target was removed"
kill "$running"
wait "$running" 2> /dev/null
rm -f .*.tmp

# SIGTERM once the run has begun, as the banner of the Repeat around the loop tells, so
# that it never meets a vrk still starting.
cat > forever.vrk <<'SCRIPT'
once := Repeat iterations = 1 {
    forever := While initialCondition = .yes condition = again.condition {
        again := SetWhileCondition condition = .yes;
    }
}
SCRIPT
"$vrk" run forever.vrk --log-level .info > forever.log &
pid=$!
for _ in $(seq 1 600); do
    grep -q "Running step 1 of 1" forever.log && break
    sleep 0.1
done
grep -q "Running step 1 of 1" forever.log || fail "the run never began: $(cat forever.log)"
kill -TERM "$pid"
wait "$pid"
status=$?
[ "$status" = 143 ] || fail "SIGTERM during a run ended with status $status"

truncate -s 200G huge.vrk
(ulimit -v 4000000; "$vrk" check huge.vrk 2> huge.err)
status=$?
[ "$status" = 2 ] || fail "a script too large for memory ended with status $status"
grep -q "does not fit in memory" huge.err || fail "no reason given: $(cat huge.err)"

[ "$failed" -eq 0 ] && echo "writes kept modes and links, took long names and left nothing behind"
[ "$failed" -eq 0 ]
