#!/usr/bin/env bash
# A script means one thing whichever scheduler runs it. Runs every end-to-end case that
# runs a script, and every example, three times each under the sequential scheduler,
# under the parallel one (on two processors unless the case names its own) and under the
# default one, and requires of every run the standard output and the exit status of the
# first sequential run. The case's own scheduler option gives way to each of these; a
# case whose scheduler is not one of them is about the command line and is left out.
set -u
vrk="$1"
root="${2%/}"
limit="${VRK_E2E_TIMEOUT:-60}"
work=$(mktemp -d "${TMPDIR:-/tmp}/vrk_schedulers.XXXXXX")
trap 'rm -rf "$work"' EXIT
differing=0
compared=0

# Runs vrk in folder $1 with the arguments after $2, its standard output to the file $2
# and its standard error beside it; returns vrk's exit status.
run_once() {
    local folder="$1" out="$2"
    shift 2
    (cd "$folder" && timeout "$limit" "$vrk" "$@" >"$out" 2>"$out.err")
}

# Compares the runs of one case: $1 its name, $2 the folder to run in, then the command
# line without any scheduler option.
compare() {
    local name="$1" folder="$2"
    shift 2
    local -a common=("$@") parallel=(--scheduler parallel)
    local arg own_processors=no
    for arg in "${common[@]}"; do
        [[ "$arg" == --processors || "$arg" == --processors=* ]] && own_processors=yes
    done
    # Two processors at most, whatever the machine: --processors caps the threads of a
    # parallel run, and two is what the smallest machines that run the tests have.
    [ "$own_processors" = yes ] || parallel+=(--processors 2)

    run_once "$folder" "$work/reference" "${common[@]}" --scheduler sequential
    local reference_status=$?
    if [ "$reference_status" = 124 ]; then
        echo "DIFFERS $name: still running after $limit seconds under --scheduler sequential"
        differing=$((differing + 1))
        return
    fi
    local setting round status
    local -a options
    for setting in sequential parallel default; do
        case "$setting" in
        sequential) options=(--scheduler sequential) ;;
        parallel) options=("${parallel[@]}") ;;
        default) options=() ;;
        esac
        for round in 1 2 3; do
            run_once "$folder" "$work/run" "${common[@]}" "${options[@]}"
            status=$?
            if [ "$status" = "$reference_status" ] && cmp -s "$work/reference" "$work/run"; then
                continue
            fi
            echo "DIFFERS $name with ${options[*]:-no scheduler option} (round $round):" \
                "exit status $status, $reference_status under --scheduler sequential"
            [ "$status" = 124 ] && echo "  still running after $limit seconds"
            echo "  standard output: < under --scheduler sequential, > this run"
            diff "$work/reference" "$work/run" | head -30 | sed 's/^/  /'
            echo "  standard error of this run:"
            head -c 2000 "$work/run.err" | sed 's/^/  /'
            differing=$((differing + 1))
            # One report per setting is enough; the next setting may differ otherwise.
            break
        done
    done
    compared=$((compared + 1))
}

for case_dir in "$root"/tests/e2e/cases/*/; do
    case_dir="${case_dir%/}"
    name=$(basename "$case_dir")
    [ "$(head -n 1 "$case_dir/args")" = run ] || continue
    mapfile -t args < <(sed "s|SCRIPT|${case_dir}/script.vrk|g; s|CASE|${case_dir}|g" \
        "$case_dir/args")
    kept=()
    scheduler=auto
    for ((i = 0; i < ${#args[@]}; i++)); do
        case "${args[i]}" in
        --scheduler)
            scheduler="${args[i + 1]:-}"
            i=$((i + 1))
            ;;
        --scheduler=*) scheduler="${args[i]#--scheduler=}" ;;
        *) kept+=("${args[i]}") ;;
        esac
    done
    case "$scheduler" in
    sequential | parallel | auto) compare "$name" "$case_dir" "${kept[@]}" ;;
    *) echo "left out $name: its scheduler \"$scheduler\" is not one to compare" ;;
    esac
done
for example in "$root"/examples/*.vrk; do
    compare "examples/$(basename "$example")" "$root/examples" run "$example"
done

echo "$compared cases compared, $differing differences"
[ "$compared" -gt 0 ] && [ "$differing" = 0 ]
