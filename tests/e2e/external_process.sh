#!/usr/bin/env bash
# RunExternalProcess through vrk: a waited-for process ends before the run goes on; a
# time to wait returns with the process still running; not waiting returns at once;
# SIGINT during a wait, or with a detached process, ends the run with status 130 within
# about a second and takes the process and its children down; the parameters never
# reach a shell.
set -u
vrk="$1"
work=$(mktemp -d)
leftover=""
cleanup() {
    [ -n "$leftover" ] && kill -KILL $leftover 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT
cd "$work" || exit 1
failed=0
fail() {
    echo "FAIL $*"
    failed=1
}

# Milliseconds since the epoch.
now() { date +%s%3N; }

# Waits up to five seconds for the file $1 to hold a pid, and prints it; nothing when
# none came.
pid_from() {
    local tries=0
    while ! grep -qx '[0-9][0-9]*' "$1" 2>/dev/null && [ "$tries" -lt 50 ]; do
        sleep 0.1
        tries=$((tries + 1))
    done
    grep -x '[0-9][0-9]*' "$1" 2>/dev/null
}

# Whether process $1 is alive and not a zombie.
alive() {
    [ -n "$1" ] || return 1
    local state
    state=$(ps -o stat= -p "$1" 2>/dev/null) || return 1
    [[ "$state" != Z* ]]
}

# A program that notes its pid in the file $1, then sleeps for $2 seconds.
sleeper() { echo "fileName = \"sh\" parameters = \"-c 'echo \$\$ > $1; exec sleep $2'\""; }
# A program that notes its pid in the file $1 and never ends by itself: a run that
# comes back while it lives did not wait for its end, however slow the machine.
endless() { echo "fileName = \"sh\" parameters = \"-c 'echo \$\$ > $1; while :; do sleep 1; done'\""; }
# Runs vrk on the script $1 for at most a minute (status 124 past it).
run_bounded() { timeout 60 "$vrk" run "$1" --log-level .result; }

# 1. Waited for: each process has ended before the next pass and the next functor.
cat > wait.vrk <<'SCRIPT'
loop := For firstIterationStep = 1 lastIterationStep = 2 {
    RunExternalProcess fileName = "sh" parameters = "-c 'sleep 0.5; echo ran >> marker'";
}
PrintString string = "after the process";
SCRIPT
start=$(now)
out=$("$vrk" run wait.vrk --log-level .result --scheduler sequential)
status=$?
elapsed=$(($(now) - start))
[ "$status" -eq 0 ] || fail "wait: exit status $status"
[ "$out" = "after the process" ] || fail "wait: printed '$out'"
[ "$(cat marker 2>/dev/null)" = $'ran\nran' ] || fail "wait: the processes did not both run"
[ "$elapsed" -ge 1000 ] || fail "wait: returned after $elapsed ms, before the processes ended"

# 2. secondsToWait 2 on a process that never ends: back after 2 seconds at least, the
# process still running.
echo "RunExternalProcess $(endless timed.pid) secondsToWait = 2;" > timed.vrk
start=$(now)
run_bounded timed.vrk
status=$?
elapsed=$(($(now) - start))
pid=$(pid_from timed.pid)
leftover="$pid"
[ "$status" -eq 0 ] || fail "secondsToWait: exit status $status"
[ "$elapsed" -ge 1900 ] || fail "secondsToWait: returned after $elapsed ms"
alive "$pid" || fail "secondsToWait: the process did not keep running"
kill -KILL "$pid" 2>/dev/null

# 3. waitProcessCompletion .no: back, the process still running.
echo "RunExternalProcess $(endless detached.pid) waitProcessCompletion = .no;" > detached.vrk
run_bounded detached.vrk
status=$?
pid=$(pid_from detached.pid)
leftover="$pid"
[ "$status" -eq 0 ] || fail "no waiting: exit status $status"
alive "$pid" || fail "no waiting: the process did not keep running"
kill -KILL "$pid" 2>/dev/null

# A negative time waits for nothing: the run comes back although the process would
# never end.
echo "RunExternalProcess $(endless negative.pid) secondsToWait = -1;" > negative.vrk
run_bounded negative.vrk
status=$?
[ "$status" -eq 0 ] || fail "negative time: exit status $status"

# Waits up to $2 tenths of a second for process $1 to end (or to be a zombie, which a
# container's first process may leave unreaped); whether it ended.
ends_within() {
    local waited=0
    while alive "$1" && [ "$waited" -lt "$2" ]; do
        sleep 0.1
        waited=$((waited + 1))
    done
    ! alive "$1"
}

# 4. SIGINT while waiting, and SIGINT while a detached process runs beside a loop:
# status 130 within about a second (a wait slice, then a short grace between SIGTERM and
# SIGKILL), and the process gone, even a program that ignores SIGTERM. A program's own
# children, waited for or left running, go with it: the program leads a process group
# of its own, and the whole group is ended.
echo "RunExternalProcess $(sleeper waited.pid 30);" > interrupted_wait.vrk
forever='forever := While initialCondition = .yes condition = again.condition {
    again := SetWhileCondition condition = .yes;
}'
printf '%s\n%s\n' "RunExternalProcess $(sleeper owned.pid 30) waitProcessCompletion = .no;" \
    "$forever" > interrupted_detached.vrk
cat > stubborn.vrk <<'SCRIPT'
RunExternalProcess fileName = "sh" parameters = "-c 'trap : TERM; echo $$ > stubborn.pid; while :; do sleep 0.05; done'";
SCRIPT
family() { echo "fileName = \"sh\" parameters = \"-c 'sleep 30 & echo \$! > $1; wait'\""; }
echo "RunExternalProcess $(family waited_child.pid);" > family_wait.vrk
printf '%s\n%s\n' "RunExternalProcess $(family owned_child.pid) waitProcessCompletion = .no;" \
    "$forever" > family_detached.vrk
