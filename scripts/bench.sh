#!/usr/bin/env bash
# bench.sh: measures, side by side in one run, the g++ step of a program with and without the
# warmed header, the front end on growing sources, and the scanner with and without its checks.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh

scripts/build_release.sh
[ -f build/bench/build.ninja ] ||
    run_quietly "அளவீட்டைத் தொடங்க முடியவில்லை (cmake)." cmake --preset bench
run_quietly "அளவீட்டு நிரல்களைக் கட்ட முடியவில்லை." cmake --build --preset bench

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/times"
runs=7

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

say "⏱ அளவிடப்படுகிறது..."
measure_native_build
printf '\nfront end, print statements over literals, best of 5\n'
build/bench/bench/bench_front_end
measure_scanner
