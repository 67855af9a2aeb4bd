#!/usr/bin/env bash
# run.sh [OPTION...] FILE: builds the compiler if need be, then compiles and runs FILE, a path from
# where you stand; without one, முதன்மை.பொழில். The options are the compiler's own.
#
# A console program is started where you stand, a web application in its own folder: there lie its
# assets. See needs_this_folder for the exceptions.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")  # a link may lead here
# shellcheck source=scripts/messages.sh
. "$root/scripts/messages.sh"
# shellcheck source=scripts/private_cache.sh
. "$root/scripts/private_cache.sh"

# read_arguments ARGUMENT...: the last name of a program counts, as for the compiler itself.
read_arguments() {
    local argument other=()
    program='' options=() shows_version=no wants_web=no
    for argument in "$@"; do
        case "$argument" in
            *.பொழில்) program=$argument && continue ;;
            --பதிப்பு | --version | -v) shows_version=yes ;;
            --வலை) wants_web=yes ;;
            -*) ;;
            *) other+=("$argument") ;;
        esac
        options+=("$argument")
    done
    if [ -z "$program" ] && [ ${#other[@]} -gt 0 ]; then program=${other[0]}; fi
    if [ -z "$program" ] && [ -f முதன்மை.பொழில் ]; then program=முதன்மை.பொழில்; fi
}

refuse_what_is_no_program() {
    [ -n "$program" ] ||
        refuse "எந்த நிரலை இயக்க வேண்டும்? பயன்பாடு: scripts/run.sh கோப்பு.பொழில்"
    [ -e "$program" ] || refuse "'$program' என்ற கோப்பு இல்லை."
    [ ! -d "$program" ] || refuse "'$program' ஒரு கோப்புறை, நிரல் அல்ல."
    [[ "$program" == *.பொழில் ]] || refuse "'$program': நிரலின் பெயர் .பொழில் என முடிய வேண்டும்."
}

declare -A looked_at
modules=()

# holds_application FILE: whether an application stands in it or in a module that it imports. Notes
# the modules.
holds_application() {
    local module found=1
    [ -f "$1" ] && [ -r "$1" ] && [ -z "${looked_at[$1]:-}" ] || return 1
    looked_at[$1]=1
    ! grep -qE '^[[:space:]]*வலைதளம்' -- "$1" || found=0
    while IFS= read -r module; do
        [[ "$module" == *.பொழில் || "$module" == *.pozhil ]] || module+=.பொழில்
        modules+=("$module")
        if [ -e "$module" ] || [[ "$module" == /* ]]; then
            ! holds_application "$module" || found=0
        else
            ! holds_application "$beside/$module" || found=0
        fi
    done < <(sed -nE 's/^[[:space:]]*நூஇறக்கி[[:space:]]*"([^"]+)".*/\1/p' <"$1")
    return $found
}

takes_web_road() {
    ! holds_application "$program" || return 0
    [ "$wants_web" = yes ]
}

# stands_only_here NAME: in this folder and not beside the program.
stands_only_here() { [[ "$1" != /* ]] && [ -e "$1" ] && [ ! -e "$beside/$1" ]; }

# needs_this_folder: whether the program has to be started where you stand: only here stand assets
# or a module (one of the library is found from everywhere), or beside it nothing may be written.
needs_this_folder() {
    local module
    ! stands_only_here assets || return 0
    for module in "${modules[@]}"; do
        if stands_only_here "$module" && [ ! "$module" -ef "$root/$module" ]; then return 0; fi
    done
    [ ! -w "$beside" ]
}

# choose_folder: where the compiler is started for a web application. It looks there for assets and
# modules, serves its files and makes வெளியீடு.
choose_folder() {
    [ ! "$beside" -ef . ] && ! needs_this_folder || return 0
    cd -- "$beside"
    program=${program##*/}
}

# A page without its fonts warns, and measures buttons by no font, but runs.
give_fonts() {
    "$root/scripts/example_fonts.sh" . ||
        say "▷ எழுத்துருக்கள் இல்லாமல் தொடர்கிறது: பொத்தான்களின் அகலம் பொருந்தாமல் போகலாம்"
}

# tell_findings: what the companion finds in the program, ahead of the compiler's own words. It never
# stops the run; a companion that is missing or breaks down has found nothing.
tell_findings() {
    local companion="$root/பொழில்-துணை" file=$program
    [ -x "$companion" ] || return 0
    [[ "$file" != --* ]] || file=./$file
    # Findings go to our standard error, by which it chooses colours. What the shell says of one that
    # breaks down goes nowhere, as do its own complaints.
    { "$companion" check "$file" 1>&3 2>/dev/null </dev/null || true; } 3>&2 2>/dev/null
}

unset CDPATH
read_arguments "$@"
[ "$shows_version" = yes ] || refuse_what_is_no_program
beside=$(dirname -- "$program")
use_own_cache
"$root/scripts/build_release.sh"
if [ "$shows_version" = no ] && takes_web_road; then
    "$root/scripts/setup_web.sh"
    choose_folder
    give_fonts
fi
[ "$shows_version" = yes ] || tell_findings
exec "$root/பொழில்" "${options[@]}" ${program:+"$program"}
