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