for case in interrupted_wait:waited.pid interrupted_detached:owned.pid stubborn:stubborn.pid \
    family_wait:waited_child.pid family_detached:owned_child.pid; do
    script="${case%%:*}.vrk"
    pidfile="${case##*:}"
    for scheduler in sequential parallel; do
        rm -f "$pidfile"
        "$vrk" run "$script" --log-level .result --scheduler "$scheduler" &
        vrk_pid=$!
        child=$(pid_from "$pidfile")
        leftover="$child"
        if [ -z "$child" ]; then
            fail "$script ($scheduler): the process never started"
            kill -KILL "$vrk_pid"
            continue
        fi
        start=$(now)
        kill -INT "$vrk_pid"
        ends_within "$vrk_pid" 50 || kill -KILL "$vrk_pid"
        wait "$vrk_pid"
        status=$?
        elapsed=$(($(now) - start))
        [ "$status" -eq 130 ] || fail "$script ($scheduler): exit status $status, expected 130"
        # A wait slice and the grace make at most 1.2 s; a grace of two seconds would
        # make 2 s at least.
        [ "$elapsed" -lt 1900 ] || fail "$script ($scheduler): ended $elapsed ms after SIGINT"
        # The group is signalled before vrk ends, but its processes die a moment later.
        ends_within "$child" 20 || fail "$script ($scheduler): process $child outlived the run"
        kill -KILL "$child" 2>/dev/null
    done
done

# 5. Shell metacharacters and quotes are arguments like any other: echo prints them, and
# nothing else runs.
cat > literal.vrk <<'SCRIPT'
RunExternalProcess fileName = "echo" parameters = "a; touch semicolon | touch pipe $(touch subst) `touch tick` && touch and > redirected 'two  words'";
SCRIPT
out=$("$vrk" run literal.vrk --log-level .result)
status=$?
[ "$status" -eq 0 ] || fail "metacharacters: exit status $status"
expected='a; touch semicolon | touch pipe $(touch subst) `touch tick` && touch and > redirected two  words'
[ "$out" = "$expected" ] || fail "metacharacters: printed '$out'"
for file in semicolon pipe subst tick and redirected; do
    [ ! -e "$file" ] || fail "metacharacters: \"$file\" was created"
done

# 6. A program that cannot be started fails the run with status 1.
echo 'RunExternalProcess fileName = "no-such-program-anywhere" parameters = "";' > missing.vrk
"$vrk" run missing.vrk --log-level .result 2>missing.err
status=$?
[ "$status" -eq 1 ] || fail "missing program: exit status $status"
grep -q 'The process "no-such-program-anywhere" could not be started' missing.err \
    || fail "missing program: $(cat missing.err)"
# So does a file that is there but cannot be run.
touch not-a-program
echo 'RunExternalProcess fileName = "./not-a-program" parameters = "";' > unrunnable.vrk
"$vrk" run unrunnable.vrk --log-level .result 2>unrunnable.err
status=$?
[ "$status" -eq 1 ] || fail "unrunnable file: exit status $status"
grep -q 'The process "./not-a-program" could not be started: Permission denied.' unrunnable.err \
    || fail "unrunnable file: $(cat unrunnable.err)"

# 7. A program that exits with a status other than 0, or dies of a signal, is reported
# as a warning that names it, whether it was waited for to its end or for some seconds;
# the run goes on, and what is printed is the same under every scheduler.
cat > failing.vrk <<'SCRIPT'
first := RunExternalProcess fileName = "sh" parameters = "-c 'sleep 0.2; exit 3'";
second := RunExternalProcess fileName = "sh" parameters = "-c 'sleep 0.2; kill -TERM $$'" secondsToWait = 5;
third := RunExternalProcess fileName = "false" parameters = "";
fourth := RunExternalProcess fileName = "true" parameters = "";
PrintString string = "the run went on";
SCRIPT
expected='The program "sh" run by "first" (RunExternalProcess) at failing.vrk:1:1 exited with status 3.
The program "sh" run by "second" (RunExternalProcess) at failing.vrk:2:1 was ended by signal 15 (Terminated).
The program "false" run by "third" (RunExternalProcess) at failing.vrk:3:1 exited with status 1.
the run went on'
for scheduler in sequential parallel auto; do
    out=$("$vrk" run failing.vrk --log-level .result --scheduler "$scheduler")
    status=$?
    [ "$status" -eq 0 ] || fail "failing program ($scheduler): exit status $status"
    [ "$out" = "$expected" ] || fail "failing program ($scheduler): printed '$out'"
done

# A program that reads its input: from vrk's terminal it reads an empty input rather
# than stopping the run, as its group is not the terminal's; from a pipe it reads what
# the pipe gives.
cat > reading.vrk <<'SCRIPT'
RunExternalProcess fileName = "sh" parameters = "-c 'read -r line; echo \"$? $line\" > read.txt'";
SCRIPT
rm -f read.txt
if command -v script > /dev/null; then
    timeout 20 script -qec "'$vrk' run reading.vrk --log-level .error" /dev/null > /dev/null
    [ "$(cat read.txt 2>/dev/null)" = "1 " ] ||
        fail "reading the terminal: read '$(cat read.txt 2>/dev/null)', the run stopped?"
fi
echo piped | "$vrk" run reading.vrk --log-level .error
[ "$(cat read.txt)" = "0 piped" ] || fail "reading a pipe: read '$(cat read.txt)'"

[ "$failed" -eq 0 ] && echo "external processes waited for, left running, cancelled and kept from any shell"
[ "$failed" -eq 0 ]
