#!/usr/bin/env bash
# install_packages.sh NAME...: installs those of the named Debian packages that are missing.
set -euo pipefail
# shellcheck source=scripts/messages.sh
. "$(dirname "${BASH_SOURCE[0]}")/messages.sh"

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

missing=()
for name in "$@"; do
    is_installed "$name" || missing+=("$name")
done
[ ${#missing[@]} -gt 0 ] || exit 0

command -v apt-get >/dev/null ||
    refuse "apt-get இங்கு இல்லை. இவற்றை நீங்களே நிறுவி மீண்டும் இயக்கவும்: ${missing[*]}"

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
    # Without a terminal a password can't be asked for.
    [ -t 0 ] || as_root=(sudo -n)
    "${as_root[@]}" true 2>/dev/null ||
        refuse "நிறுவ உரிமை இல்லை (root அல்ல, sudo இல்லை). தேவையானவை: ${missing[*]}"
fi

say "📦 நிறுவப்படுகிறது: ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y -q \
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 "$@" >>"$log" 2>&1 </dev/null
}
# A failed update alone is no reason to stop: the lists that are there may do.
apt update || true
if ! apt install --no-install-recommends "${missing[@]}"; then
    grep '^E:' "$log" | tail -n 3 >&2 || true
    refuse "நிறுவ முடியவில்லை (இணைய இணைப்பைப் பாருங்கள்). தேவையானவை: ${missing[*]}"
fi
