#!/usr/bin/env bash
# bench.sh [programs|frames|growth]: measures, side by side in one run, the front end beside Python's and
# on growing sources, the scanner with and without its checks, the g++ and em++ steps of a program
# beside bare ones, and the programs of bench/programs beside the same programs in Python. With
# `programs` those alone. With `frames` the time of a frame in the browser beside the same page drawn
# by hand, with `growth` the time of em++ for applications that grow. Says for each aim whether it
# holds; the status is 1 if one doesn't.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh

what=${1:-all}
case "$what" in
    all | programs | frames | growth) ;;
    *) refuse "பயன்பாடு: scripts/bench.sh [programs|frames|growth]" ;;
esac

scripts/build_release.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/times"
runs=7

build_measures() {
    configure bench
    run_quietly "அளவீட்டு நிரல்களைக் கட்ட முடியவில்லை." cmake --build --preset bench
}

# milliseconds NAME COMMAND...: appends the time of one run to the file NAME.
milliseconds() {
    local name=$1 start=$EPOCHREALTIME
    shift
    "$@" >"$work/output" 2>&1 || refuse "'$1' தவறியது: $(tail -n 1 "$work/output")"
    awk -v a="$start" -v b="$EPOCHREALTIME" 'BEGIN { print (b - a) * 1000 }' >>"$work/times/$name"
}

median() { sort -n "$work/times/$1" | awk '{ t[NR] = $1 } END { print t[int((NR + 1) / 2)] }'; }
least() { sort -n "$work/times/$1" | head -n 1; }

# row TEXT NAME BASE: median, quickest, and the ratio of the medians.
row() {
    awk -v text="$1" -v m="$(median "$2")" -v l="$(least "$2")" -v b="$(median "$3")" \
        'BEGIN { printf "%-52s %8.0f %8.0f %8.2fx\n", text, m, l, m / b }'
}

# aim TEXT RATIO MOST: a row of the table at the end, and whether it holds.
aim() {
    local mark
    mark=$(awk -v ratio="$2" -v most="$3" 'BEGIN { print ratio <= most ? "✔" : "✗" }')
    printf '%s\t%.2f\t%.2f\t%s\n' "$1" "$2" "$3" "$mark" >>"$work/aims"
}

print_aims() {
    printf '\n%-76s %8s %8s\n' "what" "ratio" "aim"
    awk -F '\t' '{ printf "%s %-74s %7.2fx %7.2fx\n", $4, $1, $2, $3 }' "$work/aims"
    ! grep -q '✗$' "$work/aims"
}

# The compiler's own g++ command, noted as it is given: word by word, the link of a hello program.
note_command() {
    mkdir -p "$work/bin"
    printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"%s/words"\nexec %s "$@"\n' \
        "$work" "$(command -v g++)" >"$work/bin/g++"
    chmod +x "$work/bin/g++"
    printf 'அச்சிடு("வணக்கம், உலகம்!")\n' >"$work/a.பொழில்"
    (cd "$work" && PATH="$work/bin:$PATH" TMPDIR="$work" "$root/பொழில்" a.பொழில்) >"$work/output"
    mapfile -t with_header <"$work/words"
    # The same include directory but for the warmed header.
    mkdir "$work/cold"
    cp உள்ளடக்கம்/*.h "$work/cold"
    without_header=("${with_header[@]//"$root/உள்ளடக்கம்"/"$work/cold"}")
}

bare_hello() {
    cat src/emitted/includes.cpp
    printf 'int main() { std::cout << "hello" << std::endl; }\n'
}

measure_native_build() {
    local link=(-std=c++17 -static -static-libstdc++ -static-libgcc -lm -lpthread)
    note_command
    bare_hello >"$work/bare.cpp"
    for _ in $(seq "$runs"); do
        milliseconds bare g++ "$work/bare.cpp" -o "$work/bare" "${link[@]}"
        milliseconds cold g++ "${without_header[@]}"
        milliseconds warm g++ "${with_header[@]}"
    done
    printf '\n%-52s %8s %8s %9s\n' "g++ step of a hello program, $runs runs" "median" "best" "ratio"
    row "bare C++ hello, same 18 headers, no warmed header" bare bare
    row "our program, without the warmed header" cold bare
    row "our program, with the warmed header" warm bare
    aim "g++ step of hello, beside the bare eighteen-header hello" \
        "$(awk -v a="$(median warm)" -v b="$(median bare)" 'BEGIN { print a / b }')" 0.60
    g++ "${with_header[@]}" -H 2>"$work/headers"
    grep -q "^! .*/iostream.gch" "$work/headers" ||
        refuse "g++ iostream.gch-ஐப் பயன்படுத்தவில்லை."
}

