# Where the compiler keeps what it builds, to be sourced. It runs nothing out of a cache that
# somebody else could have filled, and on a machine with many users the common name may be taken.
# shellcheck shell=bash

# use_own_cache: leaves the temporary directory as it is if the cache in it is ours, or can be; else
# a private one takes its place.
use_own_cache() {
    local common=${TMPDIR-${TMP-${TEMP-${TEMPDIR-/tmp}}}}
    if is_usable "$common" && keeps_what_is_ours "$common" && is_ours_or_free "$common/Pozhil_Cache"; then return 0; fi
    export TMPDIR=${XDG_CACHE_HOME:-${HOME:-/nonexistent}/.cache}/pozhil
    # It stays from run to run, unless there is no home to keep it in.
    if ! make_private 2>/dev/null || ! is_ours_or_free "$TMPDIR/Pozhil_Cache"; then
        TMPDIR=$(TMPDIR=/tmp mktemp -d)
    fi
}

is_usable() { [ -d "$1" ] && [ -w "$1" ] && [ -x "$1" ]; }

# keeps_what_is_ours DIRECTORY: whether nobody else can take away or replace what is ours in it.
keeps_what_is_ours() {
    { [ -O "$1" ] || [ "$(stat -Lc %u -- "$1")" = 0 ]; } &&
        { [ -k "$1" ] || [ -z "$(find -H "$1" -maxdepth 0 -perm /002)" ]; }
}

is_ours_or_free() {
    [ -e "$1" ] || [ -L "$1" ] || return 0
    [ -d "$1" ] && [ ! -L "$1" ] && [ -O "$1" ] && [ -z "$(find -H "$1" -maxdepth 0 -perm /022)" ]
}

make_private() {
    (umask 077 && mkdir -p "$TMPDIR") && is_usable "$TMPDIR" && is_ours_or_free "$TMPDIR"
}
