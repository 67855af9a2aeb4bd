#!/usr/bin/env bash
# run.sh: the language server in Neovim's own client, without a screen.
set -euo pipefail
here=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$here"/*.பொழில் "$work"
cd "$work"
HOME=$work XDG_CONFIG_HOME=$work XDG_DATA_HOME=$work XDG_STATE_HOME=$work XDG_CACHE_HOME=$work \
    timeout 200 nvim --headless --clean -n -c "luafile $here/client.lua" >"$work/log" 2>&1 ||
    { cat "$work/log" >&2; exit 1; }
grep -q '^all right$' "$work/log" || { cat "$work/log" >&2; exit 1; }
