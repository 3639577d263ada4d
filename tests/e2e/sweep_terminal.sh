#!/usr/bin/env bash
# On a terminal, a sweep draws one line that it redraws as runs go: the runs done and
# failed, those running, the seconds elapsed and, once a run has ended, an estimate of
# the seconds left; it prints none of the lines it prints elsewhere.
set -u
vrk="$1"
. "$(dirname "$0")/sweep_common.sh"

# Six rows of one second each, two at a time; the third fails.
{
    echo "a.value,b.value,pause.parameters,save.filename"
    for i in $(seq 1 6); do
        file=out.txt
        [ "$i" = 3 ] && file=missing/out.txt
        echo "$i,$((i * 10)),\"\"\"1\"\"\",\"\"\"$file\"\"\""
    done
} > six.csv
# script(1) gives the sweep a terminal and copies what it draws to its own output.
script -qefc "'$vrk' sweep model/pair.vrk six.csv --jobs 2 --out six" /dev/null > screen.txt 2>&1 < /dev/null
[ $? = 1 ] || fail "status of a sweep with a failed run"
[ "$(status_of six 3)" = 2 ] || fail "summary: $(cat six/summary.csv)"
python3 - screen.txt <<'PYTHON' || failed=1
import re, sys
screen = open(sys.argv[1], encoding="utf-8", newline="").read()
line = re.compile(r"(\d+) of 6 done, (\d+) failed, (\d+) running, (\d+) s elapsed"
                  r"(?:, about (\d+) s left)?\x1b\[K$")
problems = []
if "finished: status" in screen:
    problems.append("plain lines on a terminal")
# Each redraw starts at the line's beginning and clears what a longer line left.
draws = [part.rstrip("\r\n") for part in screen.split("\r")[1:]]
draws = [d for d in draws if d and not d.startswith("vrk:")]
seen = [line.match(d) for d in draws]
if not draws or not all(seen):
    problems.append("lines that are not progress: %r" % [d for d, m in zip(draws, seen) if not m])
seen = [tuple(None if g is None else int(g) for g in m.groups()) for m in seen if m]
if seen:
    if seen[-1][:3] != (6, 1, 0):
        problems.append("last line %r" % (seen[-1],))
    if max(s[2] for s in seen) != 2:
        problems.append("never 2 running")
    if any(b[0] < a[0] or b[3] < a[3] for a, b in zip(seen, seen[1:])):
        problems.append("done or elapsed went back")
    if seen[-1][3] < 2:
        problems.append("3 rounds of one second took %d s" % seen[-1][3])
    for done, _, _, elapsed, left in seen:
        # Both numbers are rounded, so the estimate is checked within their rounding.
        if (left is None) != (done == 0):
            problems.append("estimate shown with %d done" % done)
        elif left is not None and not ((elapsed - 0.5) / done * (6 - done) - 0.5 <= left
                                       <= (elapsed + 0.5) / done * (6 - done) + 0.5):
            problems.append("%d s left after %d s for %d of 6" % (left, elapsed, done))
for problem in problems:
    print("FAIL terminal:", problem)
sys.exit(1 if problems else 0)
PYTHON
[ "$failed" = 0 ] || cat -v screen.txt
exit $failed
