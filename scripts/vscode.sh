#!/usr/bin/env bash
# vscode.sh [FOLDER]: packs the extension for VS Code as FOLDER/pozhil.vsix (build/editors).
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

folder=$(realpath -m -- "${1:-$root/build/editors}")
mkdir -p -- "$folder" 2>/dev/null || refuse "'$folder' கோப்புறையை உருவாக்க முடியவில்லை."
"$root/scripts/install_node_packages.sh" editors/vscode

# What goes into the package and nothing else: the grammar from its own place, the code in one file.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$root/editors/vscode"
cp language-configuration.json package.json snippets.json README.md ../textmate/pozhil.tmLanguage.json "$work"
node draw_icon.mjs "$work/icon.png"
run_quietly "நீட்சியின் நிரலைச் சேர்க்க முடியவில்லை (esbuild)." \
    node_modules/.bin/esbuild extension.js --bundle --minify --platform=node --target=node18 \
    --external:vscode --outfile="$work/extension.js"

packer=$PWD/node_modules/.bin/vsce
package=$work/pozhil.vsix
log=$work/log
cd "$work"
"$packer" package --no-dependencies --allow-missing-repository --skip-license --out "$package" \
    >"$log" 2>&1 </dev/null || { cat "$log" >&2; refuse "நீட்சியைப் பொதிய முடியவில்லை (vsce)."; }
if grep -i warn "$log" >&2; then refuse "நீட்சியின் பொதியில் குறை உள்ளது (vsce)."; fi
mv -f -- "$package" "$folder/pozhil.vsix" || refuse "'$folder' கோப்புறையில் எழுத முடியவில்லை."
say "🧩 $folder/pozhil.vsix"
