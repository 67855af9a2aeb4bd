#!/usr/bin/env bash
# setup_browser_tests.sh: installs what the tests in the browser need: Chromium, Tamil fonts, Node
# and the driver package. With nothing to do it takes a fraction of a second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

packages=(fonts-noto-core)
command -v chromium >/dev/null || packages+=(chromium)
command -v node >/dev/null || packages+=(nodejs)
command -v npm >/dev/null || packages+=(npm)
"$root/scripts/install_packages.sh" "${packages[@]}"

cd "$root/tests/browser"
installed=node_modules/.package-lock.json
if [ ! -f "$installed" ] || [ package-lock.json -nt "$installed" ]; then
    run_quietly "உலாவிச் சோதனைக்கான npm தொகுப்பை நிறுவ முடியவில்லை." npm ci --ignore-scripts
    touch "$installed"
fi
