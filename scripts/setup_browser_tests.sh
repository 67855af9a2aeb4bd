#!/usr/bin/env bash
# setup_browser_tests.sh: installs what the tests in the browser need: Chromium without windows, Mesa to draw, Tamil
# fonts, Node, the driver package, a database with the scripts that pages speak to it by, and what makes
# the site; beside these the editors that files are made for. With nothing to do it takes a fraction of a
# second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packages=(fonts-noto-core libegl1 libgl1-mesa-dri)
command -v chromium-headless-shell >/dev/null || packages+=(chromium-headless-shell)
command -v vim >/dev/null || packages+=(vim)
command -v nvim >/dev/null || packages+=(neovim)
"$root/scripts/install_packages.sh" "${packages[@]}"

"$root/scripts/install_node_packages.sh" tests/browser tests/browser/database_peer site editors/vscode
