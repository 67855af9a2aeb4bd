#!/usr/bin/env bash
# lint.sh [FILE...]: clang-tidy over the compiler's sources, or over the files named. The emitted
# text is left out: its rules are those of the generated programs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

database=build/tests
[ -f "$database/compile_commands.json" ] || cmake --preset tests >/dev/null
# The embedded text is a header that the build makes.
cmake --build "$database" --target generated/emitted_text.h >/dev/null

tool=$(command -v clang-tidy-14 || command -v clang-tidy)
files=("$@")
[ ${#files[@]} -gt 0 ] || mapfile -t files < <(find src -name '*.cpp' -not -path 'src/emitted/*')
printf '%s\0' "${files[@]}" | xargs -0 -P 2 -n 1 "$tool" --quiet -p "$database" 2>/dev/null
