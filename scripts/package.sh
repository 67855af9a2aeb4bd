#!/usr/bin/env bash
# package.sh [FOLDER]: makes the package for Debian, pozhil_VERSION_ARCHITECTURE.deb, in FOLDER (here if
# none is named): compiler, companion, module library, and what web applications are built with. Tests
# name a build that stands ready by POZHIL_BUILD.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
folder=$(realpath -m -- "${1:-.}")
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh

# The packages whose libraries the executables need, as dpkg names them.
library_packages() {
    local work
    work=$(mktemp -d)
    mkdir "$work/debian"
    printf 'Source: pozhil\n\nPackage: pozhil\nArchitecture: any\n' >"$work/debian/control"
    (cd "$work" && dpkg-shlibdeps -O -e"$commands/பொழில்" -e"$commands/பொழில்-துணை") |
        sed -n 's/^shlibs:Depends=//p'
    rm -rf "$work"
}

make_package() {
    local needed
    needed=$(library_packages)
    [ -n "$needed" ] &&
        (cd "$build" && cpack -D "CPACK_DEBIAN_PACKAGE_DEPENDS=$needed, g++ (>= 4:9)")
}

{ mkdir -p -- "$folder" 2>/dev/null && [ -w "$folder" ]; } ||
    refuse "'$folder' கோப்புறையில் எழுத உமக்கு உரிமை இல்லை."
scripts/install_packages.sh g++ cmake ninja-build dpkg-dev file
build=${POZHIL_BUILD:-$root/build/release}
commands=${POZHIL_BUILD:+$build/bin}
commands=${commands:-$root}
if [ -z "${POZHIL_BUILD:-}" ]; then
    scripts/build_release.sh
    scripts/setup_web.sh
fi
# Names of files are Tamil, which the archive's writer takes in such a locale alone.
export LC_ALL=C.UTF-8
rm -f "$build"/*.deb
run_quietly "பொதியை உருவாக்க முடியவில்லை (cpack)." make_package
cp "$build"/*.deb "$folder"
say "✅ பொதி: $(ls -- "$folder"/pozhil_*.deb)"
say "   நிறுவ: sudo apt install $folder/pozhil_*.deb"
