# How the scripts speak: to be sourced. All on standard error, so that the output of the program
# that is run stands alone on standard output.
# shellcheck shell=bash

say() { printf '\033[2m%s\033[0m\n' "$*" >&2; }

# One line that says what is missing, and the end.
refuse() {
    printf '\033[1;31m🚨 %s\033[0m\n' "$*" >&2
    exit 1
}

# run_quietly TEXT COMMAND...: what COMMAND prints is shown only if it fails, behind TEXT.
run_quietly() {
    local text=$1 log status=0
    shift
    log=$(mktemp)
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if [ "$status" -ne 0 ]; then
        tail -n 40 "$log" >&2
        rm -f "$log"
        refuse "$text"
    fi
    rm -f "$log"
}

# build_with_progress TEXT SAYING COMMAND...: as run_quietly, for a build by ninja. A terminal shows
# SAYING with the share of the steps that are done, in one line that goes when all are.
build_with_progress() {
    local text=$1 saying=$2 log line status=0
    shift 2
    log=$(mktemp)
    "$@" 2>&1 </dev/null | while IFS= read -r line; do
        printf '%s\n' "$line" >>"$log"
        if [ -t 2 ] && [[ "$line" =~ ^\[([0-9]+)/([0-9]+)\] ]]; then
            printf '\r\033[2m%s %d%%\033[0m' "$saying" $((100 * BASH_REMATCH[1] / BASH_REMATCH[2])) >&2
        fi
    done || status=$?
    [ ! -t 2 ] || printf '\r\033[K' >&2
    if [ "$status" -ne 0 ]; then
        tail -n 40 "$log" >&2
        rm -f "$log"
        refuse "$text"
    fi
    rm -f "$log"
}
