#!/usr/bin/env bash
# web_step.sh [RUNS]: the processor time of the em++ step of a one-text application as the compiler
# starts it, beside the same command in a bare environment: in turns, the best of RUNS (5). Prints
# both and whether the aim holds; the status is 1 if it doesn't.
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
aim=0.60
runs=${1:-5}

scripts/build_release.sh
scripts/setup_web.sh
# shellcheck source=bench/background.sh
. bench/background.sh

# By its own path: a stand-in found first would add its start to both.
python=$(python3 -c 'import sys; print(sys.executable)')
unset EMCC_CFLAGS

# What em++ starts notes its words and the flags of its environment instead of building.
mkdir "$work/bin" "$work/out"
cat >"$work/bin/python" <<EOF
#!/bin/sh
shift
printf '%s' "\$EMCC_CFLAGS" >"$work/flags"
printf '%s\n' "\$@" >"$work/new"
mv "$work/new" "$work/words"
EOF
printf '#!/bin/sh\n' >"$work/bin/xdg-open"
chmod +x "$work"/bin/*
cat >"$work/a.பொழில்" <<'EOF'
வலைதளம் அளவை(
    தலைமை(
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        உரை("வணக்கம்")
    )
    வரையறை(
        எண்ணிக்கை = 0
    )
)
EOF
(
    cd "$work"
    PATH="$work/bin:$PATH" TMPDIR="$work" EMSDK_PYTHON="$work/bin/python" exec "$root/பொழில்" a.பொழில்
) >"$work/said" 2>&1 &
background=$!
for _ in $(seq 600); do
    [ ! -f "$work/words" ] || break
    sleep 0.1
done
[ -f "$work/words" ] || refuse "em++ தொடங்கவில்லை: $(tail -n 1 "$work/said")"
mapfile -t words <"$work/words"
words[-1]="$work/out/index.js" # behind -o
flags=$(cat "$work/flags")

# seconds COMMAND...: the processor time of one run.
seconds() {
    local TIMEFORMAT='%U %S' spent
    spent=$({ time "$@" >"$work/said" 2>&1; } 2>&1) || refuse "em++ தவறியது: $(tail -n 1 "$work/said")"
    awk '{ print $1 + $2 }' <<<"$spent"
}
least() { sort -n "$work/$1" | head -n 1; }

export EMSDK_PYTHON="$python"
for _ in $(seq "$runs"); do
    seconds env EMCC_CFLAGS="$flags" em++ "${words[@]}" >>"$work/ours"
    seconds em++ "${words[@]}" >>"$work/bare"
done

awk -v ours="$(least ours)" -v bare="$(least bare)" -v aim="$aim" 'BEGIN {
    holds = ours <= aim * bare
    printf "em++ step, processor time, s    ours %.2f    bare %.2f\n", ours, bare
    text = "em++ step of a one-text application, beside a bare environment"
    printf "%s %6.2fx  aim %.2fx  %s\n", text, ours / bare, aim, holds ? "✔" : "✗"
    exit !holds
}'
