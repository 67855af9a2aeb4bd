#!/usr/bin/env bash
# lint.sh [FILE...]: clang-tidy over the compiler's sources, or over the files named. The emitted
# text is left out: its rules are those of the generated programs.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.."

# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh

# There each file is compiled by itself.
database=build/debug
configure debug
# The embedded texts are headers that the build makes.
cmake --build "$database" --target generated/emitted_text.h \
    generated/widget_templates.h >/dev/null

tool=$(command -v clang-tidy-14 || command -v clang-tidy)
files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(find src -name '*.cpp' -not -path 'src/emitted/*')
printf '%s\0' "${files[@]}" | xargs -0 -P 2 -n 1 "$tool" --quiet -p "$database" 2>/dev/null
