#!/usr/bin/env bash
# build_release.sh: the compiler at the root, with all that a console program needs. Installs what
# is missing. With nothing to do it takes a fraction of a second.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh

packages=()
command -v g++ >/dev/null || packages+=(g++)
command -v cmake >/dev/null || packages+=(cmake)
command -v ninja >/dev/null || packages+=(ninja-build)
[ ${#packages[@]} -eq 0 ] || scripts/install_packages.sh "${packages[@]}"

mkdir -p build
exec 9>build/lock
flock 9  # two first runs at a time would build over each other

[ -x பொழில் ] || say "🔨 பொழில் முதன்முறையாகக் கட்டப்படுகிறது, சற்றுப் பொறுங்கள்..."
[ -f build/release/build.ninja ] ||
    run_quietly "பொழில் கட்டமைப்பைத் தொடங்க முடியவில்லை (cmake)." cmake --preset release
run_quietly "பொழிலைக் கட்ட முடியவில்லை." cmake --build --preset release --target pozhil
run_quietly "பொழிலின் துணைக் கோப்புகளை உருவாக்க முடியவில்லை." scripts/prepare_objects.sh
