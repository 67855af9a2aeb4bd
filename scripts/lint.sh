#!/usr/bin/env bash
# lint.sh [FILE...]: clang-tidy over the compiler's sources, or over the files named. Nearly all of them are
# read as one unit: most of the time goes into headers that they share. The emitted text is left out: its
# rules are those of the generated programs.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.."

# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh

tool=$(command -v clang-tidy-14 || command -v clang-tidy)

# prepare PRESET: its commands, and the embedded texts, which are headers that the build makes.
prepare() {
    configure "$1"
    cmake --build "build/$1" --target generated/emitted_text.h generated/widget_templates.h \
        generated/shown_programs.h >/dev/null
}

# tidy PRESET FILE...: the commands are those of g++, some of whose warnings clang doesn't know.
tidy() {
    local database=build/$1
    shift
    [ $# -gt 0 ] || return 0
    printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -n 1 "$tool" --quiet -p "$database" \
        --extra-arg=-Wno-unknown-warning-option 2>/dev/null
}

sources() { find "$PWD/src" -name '*.cpp' -not -path '*/src/emitted/*' | sort; }
unit() { sed -n 's/.*"file": "\(.*\/Unity\/.*\)".*/\1/p' build/lint/compile_commands.json; }
# The sources that the unit is made of.
united() { sed -n 's/^#include "\(.*\)"$/\1/p' "$1" | sort; }

if [ $# -gt 0 ]; then
    prepare debug
    tidy debug "$@"
    exit
fi
prepare lint
together=$(unit)
mapfile -t apart < <(comm -23 <(sources) <(united "$together"))
tidy lint "$together" "${apart[@]}"
