#!/usr/bin/env bash
# prepare_objects.sh: what a console program is linked and compiled with, made ahead of time: the
# object of the diagnostics and the warmed header. The compiler itself never renews the object.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

object="$root/திரட்டு/error_handler_native_linux.o"
source="$root/src/error_handler.cpp"
include="$root/உள்ளடக்கம்"
if [ ! "$object" -nt "$source" ] || [ ! "$object" -nt "$include/error_handler.h" ]; then
    trap 'rm -f "$object.new"' EXIT
    g++ -c "$source" -o "$object.new" -std=c++17 -I"$include"
    mv -f "$object.new" "$object"
fi

# Without it programs build all the same, only slower.
"$root/scripts/warm_header.sh" || true
