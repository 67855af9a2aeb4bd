#!/usr/bin/env bash
# package_test.sh BUILD: makes the package, looks at it with lintian, installs it into a root in which
# nothing of this checkout is seen, and uses it there as an ordinary user: a program, an import, an
# application, the manual, completion. To be started in namespaces of its own (unshare --mount --net).
set -euo pipefail
export LC_ALL=C.UTF-8
build=$1
tests=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
checkout=$(CDPATH="" cd "$tests/../.." && pwd)

if ! { mount -t tmpfs none /mnt && mkdir /mnt/{upper,work,root} &&
    mount -t overlay overlay -o lowerdir=/,upperdir=/mnt/upper,workdir=/mnt/work /mnt/root; } 2>/dev/null; then
    echo "no root of its own can be had here" >&2
    exit 77
fi
root=/mnt/root

POZHIL_BUILD=$build "$checkout/scripts/package.sh" /mnt/package
package=$(ls /mnt/package/pozhil_*.deb)
lintian --fail-on error "$package"

# The package's number is the one that the compiler tells.
version=$(dpkg-deb -f "$package" Version)
"$build/bin/பொழில்" --பதிப்பு | grep -qF "மு-பதிப்பு - $version" ||
    { echo "version $version isn't the compiler's" >&2; exit 1; }

mount --bind /proc "$root/proc"
mount --bind /dev "$root/dev"
mount -t tmpfs none "$root/tmp" && chmod 1777 "$root/tmp"
ip link set lo up
mkdir "$root/tmp/package" && cp "$package" "$tests/inside.sh" "$root/tmp/package"
# Where the checkout lies nothing is left.
mount -t tmpfs none "$root$checkout"
chroot "$root" bash /tmp/package/inside.sh "$checkout"
