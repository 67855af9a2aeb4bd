#!/usr/bin/env bash
# editor_pictures.sh: makes docs/editor_finding.png and docs/editor_completion.png from a real Neovim in a
# terminal, with the companion behind it: a finding beside its line, and a word found by Latin letters.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/photograph.sh
. scripts/photograph.sh
prepare_photographs neovim tmux

work=$(mktemp -d)
terminal=(tmux -L "pozhil-${work##*/}" -f /dev/null)
trap '"${terminal[@]}" kill-server 2>/dev/null || true; rm -rf "$work"' EXIT
export LC_ALL=C.UTF-8 HOME="$work" XDG_CONFIG_HOME="$work" XDG_DATA_HOME="$work" XDG_STATE_HOME="$work"

cat >"$work/மதிப்பெண்.பொழில்" <<'PROGRAM'
மதிப்பெண்கள் = [78, 92, 65]
மொத்தம் = 0
ஒவ்வொன்றாக மதிப்பெண் இல் மதிப்பெண்கள்:
    மொத்தம் = மொத்தம் கூட்டு மதிப்பெண்
அச்சிடு("மொத்தம்: ", மொத்தம்)
அச்சிடு(வர்க்கமூலம்(49))
PROGRAM

screen() { "${terminal[@]}" capture-pane -e -p; }
# wait_for TEXT: until the screen shows it, for half a minute.
wait_for() {
    local _
    for _ in $(seq 150); do
        ! screen | grep -F -- "$1" >/dev/null || return 0
        sleep 0.2
    done
    screen >&2
    refuse "'$1' திரையில் வரவில்லை."
}

# picture NAME: what the terminal shows, as docs/NAME.png.
picture() {
    local style='body{margin:18px;background:#fcfbf8!important}pre{color:#23292a;font:16px/1.6 "Noto Sans Mono",'
    style+='"Noto Sans Tamil",monospace}'
    # Lines behind the text's end show nothing.
    screen | sed '/^\(\x1b\[[0-9;]*m\)*~ *\(\x1b\[[0-9;]*m\)*$/d' | aha --title editor |
        sed "s|</head>|<style>$style</style></head>|" >"$work/$1.html"
    photograph "$1" 1700 620
    convert "$work/$1.png" -trim -bordercolor '#fcfbf8' -border 16 +repage -colors 64 "PNG8:docs/$1.png"
}

# edit FILE: Neovim as a newcomer has it, but for calm colours of signs and menus.
edit() {
    "${terminal[@]}" kill-server 2>/dev/null || true
    "${terminal[@]}" new-session -d -x 150 -y 12 -c "$work" \
        nvim --clean --cmd "set runtimepath^=$root/editors/vim" \
        --cmd "let g:pozhil_companion = '$root/pozhil-thunai'" \
        -c 'set number noruler noshowcmd laststatus=0 completeopt=menuone background=light signcolumn=yes' \
        -c 'highlight clear SignColumn | highlight Pmenu ctermbg=254 ctermfg=235' \
        -c 'highlight PmenuSel ctermbg=29 ctermfg=231' \
        -c 'filetype plugin indent on' -c 'syntax on' "$1"
}

edit மதிப்பெண்.பொழில்
wait_for 'தசம எண்ணை'
picture editor_finding

sed '$d' "$work/மதிப்பெண்.பொழில்" | head -n 2 >"$work/புதிது.பொழில்"
edit புதிது.பொழில்
wait_for 'மொத்தம்'
sleep 1 # the companion starts
"${terminal[@]}" send-keys G o 'achch' C-x C-o
wait_for 'அச்சிடு('
sleep 1
picture editor_completion
