#!/usr/bin/env bash
# package_test.sh BUILD: makes the package, looks at it with lintian, installs it into a root in which
# nothing of this checkout is seen, and uses it there as an ordinary user: a program, an import, an
# application, the manual, completion. To be started in namespaces of its own (unshare --mount --net).
set -euo pipefail
export LC_ALL=C.UTF-8
build=$1
tests=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
checkout=$(CDPATH="" cd "$tests/../.." && pwd)

place=$(mktemp -d)
trap 'umount --recursive --lazy "$place" 2>/dev/null; rmdir "$place"' EXIT
if ! { mount -t tmpfs none "$place" && mkdir "$place"/{upper,work,root} && mount -t overlay overlay \
    -o "lowerdir=/,upperdir=$place/upper,workdir=$place/work" "$place/root"; } 2>/dev/null; then
    echo "no root of its own can be had here" >&2
    exit 77
fi
root=$place/root

POZHIL_BUILD=$build "$checkout/scripts/package.sh" "$place/package"
package=$(ls "$place"/package/pozhil_*.deb)
lintian --fail-on error "$package"

# The package's number is the one that the compiler tells.
version=$(dpkg-deb -f "$package" Version)
"$build/bin/பொழில்" --பதிப்பு | grep -F "மு-பதிப்பு - $version" >/dev/null ||
    { echo "version $version isn't the compiler's" >&2; exit 1; }

mount --bind /proc "$root/proc"
mount --bind /dev "$root/dev"
mount -t tmpfs none "$root/tmp" && chmod 1777 "$root/tmp"
ip link set lo up
mkdir "$root/tmp/package" && cp "$package" "$tests/inside.sh" "$root/tmp/package"
# Where the checkout lies nothing is left.
mkdir -p "$root$checkout"  # it may lie where another folder was laid over
mount -t tmpfs none "$root$checkout"
chroot "$root" bash /tmp/package/inside.sh "$checkout"
