#!/usr/bin/env bash
# build_release.sh: the compiler at the root, with all that a console program needs. Installs what
# is missing. With nothing to do it takes a fraction of a second. A compiler that stands ready where
# only others may write is taken as it is.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh

may_write_here() {
    [ -w . ] && [ -w திரட்டு ] && [ -w உள்ளடக்கம் ] && mkdir -p build 2>/dev/null &&
        [ -w build ] && { [ ! -e build/lock ] || [ -w build/lock ]; } &&
        { [ ! -e build/release ] || [ -w build/release ]; }
}

stands_ready() { [ -x பொழில் ] && [ -f திரட்டு/error_handler_native_linux.o ]; }

# The companion's language server speaks JSON. The header may lie wherever g++ looks.
has_json_header() {
    [ -f /usr/include/nlohmann/json.hpp ] ||
        printf '#if !__has_include(<nlohmann/json.hpp>)\n#error\n#endif\n' |
            g++ -x c++ -E - >/dev/null 2>&1
}

install_tools() {
    local packages=()
    command -v g++ >/dev/null || packages+=(g++)
    command -v cmake >/dev/null || packages+=(cmake)
    command -v ninja >/dev/null || packages+=(ninja-build)
    has_json_header || packages+=(nlohmann-json3-dev)
    [ ${#packages[@]} -eq 0 ] || scripts/install_packages.sh "${packages[@]}"
}

if ! may_write_here; then
    stands_ready || refuse "பொழில் இன்னும் கட்டப்படவில்லை; '$root' கோப்புறையில் எழுத உமக்கு உரிமை இல்லை." \
        "உமது கோப்புறை ஒன்றில் அதன் நகலை வைத்து இயக்கவும்."
    exit 0
fi
install_tools
exec 9>build/lock
flock 9  # two first runs at a time would build over each other

[ -x பொழில் ] || say "🔨 பொழில் முதன்முறையாகக் கட்டப்படுகிறது, சற்றுப் பொறுங்கள்..."
# The objects need g++ alone, not the compiler: both are made side by side.
run_quietly "பொழிலின் துணைக் கோப்புகளை உருவாக்க முடியவில்லை." scripts/prepare_objects.sh &
objects=$!
trap 'wait "$objects" || true' EXIT
configure release
build_with_progress "பொழிலைக் கட்ட முடியவில்லை." "🔨 பொழில் கட்டப்படுகிறது:" \
    cmake --build --preset release --target pozhil companion
wait "$objects" || exit 1
