#!/usr/bin/env bash
# install.sh [PREFIX]: installs the compiler with its companions and the module library into
# PREFIX/lib/pozhil and the command பொழில் into PREFIX/bin. Without a PREFIX that is /usr/local for
# the superuser and ~/.local for everyone else. What web applications link goes along if it has been
# made: scripts/setup_web.sh makes it.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

if [ "$(id -u)" -eq 0 ]; then prefix=/usr/local; else prefix=${HOME:-}/.local; fi
prefix=$(realpath -m -- "${1:-$prefix}")
{ mkdir -p -- "$prefix" 2>/dev/null && [ -w "$prefix" ]; } ||
    refuse "'$prefix' கோப்புறையில் எழுத உமக்கு உரிமை இல்லை. பயன்பாடு: scripts/install.sh கோப்புறை"

cd "$root"
scripts/build_release.sh
run_quietly "'$prefix' கோப்புறையில் நிறுவ முடியவில்லை." cmake --install build/release --prefix "$prefix"
# What it prepares for em++ knows the folder in which it lies, so it is made there.
installed="$prefix/lib/pozhil"
[ ! -f "$installed/திரட்டு/error_handler_web.o" ] || scripts/warm_web.sh "$installed" || true
say "✅ நிறுவப்பட்டது: $prefix/bin/பொழில்"
