#!/usr/bin/env bash
# report_picture.sh: makes docs/report.png, the picture of a report in the README, from what the
# compiler really prints for docs/ஒருபிழை.பொழில்.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
scripts/build_release.sh
scripts/install_packages.sh aha chromium fonts-noto-core fonts-noto-mono fonts-noto-color-emoji imagemagick

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
style='body{margin:18px;background:#1b1b22!important}pre{color:#eee;font:17px/1.5 "Noto Sans Mono",'
style+='"Noto Sans Tamil","Noto Color Emoji",monospace}'
# A report ends with status 1. aha knows neither bright gold nor dim white.
{ (cd docs && "$root/பொழில்" ஒருபிழை.பொழில்) || true; } |
    sed 's/\x1b\[1;93m/\x1b[33m/g; s/\x1b\[2;37m/\x1b[90m/g' |
    aha --black --title report |
    sed "s|</head>|<style>$style</style></head>|" >"$work/report.html"
chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync \
    --user-data-dir="$work/profile" --hide-scrollbars --force-device-scale-factor=1 \
    --window-size=1150,620 --screenshot="$work/report.png" "file://$work/report.html" \
    >/dev/null 2>&1 || refuse "படம் எடுக்க முடியவில்லை (chromium)."
convert "$work/report.png" -trim -bordercolor '#1b1b22' -border 16 +repage \
    -colors 64 PNG8:docs/report.png
