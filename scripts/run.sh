#!/usr/bin/env bash
# run.sh FILE [OPTION...]: builds the compiler if need be, then compiles and runs FILE, a path from
# where you stand. The options are the compiler's own.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"

[ $# -gt 0 ] || refuse "எந்த நிரலை இயக்க வேண்டும்? பயன்பாடு: scripts/run.sh கோப்பு.பொழில்"
[ -e "$1" ] || refuse "'$1' என்ற கோப்பு இல்லை."
[ ! -d "$1" ] || refuse "'$1' ஒரு கோப்புறை, நிரல் அல்ல."
[[ "$1" == *.பொழில் ]] || refuse "'$1': நிரலின் பெயர் .பொழில் என முடிய வேண்டும்."

declare -A looked_at

# holds_application FILE: whether an application stands in it or in a module that it imports.
holds_application() {
    local module
    [ -f "$1" ] && [ -r "$1" ] && [ -z "${looked_at[$1]:-}" ] || return 1
    looked_at[$1]=1
    ! grep -qE '^[[:space:]]*வலைதளம்' -- "$1" || return 0
    while IFS= read -r module; do
        [[ "$module" == *.பொழில் || "$module" == *.pozhil ]] || module+=.பொழில்
        ! holds_application "$module" || return 0
    done < <(sed -nE 's/^[[:space:]]*நூஇறக்கி[[:space:]]*"([^"]+)".*/\1/p' -- "$1")
    return 1
}

# Only a web application needs the web's tools.
takes_web_road() {
    local argument
    for argument in "$@"; do
        case "$argument" in
            --வலை) return 0 ;;
            *.பொழில்) ! holds_application "$argument" || return 0 ;;
        esac
    done
    return 1
}

"$root/scripts/build_release.sh"
if takes_web_road "$@"; then
    "$root/scripts/setup_web.sh"
    directory=$(cd "$(dirname "$1")" && pwd)
    case "$directory/" in
        "$root/examples/web/"*) "$root/scripts/example_fonts.sh" "$directory" ;;
    esac
fi
exec "$root/பொழில்" "$@"
