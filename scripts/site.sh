#!/usr/bin/env bash
# site.sh [FOLDER [DOCUMENTS]]: makes the site of all documents in FOLDER (build/site), as HTML that needs
# neither server nor net: FOLDER/index.html is its first page. DOCUMENTS is a folder in the shape of this
# checkout whose documents are shown in the place of its own.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

folder=$(realpath -m "${1:-$root/build/site}")
documents=$(realpath "${2:-$root}")
mark=.பொழில்-தளம்

# What is written anew is replaced whole, so nobody's own files may lie there.
if [ -e "$folder" ] && [ ! -e "$folder/$mark" ] && [ -n "$(ls -A "$folder")" ]; then
    refuse "'$folder' கோப்புறையில் வேறு கோப்புகள் உள்ளன. வெற்றுக் கோப்புறை ஒன்றின் பெயரைக் கொடு."
fi
"$root/scripts/install_node_packages.sh" site

made=$folder.new
rm -rf "$made"
mkdir -p "$(dirname "$folder")"
cd "$root/site"
run_quietly "தளத்தை உருவாக்க முடியவில்லை." env POZHIL_SITE_DOCUMENTS="$documents" \
    node_modules/.bin/eleventy --quiet --output="$(realpath -m --relative-to=. "$made")"
: >"$made/$mark"
rm -rf "$folder"
mv "$made" "$folder"
say "📖 $folder/index.html"
