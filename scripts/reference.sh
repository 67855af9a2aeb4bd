#!/usr/bin/env bash
# reference.sh: makes the pages and pictures of docs/குறிப்பேடு anew, from the compiler's tables, the
# companion's descriptions and the guide's chapters.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh

configure release
run_quietly "குறிப்பேட்டின் கருவியைக் கட்ட முடியவில்லை." cmake --build build/release --target reference_pages
pages=$(build/release/reference_pages "$root") || refuse "குறிப்பேட்டை எழுத முடியவில்லை."
say "📖 docs/குறிப்பேடு எழுதப்பட்டது: $pages கோப்புகள்."
