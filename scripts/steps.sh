# Steps that are counted and timed, one behind the other or aside: to be sourced behind messages.sh.
# shellcheck shell=bash

passed=0 failed=0 skipped=0
failures=()
durations=() # of steps, one a line: seconds of the clock and of processors, and name

# Sets `processor`: the hundredths of a second that the commands of this shell took of processors, theirs
# included.
processor=0
note_processor() {
    local fields
    read -r -a fields <"/proc/$BASHPID/stat"
    processor=$((fields[15] + fields[16]))
}

# in_seconds HUNDREDTHS: with one decimal.
in_seconds() { printf '%d.%d' $(($1 / 100)) $(($1 / 10 % 10)); }

begun_at=0 # what `processor` was
begin() {
    say "▶ $1 (${SECONDS} s)"
    note_processor
    begun_at=$processor
}

# end NAME START: the step that began last, and at that second, is over.
end() {
    note_processor
    durations+=("$(printf '%6d s %8s s  %s' $((SECONDS - $2)) \
        "$(in_seconds $((processor - begun_at)))" "$1")")
}

# check NAME COMMAND...: a step that counts as one check.
check() {
    local name=$1 start=$SECONDS
    shift
    begin "$name"
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        failures+=("$name")
    fi
    end "$name" "$start"
}

# ---- What runs aside: the steps of one function, one behind the other ----

aside=0 # its process group, while it runs
aside_folder=
trap 'end_aside' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

end_aside() {
    if [ "$aside" -ne 0 ]; then
        kill -- "-$aside" 2>/dev/null || true
        wait "$aside" 2>/dev/null || true
    fi
    [ -z "$aside_folder" ] || rm -rf "$aside_folder"
}

# The steps of a function, from counts that begin at nothing; the file `counted` holds them at the end.
run_aside() {
    passed=0 failed=0 skipped=0 failures=() durations=()
    "$1"
    declare -p passed failed skipped failures durations >"$aside_folder/counted"
    # Its processor time becomes this shell's when it ends: not in the middle of a step.
    until [ -e "$aside_folder/joined" ]; do sleep 0.1; done
}

# From here on what runs aside takes the time that others leave.
lower_priority() { renice -n 19 "$BASHPID" >/dev/null 2>&1 || true; }

# start_aside FUNCTION: what it prints is kept until it is joined. In a process group of its own, so
# that all of it can be ended.
start_aside() {
    aside_folder=$(mktemp -d)
    set -m
    run_aside "$1" >"$aside_folder/printed" 2>&1 </dev/null &
    aside=$!
    set +m
}

# join_aside NAME: waits for it, and adds what it printed and counted. One that broke off has failed.
join_aside() {
    local start=$SECONDS status=0
    touch "$aside_folder/joined"
    wait "$aside" || status=$?
    aside=0
    note_processor
    begun_at=$processor # its steps told what they took
    cat "$aside_folder/printed" >&2
    if [ "$status" -eq 0 ] && [ -f "$aside_folder/counted" ]; then
        add_counted
    else
        failed=$((failed + 1))
        failures+=("$1: $status")
    fi
    end "$1: காத்திருப்பு" "$start"
}

add_counted() {
    local p=$passed f=$failed s=$skipped duration
    local all_failures=("${failures[@]}") all_durations=("${durations[@]}")
    # shellcheck source=/dev/null
    . <(sed 's/^declare /declare -g /' "$aside_folder/counted")
    passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
    failures=("${all_failures[@]}" "${failures[@]}")
    for duration in "${durations[@]}"; do all_durations+=("$duration (பக்கத்தில்)"); done
    durations=("${all_durations[@]}")
}

# summary [SECONDS]: the durations, what failed, and the counts. Holds if something passed and nothing failed.
# What all is to take at most on an idle machine is told beside what it took: a slow one is no failure.
summary() {
    local aim=${1:-}
    note_processor
    [ -z "$aim" ] || aim=" (இலக்கு $aim $([ "$SECONDS" -le "$aim" ] && echo ✔ || echo ✗))"
    printf '⏱ %d வினாடிகள்%s, செயலிகளில் %s:\n' "$SECONDS" "$aim" "$(in_seconds "$processor")"
    printf '%s\n' "${durations[@]}"
    [ ${#failures[@]} -eq 0 ] || printf '✗ %s\n' "${failures[@]}"
    echo "$passed passed, $failed failed$([ "$skipped" -eq 0 ] || echo ", $skipped skipped")"
    [ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
}
