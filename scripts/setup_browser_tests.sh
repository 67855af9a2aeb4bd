#!/usr/bin/env bash
# setup_browser_tests.sh: installs what the tests in the browser need: Chromium with Mesa to draw, Tamil
# fonts, Node, the driver package, and a database with the scripts that pages speak to it by. With
# nothing to do it takes a fraction of a second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"
# shellcheck source=scripts/node_packages.sh
. "$root/scripts/node_packages.sh"

packages=(fonts-noto-core libegl1 libgl1-mesa-dri)
command -v chromium >/dev/null || packages+=(chromium)
command -v node >/dev/null || packages+=(nodejs)
command -v npm >/dev/null || packages+=(npm)
"$root/scripts/install_packages.sh" "${packages[@]}"

install_node_packages tests/browser
install_node_packages tests/browser/database_peer
