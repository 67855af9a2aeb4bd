#!/usr/bin/env bash
# run_program.sh COUNTS SECONDS PROGRAM [ARGUMENT...]: runs all tests of a GoogleTest program in one process.
# Prints what the failing ones printed, and the last one's lines if the program ended in it. Writes
# "passed failed skipped" into the file COUNTS. Fails as the program does, and when there is no test.
set -uo pipefail
counts=$1 seconds=$2
shift 2
mkdir -p "$(dirname "$counts")"
rm -f "$counts"
log=$(mktemp)
trap 'rm -f "$log"' EXIT

# Under the address sanitizer much time goes into noting who asked for each piece of memory. A program
# that is run by hand tells the whole way there.
export ASAN_OPTIONS="malloc_context_size=1${ASAN_OPTIONS:+:$ASAN_OPTIONS}"
status=0
timeout --kill-after=5 "$seconds" "$@" >"$log" 2>&1 || status=$?
awk -v counts="$counts" '
    /\[==========\] .* ran\./ { over = 1 }
    over { next }
    /^\[ RUN      \] / { name = $4; block = "" }
    { block = block $0 "\n" }
    /\[       OK \] .*ms\)$/ { passed++; name = block = "" }
    /\[  SKIPPED \] .*ms\)$/ { skipped++; name = block = "" }
    /\[  FAILED  \] .*ms\)$/ { failed++; printf "%s", block; name = block = "" }
    END {
        if (name != "") { failed++; printf "%s[  FAILED  ] %s: the program ended in it\n", block, name }
        print passed + 0, failed + 0, skipped + 0 > counts
    }' "$log"
read -r passed failed skipped <"$counts"
if [ "$failed" -eq 0 ] && { [ "$status" -ne 0 ] || [ $((passed + skipped)) -eq 0 ]; }; then
    tail -n 60 "$log"
    echo "status $status, $passed tests passed and none failed"
    echo "$passed 1 $skipped" >"$counts"
    [ "$status" -ne 0 ] || status=1
fi
exit "$status"
