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

"$root/scripts/build_release.sh"
exec "$root/பொழில்" "$@"
