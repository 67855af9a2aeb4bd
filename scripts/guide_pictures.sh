#!/usr/bin/env bash
# guide_pictures.sh [NAME...]: builds the applications of the guide, opens them in Chromium, and makes their
# pictures in docs/நிரல்கள் anew: those of the names, such as 15/வணக்கம், or all.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
scripts/build_release.sh
scripts/setup_web.sh
scripts/setup_browser_tests.sh

say "📷 வழிகாட்டியின் செயலிகள் படம் எடுக்கப்படுகின்றன..."
POZHIL_EXECUTABLE_DIR="$root" node tests/browser/support/photograph_guide.mjs "$@" ||
    refuse "வழிகாட்டியின் செயலிகளைப் படம் எடுக்க முடியவில்லை."
