#!/usr/bin/env bash
# example_fonts.sh [DIRECTORY...]: puts the two fonts that every web application opens into
# assets/font of each directory, or of every example, where they are missing: an application's own
# fonts of those names stay. They are fetched once and never committed. Without them an application
# runs all the same and warns.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

store="$root/build/fonts"
tamil=/usr/share/fonts/truetype/noto/NotoSansTamil-Regular.ttf

fetch_coiny() {
    local work
    work=$(mktemp -d) &&
        npm install --prefix "$work" --silent --no-audit --no-fund --ignore-scripts \
            --fetch-retries=1 --fetch-timeout=20000 @expo-google-fonts/coiny &&
        find "$work" -name Coiny_400Regular.ttf -exec cp {} "$store/Coiny-Regular.ttf.new" \; &&
        mv "$store/Coiny-Regular.ttf.new" "$store/Coiny-Regular.ttf"
    local status=$?
    rm -rf "$work"
    return $status
}

fill_store() {
    mkdir -p "$store"
    if [ ! -f "$store/Tamil-Regular.ttf" ]; then
        [ -f "$tamil" ] || "$root/scripts/install_packages.sh" fonts-noto-core
        cp "$tamil" "$store/Tamil-Regular.ttf"
    fi
    [ ! -f "$store/Coiny-Regular.ttf" ] || return 0
    if ! command -v npm >/dev/null; then
        say "▷ npm இல்லை: Coiny எழுத்துரு தவிர்க்கப்பட்டது"
    elif ! fetch_coiny 2>/dev/null; then
        say "▷ Coiny எழுத்துருவைப் பெற முடியவில்லை (இணைய இணைப்பைப் பாருங்கள்)"
    fi
}

directories=("$@")
if [ $# -eq 0 ] && [ -d "$root/examples/web" ]; then
    mapfile -t directories < <(find "$root/examples/web" -name '*.பொழில்' -printf '%h\n' | sort -u)
fi

has_fonts() {
    [ -f "$1/assets/font/Tamil-Regular.ttf" ] && [ -f "$1/assets/font/Coiny-Regular.ttf" ]
}

lacking=()
for directory in "${directories[@]}"; do
    has_fonts "$directory" || lacking+=("$directory")
done
[ ${#lacking[@]} -gt 0 ] || exit 0

fill_store
for directory in "${lacking[@]}"; do
    mkdir -p -- "$directory/assets/font"
    for font in "$store"/*.ttf; do
        name=$directory/assets/font/$(basename "$font")
        [ -f "$name" ] || cp -- "$font" "$name"
    done
    say "🔤 எழுத்துருக்கள் வைக்கப்பட்டன: $(CDPATH="" cd -- "$directory" && pwd)/assets/font"
done
