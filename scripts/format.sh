#!/usr/bin/env bash
# format.sh [--check]: formats all C++, or only tells which files are not formatted.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.."

tool=$(command -v clang-format-14 || command -v clang-format)
options=(-i)
[ "${1:-}" != --check ] || options=(--dry-run -Werror --ferror-limit=1)

find src tests bench உள்ளடக்கம் \( -path உள்ளடக்கம்/nanovg -o -name node_modules \) -prune \
    -o -type f \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -r -P 2 -n 8 "$tool" "${options[@]}"
