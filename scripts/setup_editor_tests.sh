#!/usr/bin/env bash
# setup_editor_tests.sh: installs what the tests of the language server speak to it with: Neovim, Node, the
# packages of its protocol. With nothing to do it takes a fraction of a second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"
# shellcheck source=scripts/node_packages.sh
. "$root/scripts/node_packages.sh"

packages=()
command -v nvim >/dev/null || packages+=(neovim)
command -v node >/dev/null || packages+=(nodejs)
command -v npm >/dev/null || packages+=(npm)
[ ${#packages[@]} -eq 0 ] || "$root/scripts/install_packages.sh" "${packages[@]}"
install_node_packages tests/language_server
