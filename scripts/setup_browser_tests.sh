#!/usr/bin/env bash
# setup_browser_tests.sh: installs what the tests in the browser need: Chromium with Mesa to draw, Tamil
# fonts, Node, the driver package, and a database with the scripts that pages speak to it by. With
# nothing to do it takes a fraction of a second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

packages=(fonts-noto-core libegl1 libgl1-mesa-dri)
command -v chromium >/dev/null || packages+=(chromium)
command -v node >/dev/null || packages+=(nodejs)
command -v npm >/dev/null || packages+=(npm)
"$root/scripts/install_packages.sh" "${packages[@]}"

# install_node_packages FOLDER: the npm packages that its lockfile names, where they aren't there yet.
install_node_packages() {
    cd "$root/$1"
    local installed=node_modules/.package-lock.json
    if [ ! -f "$installed" ] || [ package-lock.json -nt "$installed" ]; then
        run_quietly "உலாவிச் சோதனைக்கான npm தொகுப்பை நிறுவ முடியவில்லை." npm ci --ignore-scripts
        touch "$installed"
    fi
}
install_node_packages tests/browser
install_node_packages tests/browser/database_peer
