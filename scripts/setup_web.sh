#!/usr/bin/env bash
# setup_web.sh: what web applications are built with: em++, NanoVG and NanoSVG, their headers under
# உள்ளடக்கம்/nanovg, the two objects in திரட்டு that every application links, and what warm_web.sh
# prepares. Objects are remade when em++ or a source changes. With nothing to do it takes a tenth of
# a second.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/private_apt.sh
. scripts/private_apt.sh

headers="$root/உள்ளடக்கம்/nanovg"
objects="$root/திரட்டு"
sources="$root/build/nanovg"  # NanoVG's source, and the stb headers that it needs
own_sources=(src/error_handler.cpp உள்ளடக்கம்/error_handler.h)
stamp="$objects/web.stamp"

# By the time of the inode: packages carry the time at which they were made, not installed.
identity() {
    local compiler
    compiler=$(readlink -f "$(command -v em++)") || return 1
    stat -c '%n %s %Z' "$compiler" "${compiler%/*}/emscripten-version.txt" 2>/dev/null || true
    cksum scripts/setup_web.sh "${own_sources[@]}"
    (cd "$sources" && cksum -- *)  # by name, not by path: the checkout may move
}

is_fresh() {
    command -v em++ >/dev/null && [ -f "$stamp" ] || return 1
    [ -f "$objects/error_handler_web.o" ] && [ -f "$objects/nanovg_web.o" ] || return 1
    local header
    for header in nanovg nanovg_gl nanovg_gl_utils nanosvg nanosvgrast; do
        [ -f "$headers/$header.h" ] || return 1
    done
    [ "$(identity 2>/dev/null)" = "$(cat "$stamp")" ]
}

install_compiler() {
    command -v em++ >/dev/null || scripts/install_packages.sh emscripten
    command -v em++ >/dev/null || refuse "em++ இல்லை. emscripten-ஐ நிறுவி மீண்டும் இயக்கவும்."
}

has_sources() {
    [ -f "$sources/nanovg.c" ] && [ -f "$sources/fontstash.h" ] &&
        [ -f "$sources/stb_image.h" ] && [ -f "$sources/stb_truetype.h" ] &&
        [ -f "$headers/nanovg.h" ] && [ -f "$headers/nanosvg.h" ]
}

# The steps below run where a failure alone doesn't stop them, so each is tied to the next.
fetch_packages() {
    private_apt_open "$work/apt" && cd "$work" &&
        private_apt_get download libnanosvg-dev libstb-dev &&
        private_apt_get source --tar-only nanovg &&
        mkdir unpacked && tar -xf nanovg_*.orig.tar.* -C unpacked &&
        for package in *.deb; do dpkg -x "$package" unpacked || return 1; done
}

# Headers that a program includes go to one place, what is compiled once to another.
place_sources() {
    local from
    from=$(dirname "$(find "$work/unpacked" -name nanovg.c -print -quit)") &&
        mkdir -p "$headers" "$sources" &&
        cp "$from"/nanovg.{c,h} "$from"/fontstash.h "$sources" &&
        cp "$work"/unpacked/usr/include/stb/stb_{image,truetype}.h "$sources" &&
        cp "$from"/nanovg{,_gl,_gl_utils}.h "$headers" &&
        cp "$work"/unpacked/usr/include/nanosvg/nanosvg{,rast}.h "$headers"
}

fetch_sources() {
    command -v xz >/dev/null || scripts/install_packages.sh xz-utils
    say "📥 NanoVG, NanoSVG மூலங்கள் பெறப்படுகின்றன..."
    run_quietly "NanoVG, NanoSVG மூலங்களைப் பெற முடியவில்லை (இணைய இணைப்பையும் apt மூலங்களையும் பாருங்கள்)." \
        fetch_packages
    cd "$root"
    run_quietly "பெற்ற NanoVG, NanoSVG மூலங்கள் எதிர்பார்த்தபடி இல்லை." place_sources
}

make_objects() {
    local new="$objects/web.new"
    mkdir -p "$new" &&
        em++ -c src/error_handler.cpp -o "$new/error_handler_web.o" -std=c++17 -Iஉள்ளடக்கம் &&
        em++ -x c -c "$sources/nanovg.c" -o "$new/nanovg_web.o" -O2 -I"$sources" \
            "-fmacro-prefix-map=$sources/=" &&
        mv -f "$new"/*.o "$objects" && rmdir "$new"
}

# Without what it prepares applications are built all the same, only slower.
warm() { scripts/warm_web.sh || true; }

if is_fresh; then
    warm
    exit
fi
{ [ -w "$objects" ] && mkdir -p build 2>/dev/null && [ -w build ]; } ||
    refuse "வலைதளங்களுக்கான துணைக் கோப்புகள் இல்லை; '$root' கோப்புறையில் எழுத உமக்கு உரிமை இல்லை."
exec 8>build/web.lock
flock 8  # two first runs at a time would build over each other
if is_fresh; then
    warm
    exit
fi

work=$(mktemp -d)
trap 'rm -rf "$work" "$objects/web.new"' EXIT
rm -f "$stamp"
install_compiler
has_sources || fetch_sources
say "🔨 வலைதளங்களுக்கான துணைக் கோப்புகள் உருவாக்கப்படுகின்றன..."
run_quietly "வலைதளங்களுக்கான துணைக் கோப்புகளை உருவாக்க முடியவில்லை (em++)." make_objects
identity >"$stamp"
warm
