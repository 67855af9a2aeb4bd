#!/usr/bin/env bash
# run.sh TEST EDITOR: runs TEST.vim in EDITOR (vim or nvim) without a screen. POZHIL_EDITOR_GRAMMAR is the
# tool that tells what the words of sources are.
set -euo pipefail
here=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(CDPATH="" cd "$here/../../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

export POZHIL_ROOT=$root POZHIL_TEST=$1 POZHIL_TOLD=$work/told POZHIL_FAILURES=$work/failures
export POZHIL_NOTES=$work/notes
export HOME=$work XDG_CONFIG_HOME=$work XDG_DATA_HOME=$work XDG_STATE_HOME=$work XDG_CACHE_HOME=$work
export LC_ALL=C.UTF-8
"$POZHIL_EDITOR_GRAMMAR" words "$root"/examples/{console,web}/*.பொழில் \
    "$root"/src/companion/descriptions/{programs,unprinted}/*.பொழில் >"$POZHIL_TOLD"
status=0
case $2 in
    vim) command=(vim -e -s -N -u NONE -i NONE) ;;
    nvim) command=(nvim --headless -u NONE -i NONE -n) ;;
    *) exit 2 ;;
esac
cd "$work"
timeout 250 "${command[@]}" -S "$here/support.vim" </dev/null >"$work/log" 2>&1 || status=$?
if [ "$status" -ne 0 ] || ! grep -qx 'all right' "$POZHIL_FAILURES"; then
    tail -n 20 "$work/log" >&2
    head -n 40 "$POZHIL_FAILURES" >&2
    exit 1
fi