measure_scanner() {
    local checked unchecked tokens others
    for _ in 1 2 3; do
        read -r checked tokens < <(build/bench/bench/bench_scanner)
        read -r unchecked others < <(build/bench/bench/bench_scanner_unchecked)
        [ "$tokens" = "$others" ] || refuse "இரு அளவீடுகளும் வேறு வேறு சொற்களைக் கண்டன."
        echo "$checked" >>"$work/times/checked"
        echo "$unchecked" >>"$work/times/unchecked"
    done
    printf '\n%-52s %8s %8s %9s\n' "scanner, 100000 lines of names, ms" "median" "best" "ratio"
    row "without the checks" unchecked unchecked
    row "with the checks" checked unchecked
}

# built PROGRAM: builds and runs it as a user would, and prints where its executable stands.
built() {
    mkdir "$work/$1"
    (cd "$work/$1" && TMPDIR="$work/$1" "$root/பொழில்" "$root/bench/programs/$1.பொழில்") \
        >"$work/output" 2>&1 || refuse "'$1' கட்டப்படவில்லை: $(tail -n 1 "$work/output")"
    find "$work/$1" -type f -name பொழில்_செயலி | head -n 1
}

# A program and its twin print the same, or nothing is measured. Python is named by its own path,
# since a stand-in found first would add its own start to every run.
measure_programs() {
    local python name program source most
    scripts/install_packages.sh hyperfine python3
    python=$(python3 -c 'import sys; print(sys.executable)')
    printf '\n%-22s %12s %12s %9s %9s\n' \
        "programs, $runs runs, ms" "பொழில்" "python3" "ratio" "cpu ratio"
    for source in bench/programs/*.பொழில்; do
        name=$(basename "$source" .பொழில்)
        program=$(built "$name")
        [ -x "$program" ] || refuse "'$name' கட்டப்படவில்லை."
        cmp -s <("$program") <("$python" "${source%.பொழில்}.py") ||
            refuse "'$name': இரு நிரல்களும் வேறு வேறு விடை தருகின்றன."
        hyperfine --shell=none --warmup 1 --runs "$runs" --style none --export-csv "$work/csv" \
            "$program" "$python ${source%.பொழில்}.py" >"$work/output" 2>&1 ||
            refuse "hyperfine தவறியது: $(tail -n 1 "$work/output")"
        # Columns: command, mean, deviation, median, user, system, least, most.
        awk -F, -v name="$name" 'NR > 1 { median[NR] = $4 * 1000; cpu[NR] = $5 + $6 }
            END { printf "%-22s %12.0f %12.0f %8.2fx %8.2fx\n", name, median[2], median[3],
                  median[2] / median[3], cpu[2] / cpu[3]
                  print cpu[2] / cpu[3] > "'"$work"'/ratio" }' "$work/csv"
        most=1.00
        [ "$name" != method_calls ] || most=1.70
        aim "$name beside python3, processor time" "$(cat "$work/ratio")" "$most"
    done
}

# measure_apart COMMAND...: a measurement with aims of its own; those that it prints join the table.
measure_apart() {
    "$@" | tee "$work/apart" || [ "${PIPESTATUS[0]}" -eq 1 ]
    sed -nE 's/^(.*[^ ]) +([0-9.]+)x  aim ([0-9.]+)x .*/\1\t\2\t\3/p' "$work/apart" >"$work/told"
    [ -s "$work/told" ] || refuse "'$*' எதையும் அளக்கவில்லை."
    local text ratio most
    while IFS=$'\t' read -r text ratio most; do aim "$text" "$ratio" "$most"; done <"$work/told"
}

# The compiler and the driver of the browser are told where they stand, as by ctest.
measure_web() {
    scripts/setup_web.sh
    scripts/setup_browser_tests.sh
    POZHIL_EXECUTABLE_DIR="$root" node bench/web/measure.mjs "$1"
}

say "⏱ அளவிடப்படுகிறது..."
if [ "$what" = frames ] || [ "$what" = growth ]; then
    measure_web "$what"
    exit
fi
if [ "$what" = all ]; then
    build_measures
    measure_apart bench/front_end.sh
    printf '\nfront end in one process, print statements over literals, best of 5\n'
    build/bench/bench/bench_front_end
    measure_scanner
    measure_native_build
    printf '\n'
    measure_apart build/bench/bench/bench_check
    printf '\n'
    measure_apart bench/web_step.sh
fi
measure_programs
print_aims
