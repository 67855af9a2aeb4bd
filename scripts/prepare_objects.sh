#!/usr/bin/env bash
# prepare_objects.sh: what a console program is linked and compiled with, made ahead of time: the
# object of the diagnostics and the warmed header. The compiler itself never renews the object, and
# makes a missing one without -O2: the instances in it are then as slow as the program's own text.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

object=திரட்டு/error_handler_native_linux.o
include=உள்ளடக்கம்
is_fresh() {
    local source
    for source in src/error_handler.cpp src/instances.h src/emitted/includes.cpp \
        "$include"/error_handler.h "$include"/error_codes.h; do
        [ "$object" -nt "$source" ] || return 1
    done
}
if ! is_fresh; then
    trap 'rm -f "$object.new"' EXIT
    g++ -c src/error_handler.cpp -o "$object.new" -std=c++17 -O2 -I"$include"
    mv -f "$object.new" "$object"
fi

# Without it programs build all the same, only slower.
scripts/warm_header.sh || true
