#!/usr/bin/env bash
# prepare_objects.sh: what a console program is linked and compiled with, made ahead of time: the
# object of the diagnostics and the warmed header. The compiler itself never renews the object, and
# makes a missing one without -O2: the instances in it are then as slow as the program's own text.
# Made again when g++, a source or the object itself changes; else it costs milliseconds.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

object=திரட்டு/error_handler_native_linux.o
include=உள்ளடக்கம்
stamp="$object.stamp"
sources=(src/error_handler.cpp src/held_{bodies,runtime}.h src/instances.h src/emitted/*.cpp
    "$include"/error_handler.h "$include"/error_codes.h scripts/prepare_objects.sh)

identity() {
    stat -Lc '%n %s %Y' "$(command -v g++)" &&
        g++ --version | sed -n 1p &&
        cksum "${sources[@]}" &&
        stat -c '%s %Y' "$object"
}

is_fresh() { [ -f "$stamp" ] && [ "$(identity 2>/dev/null)" = "$(cat "$stamp")" ]; }

compile() { g++ -c src/error_handler.cpp -o "$object.new" -std=c++17 -O2 -fwrapv -I"$include" "$@"; }

# The shared instances name parts of libstdc++ that another version may not have: then programs do
# without them, and take longer to build.
make_object() {
    # A program that is compiled meanwhile must not count on what the old object holds.
    rm -f "$stamp" "$include"/nanovg/{iostream.gch,held_instances.h}
    compile -DPOZHIL_WITH_INSTANCES 2>/dev/null || compile -DPOZHIL_WITHOUT_INSTANCES
    mv -f "$object.new" "$object"
    identity >"$stamp"
}

if ! is_fresh; then
    trap 'rm -f "$object.new"' EXIT
    make_object
fi

# Without it programs build all the same, only slower.
scripts/warm_header.sh || true
