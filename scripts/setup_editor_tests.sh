#!/usr/bin/env bash
# setup_editor_tests.sh: installs what the tests of the language server speak to it with: Neovim, Node, the
# packages of its protocol. With nothing to do it takes a fraction of a second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
command -v nvim >/dev/null || "$root/scripts/install_packages.sh" neovim
"$root/scripts/install_node_packages.sh" tests/language_server
