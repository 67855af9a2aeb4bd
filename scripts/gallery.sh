#!/usr/bin/env bash
# gallery.sh: builds the gallery of examples/web, opens it in Chromium, and makes anew the pictures in
# docs/படங்கள்: one of each widget, and one of the gallery's first page for the README.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
scripts/build_release.sh
scripts/setup_web.sh
scripts/setup_browser_tests.sh

say "📷 காட்சியகம் படம் எடுக்கப்படுகிறது..."
POZHIL_EXECUTABLE_DIR="$root" node tests/browser/support/photograph_gallery.mjs ||
    refuse "காட்சியகத்தைப் படம் எடுக்க முடியவில்லை."
