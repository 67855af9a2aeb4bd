#!/usr/bin/env bash
# server.sh [REQUESTS]: the development server under load, on this machine alone: 10,000 requests of
# /version and 10,000 of a file of 5 MB by 20 clients at a time, while 50 connections stay open in
# silence. Prints requests, failures, rate, latency and the server's memory before and after.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh

requests=${1:-10000} clients=20 silent=50 port=6931
scripts/build_release.sh
scripts/install_packages.sh wrk

# shellcheck source=bench/background.sh
. bench/background.sh

# em++ and the browser are not the point here.
mkdir "$work/bin"
printf '#!/bin/sh\nexit 0\n' | tee "$work/bin/em++" >"$work/bin/xdg-open"
chmod +x "$work"/bin/*
printf 'அச்சிடு(1)\n' >"$work/a.பொழில்"
head -c 5000000 /dev/urandom >"$work/five.bin"
(
    cd "$work"
    PATH="$work/bin:$PATH" TMPDIR="$work" exec "$root/பொழில்" --வலை a.பொழில் >output 2>&1
) &
background=$!
for _ in $(seq 100); do
    ! (: <>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || break
    sleep 0.05
done
grep -q "🌍 பிரவுசர்" "$work/output" || refuse "சேவையகம் தொடங்கவில்லை: $(tail -n 1 "$work/output")"

memory() { awk '/^VmRSS/ { print $2 }' "/proc/$background/status"; }

# wrk knows a duration alone: it ends itself, as by Ctrl+C, once all requests are answered.
cat >"$work/count.lua" <<'LUA'
local threads = {}
function setup(thread) table.insert(threads, thread) end
function init(args)
    wanted, size = tonumber(args[1]), tonumber(args[2])
    answered, wrong = 0, 0
end
function response(status, headers, body)
    answered = answered + 1
    if status ~= 200 or #body ~= size then wrong = wrong + 1 end
    if answered == wanted then os.execute("(sleep 0.1; kill -INT $PPID) &") end
end
function done(summary, latency, requests)
    local thread = threads[1]
    local lost = summary.errors.connect + summary.errors.timeout
    io.write(string.format("%d %d %d %.0f %.2f %.2f %.2f\n", thread:get("answered"),
        thread:get("wrong"), lost, summary.requests / (summary.duration / 1e6),
        latency:percentile(50) / 1000, latency:percentile(99) / 1000, latency.max / 1000))
end
LUA

# load NAME PATH SIZE: a row of figures. A time-out or a wrong answer fails the run.
load() {
    local before figures answered wrong lost
    before=$(memory)
    figures=$(timeout 130 wrk -t 1 -c "$clients" -d 120s --timeout 30s -s "$work/count.lua" \
        "http://127.0.0.1:$port$2" -- "$requests" "$3" | tail -n 1)
    # shellcheck disable=SC2086
    printf '%-14s %9s %6s %6s %10s %9s %9s %9s %9s %9s\n' "$1" $figures "$before" "$(memory)"
    read -r answered wrong lost _ <<<"$figures"
    if [ "$answered" -lt "$requests" ] || [ "$wrong$lost" != 00 ]; then
        refuse "விடைகள் தவறின: $figures"
    fi
}

# Keeps the silent connections open, and puts new ones in the place of those dismissed.
hold_silent() {
    local descriptors=() i descriptor
    while true; do
        for ((i = 0; i < silent; i++)); do
            exec {descriptor}<>"/dev/tcp/127.0.0.1/$port" && descriptors+=("$descriptor")
        done
        sleep 8
        for descriptor in "${descriptors[@]}"; do exec {descriptor}>&-; done
        descriptors=()
    done
}

say "⏱ சேவையகம் அளவிடப்படுகிறது..."
hold_silent 2>/dev/null &
holder=$!
trap 'kill "$holder" 2>/dev/null || true; stop_background' EXIT
sleep 0.5
echo "$requests requests each, $clients clients at a time, $silent silent connections"
printf '%-14s %9s %6s %6s %10s %9s %9s %9s %9s %9s\n' \
    path answered wrong lost "per s" "p50 ms" "p99 ms" "max ms" "kB before" "kB after"
load /version /version 1
load "5 MB file" /five.bin 5000000
load /version /version 1
