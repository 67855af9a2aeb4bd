#!/usr/bin/env bash
# warm_web.sh [FOLDER]: precompiles for em++ what every web application's text begins with and uses,
# so that em++ builds an application in a third of the time. FOLDER holds the compiler with its
# companions; without one, this checkout. What is made lies in FOLDER/திரட்டு/warmed_web: the headers
# (src/warmed_web.h), the object of all that they instantiate, that of what they declare
# (src/held_bodies.h), and `fits`, a list of the files that these depend on, em++ first. The compiler
# hands them to em++ while each of these is as it was, and builds without them otherwise. Remade when
# one of them changes; else it costs milliseconds.
set -euo pipefail

headers=headers.h.pch
object=instances.o
runtime=runtime.o

# em++ starts clang by this script: the command that makes the headers is given once more, for their
# object. So both are made by the same clang with the same flags.
if [ "${1:-}" = --compile ]; then
    shift
    "$@"
    words=()
    for word; do
        case "$word" in
            c++-header) words+=(none) ;;
            */warmed_web.h) words+=(-c "$POZHIL_WARMED/$headers") ;;
            */"$headers") words+=("$POZHIL_WARMED/$object") ;;
            *) words+=("$word") ;;
        esac
    done
    exec "${words[@]}"
fi

script=$(readlink -f "${BASH_SOURCE[0]}")
root=$(CDPATH="" cd "${1:-$(dirname "$script")/..}" && pwd -P)
# shellcheck source=scripts/messages.sh
. "${script%/*}/messages.sh"
include="$root/உள்ளடக்கம்"
warmed=$(readlink -m "$root/திரட்டு/warmed_web")
source="$root/src/warmed_web.h"
bodies="$root/src/held_bodies.h"
command -v em++ >/dev/null || exit 0
compiler=$(readlink -f "$(command -v em++)")
recipe=$(cksum <"$script")

# Of the files that are named, those that are there, each as it is found: size and time.
state() { xargs -d '\n' stat -Lc '%s %Y %n' -- 2>/dev/null; }

# holds LIST: the files that it names are as they were, and so are the compiler and this script.
holds() {
    [ -f "$1" ] && [ "$(cat "$warmed/recipe" 2>/dev/null)" = "$recipe" ] || return 1
    [ "$(sed -n 1p "$1" | cut -d ' ' -f 3-)" = "$compiler" ] || return 1
    cut -d ' ' -f 3- "$1" | state | cmp -s - "$1"
}
# Where they can't be made that isn't tried again for a day, or each start would wait for it.
was_refused() { [ -n "$(find "$warmed/refused" -mtime -1 2>/dev/null)" ] && holds "$warmed/refused"; }
# In a folder that was copied the list names what lies in the one it was copied from.
is_own() { [ "$(sed -n 2p "$warmed/fits" | cut -d ' ' -f 3-)" = "$warmed/$headers" ]; }
is_done() { { holds "$warmed/fits" && is_own; } || was_refused; }

# What they depend on: the compiler, the three, and every header that was read.
name_files() {
    printf '%s\n' "$compiler" "$warmed"/{"$headers","$object","$runtime"}
    printf '%s\n' "${compiler%/*}/emscripten-version.txt" "$source" "$bodies"
    sed -n 's/^\.\.* //p' "$work/read" | sort -u
}

# The flags that decide whether the headers fit are those of the compiler's own em++ command. The
# folder of NanoVG serves names in quotes alone: <iostream> lies there too, for g++, and is renewed.
compile() {
    local flags=(-std=c++17 -finput-charset=UTF-8 -I"$include")
    # The library's other kind of std::function, which compiles in half the time: a program has one for each
    # thing that is pressed. No object that an application is linked with otherwise has any.
    local functions=-D_LIBCPP_ABI_OPTIMIZED_FUNCTION
    printf '#!/bin/sh\nexec bash %q --compile "$@"\n' "$script" >"$work/clang"
    chmod +x "$work/clang"
    EM_COMPILER_WRAPPER="$work/clang" POZHIL_WARMED="$work" em++ -x c++-header "$source" \
        -o "$work/$headers" "${flags[@]}" "$functions" -iquote "$include/nanovg" -I"$root/src" \
        -fpch-instantiate-templates -fpch-codegen -w -H 2>"$work/read" || return 1
    # Numbers wrap around as they do in the text itself.
    em++ -x c++ -c "$bodies" -o "$work/$runtime" "${flags[@]}" "$functions" -O2 -fwrapv -H \
        2>>"$work/read" || return 1
    [ -s "$work/$headers" ] && [ -s "$work/$object" ] && [ -s "$work/$runtime" ] || return 1
    # The headers must be accepted too.
    : >"$work/empty.cpp"
    em++ -c "$work/empty.cpp" -o "$work/empty.o" "${flags[@]}" -I"$include/nanovg" \
        -include "$work/${headers%.pch}"
}

is_done && exit 0
[ -w "$root/திரட்டு" ] || exit 0 # applications take longer then
mkdir -p "$warmed"
exec 9<"$warmed"
flock 9 # two runs at a time would mix the headers of one with the object of the other
is_done && exit 0

say "🔥 வலைதளங்களின் பொதுப் பகுதி முன்கூட்டியே தொகுக்கப்படுகிறது..."
rm -rf "$warmed"/new.* # of a run that was killed
work=$(mktemp -d "$warmed/new.XXXXXX")
trap 'rm -rf "$work"' EXIT
# A stale one must not outlive a failure here.
rm -f "$warmed"/{fits,refused,recipe}
printf '%s\n' "$recipe" >"$work/recipe"
unset EMCC_CFLAGS
if compile >"$work/said" 2>&1; then
    chmod 644 "$work"/{"$headers","$object","$runtime"}
    mv -f "$work"/{"$headers","$object","$runtime",recipe} "$warmed"
    name_files | state >"$work/fits" || true # the file of the version needn't be there
    mv -f "$work/fits" "$warmed/fits"
else
    printf '%s\n' "$compiler" "$source" "$bodies" | state >"$work/refused"
    mv -f "$work/recipe" "$work/refused" "$warmed"
fi
