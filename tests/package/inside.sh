#!/usr/bin/env bash
# inside.sh CHECKOUT: what package_test.sh does within the root of its own.
set -euo pipefail
export LC_ALL=C.UTF-8
unset TMPDIR # it may lie where nothing is seen

fail() {
    echo "failed: $*" >&2
    exit 1
}

# has TEXT PATTERN WHAT
has() { grep -q -- "$2" <<<"$1" || fail "$3: $1"; }

[ -z "$(ls -A "$1")" ] || fail "the checkout is seen"
# Pages of all other packages needn't be indexed for ours to be found.
rm -f /var/lib/man-db/auto-update
dpkg -i /tmp/package/*.deb
[ -f /usr/lib/pozhil/உள்ளடக்கம்/nanovg/iostream.gch ] || fail "no header was warmed"
[ -f /usr/lib/pozhil/திரட்டு/warmed_web/fits ] || fail "nothing was prepared for em++"
useradd --create-home learner

cat >/tmp/package/use.sh <<'USE'
set -euo pipefail
cd "$HOME"
printf 'நூஇறக்கி "தொகுப்புகள்/எண்/எண்"\nஅச்சிடு("மீதி ", எண்_மீபொவ(12, 18))\n' >நிரல்.பொழில்
pozhil நிரல்.பொழில்
பொழில்-துணை இயக்கு --quiet நிரல்.பொழில்
pozhil-thunai explain if
man -w பொழில் pozhil-thunai
USE
said=$(su learner -c 'bash /tmp/package/use.sh' 2>&1) || fail "an ordinary user: $said"
[ "$(grep -c '^மீதி 6$' <<<"$said")" -eq 2 ] || fail "the program's words: $said"
has "$said" 'எனில்' "explain"
has "$said" '/man1/' "the manual"

# Moved as a whole it works from there, the library too.
cp -r /usr/lib/pozhil /opt/moved
said=$(su learner -c 'cd && /opt/moved/பொழில் நிரல்.பொழில்' 2>&1) || fail "moved: $said"
has "$said" '^மீதி 6$' "moved"

# An editor knows the language by itself.
known=$(su learner -c 'cd && nvim --headless "+echo &filetype" +qa! நிரல்.பொழில்' 2>&1)
has "$known" 'pozhil' "Neovim"

# Completion offers commands and sources.
cat >/tmp/package/complete.sh <<'COMPLETE'
cd "$HOME" && . /usr/share/bash-completion/completions/pozhil
COMP_WORDS=(pozhil-thunai exp)
COMP_CWORD=1
_pozhil_thunai pozhil-thunai exp
echo "${COMPREPLY[*]}"
COMPLETE
offered=$(su learner -c 'bash /tmp/package/complete.sh' 2>/dev/null)
[ "$offered" = explain ] || fail "completion: $offered"

# An application is built, served, and what the browser asks for is there.
cat >/tmp/package/application.sh <<'APPLICATION'
cd "$HOME" && pozhil-thunai new --web கடை && cd கடை
exec pozhil
APPLICATION
su learner -c 'exec bash /tmp/package/application.sh' >/tmp/application.log 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null || true' EXIT
for _ in $(seq 240); do
    curl -sf -o /tmp/index.wasm http://127.0.0.1:6931/index.wasm && break
    kill -0 "$server" 2>/dev/null || fail "the application: $(cat /tmp/application.log)"
    sleep 0.5
done
[ "$(head -c 4 /tmp/index.wasm | tr -d '\0')" = asm ] || fail "no program: $(cat /tmp/application.log)"
page=$(curl -sf http://127.0.0.1:6931/)
has "$page" 'canvas' "the page"

dpkg -r pozhil
[ ! -e /usr/lib/pozhil ] || fail "left behind: $(find /usr/lib/pozhil)"
echo "the package works"
