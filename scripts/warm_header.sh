#!/usr/bin/env bash
# warm_header.sh: precompiles the standard headers of the generated text and the catalogue, so that
# g++ builds a program in a third of the time. g++ looks for iostream.gch beside each place where it
# looks for <iostream>, the first header of every generated file, and passes over one that doesn't
# fit. It also declares extern the template instances that the diagnostics object holds, if it does:
# so it lies in the second include folder of a program's build, where nothing but programs looks, and
# a note beside it tells whoever makes the object anew that they are wanted.
# Remade when g++, the object or one of the headers changes; else it costs milliseconds.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
include=உள்ளடக்கம்
object=திரட்டு/error_handler_native_linux.o
warmed="$root/$include/nanovg/iostream.gch"
plain="${warmed%.gch}"  # what g++ opens when a file asks for <iostream> once more
held="$root/$include/nanovg/held_instances.h"
stamp="$warmed.stamp"  # line 1: g++ and the list; then every file that was read, one a line

# A program that is compiled with the declarations must be linked with the instances. With -q grep would leave
# before nm has said all, and nm would fail by that.
if nm "$object" 2>/dev/null | grep pozhil_instances >/dev/null; then
    headers=src/warmed_header.h
    notes=("$held")
    own=("$headers" src/{held_runtime,instances,plain_casts}.h src/emitted/*.cpp "$include"/error_{codes,handler}.h)
else
    headers=src/emitted/includes.cpp
    notes=()
    own=("$headers")
fi

compiler=$(command -v g++)
identity="$(stat -Lc '%n %s %Y' "$compiler") $(g++ --version | sed -n 1p) $headers"
identity+=" $(cat "${own[@]}" | cksum)"
identity+=" $(stat -c '%s %Y' "$object" 2>/dev/null || true)"

# By the time of the inode: packages carry the time at which they were made, not installed.
is_fresh() {
    local file
    for file in "$warmed" "$plain" "$stamp" "${notes[@]}"; do
        [ -f "$file" ] || return 1
    done
    [ "$(head -n 1 "$stamp")" = "$identity" ] || return 1
    local changed
    # shellcheck disable=SC2185  # the paths come from the stamp
    changed=$(tail -n +2 "$stamp" | tr '\n' '\0' |
        find -L -files0-from - -maxdepth 0 -cnewer "$warmed" 2>&1) || return 1
    [ -z "$changed" ]
}
is_fresh && exit 0

# The instances are those of one libstdc++, known by its date.
note_instances() {
    local date
    date=$(g++ -x c++ -std=c++17 -E -dM -include cstddef /dev/null | awk '$2 == "__GLIBCXX__" { print $3 }')
    printf '// Made by warm_header.sh.\n#define POZHIL_HELD_INSTANCES %s\n' "${date:-0}"
}

mkdir -p "$(dirname "$warmed")"
work=$(mktemp -d "$warmed.XXXXXX")
trap 'rm -rf "$work"' EXIT
rm -f "$warmed" "$plain" "$stamp" "$held"  # a stale one must not outlive a failure here
# The flags that decide whether the header fits: those of the compiler's own g++ command.
g++ -x c++-header "$headers" -o "$work/header" -std=c++17 -I"$include" -MD -MF "$work/read" -MT header
{
    printf '%s\n' "$identity"
    tr ' ' '\n' <"$work/read" | grep '^/.*[^:]$' | sort -u
} >"$work/stamp"
chmod 644 "$work/header"
echo '#include_next <iostream>' >"$plain"
[ ${#notes[@]} -eq 0 ] || note_instances >"$held"
mv -f "$work/header" "$warmed"
mv -f "$work/stamp" "$stamp"
