#!/usr/bin/env bash
# install_node_packages.sh FOLDER...: Node, and in each folder of the checkout the npm packages that its
# lockfile names, where they aren't there yet. With nothing to do it takes a fraction of a second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

packages=()
command -v node >/dev/null || packages+=(nodejs)
command -v npm >/dev/null || packages+=(npm)
"$root/scripts/install_packages.sh" "${packages[@]}"

for folder in "$@"; do
    cd "$root/$folder"
    installed=node_modules/.package-lock.json
    if [ ! -f "$installed" ] || [ package-lock.json -nt "$installed" ]; then
        run_quietly "'$folder' வேண்டும் npm தொகுப்புகளை நிறுவ முடியவில்லை." npm ci --ignore-scripts
        touch "$installed"
    fi
done
