#!/usr/bin/env bash
# readme_pictures.sh: makes the README's pictures from what is really printed: docs/report.png, the report of
# docs/ஒருபிழை.பொழில், docs/program.png, a program of the guide beside its output, and
# docs/applications.png, pictures of the guide's applications.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/photograph.sh
. scripts/photograph.sh
prepare_photographs fonts-noto-color-emoji
scripts/install_node_packages.sh site

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# frame NAME COLOUR SOURCE...: its edges in the page's colour, and a note of what it was made from.
frame() {
    local name=$1 colour=$2
    shift 2
    convert "$work/$name.png" -trim -bordercolor "$colour" -border 16 +repage -colors 128 \
        -set made-from "$(cat -- "$@" | cksum)" "PNG8:docs/$name.png"
}

style='body{margin:18px;background:#1b1b22!important}pre{color:#eee;font:17px/1.5 "Noto Sans Mono",'
style+='"Noto Sans Tamil","Noto Color Emoji",monospace}'
# A report ends with status 1. aha knows neither bright gold nor dim white.
{ (cd docs && "$root/பொழில்" ஒருபிழை.பொழில்) || true; } |
    sed 's/\x1b\[1;93m/\x1b[33m/g; s/\x1b\[2;37m/\x1b[90m/g' |
    aha --black --title report |
    sed "s|</head>|<style>$style</style></head>|" >"$work/report.html"
photograph report 1150 620
frame report '#1b1b22' docs/ஒருபிழை.பொழில்

program=docs/நிரல்கள்/07/சீட்டு
node site/picture.mjs "$program" >"$work/program.html"
photograph program 1200 700
frame program '#fcfbf8' "$program.பொழில்" "$program.out"

applications=()
for name in 16/தேநீர்க்கடை 17/உணவகம் 16/கோலம்; do applications+=("docs/நிரல்கள்/$name.png"); done
convert "${applications[@]}" -resize x420 -bordercolor '#dedbd1' -border 1 -bordercolor '#fcfbf8' -border 12x0 \
    +append -colors 256 -set made-from "$(cat -- "${applications[@]}" | cksum)" PNG8:docs/applications.png
