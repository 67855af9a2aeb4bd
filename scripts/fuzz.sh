#!/usr/bin/env bash
# fuzz.sh [SECONDS]: feeds scanner, parser and generator, the companion, and the language server with made-up
# sources under the address and undefined-behaviour sanitizers, starting from the test programs. All three run
# at once, as long as takes SECONDS of processor time together. Tells how many inputs were tried; fails at a
# crash, hang, leak or broken promise and keeps the input that caused it in build/fuzz/findings.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh
seconds=${1:-60}
[[ "$seconds" =~ ^[1-9][0-9]*$ ]] || refuse "எத்தனை வினாடிகள்? பயன்பாடு: scripts/fuzz.sh வினாடிகள்"

scripts/install_packages.sh g++ cmake ninja-build clang libclang-rt-dev libgtest-dev nlohmann-json3-dev
configure sanitize
run_quietly "சோதனை நிரலைக் கட்ட முடியவில்லை." cmake --build --preset sanitize --target fuzzers

corpus="$root/build/fuzz/corpus"
seeds="$root/build/fuzz/seeds"
findings="$root/build/fuzz/findings"
mkdir -p "$corpus" "$findings"
rm -rf "$seeds"
mkdir "$seeds"
# All of them take the fuzzers half a minute: of a short run's time most is to go into what they make up.
find tests examples தொகுப்புகள் -name '*.பொழில்' -size -16k -print0 | xargs -0 sha1sum |
    sort -u -k 1,1 | shuf -n $((40 * seconds)) | while read -r sum file; do cp "$file" "$seeds/$sum"; done

# An empty directory: an import that a made-up source names finds nothing there.
empty=$(mktemp -d)
logs=$(mktemp -d)
trap 'rm -rf "$empty" "$logs"' EXIT

# run_fuzzer NAME SECONDS: what takes two minutes hangs; a busy machine can need one for a second of work.
run_fuzzer() {
    local fuzzer status=0 tried log="$logs/$1"
    fuzzer=$(find "$root/build/sanitize" -name "$1" -type f | head -n 1)
    (cd "$empty" && "$fuzzer" -max_total_time="$2" -timeout=120 -rss_limit_mb=4096 \
        -max_len=4096 -dict="$root/tests/fuzz/words.dict" -print_final_stats=1 \
        -artifact_prefix="$findings/" "$corpus" "$seeds") >"$log" 2>&1 || status=$?

    tried=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    if [ "$status" -ne 0 ]; then
        tail -n 60 "$log" >&2
        refuse "ஒரு குறை கண்டறியப்பட்டது; உள்ளீடு build/fuzz/findings-இல் உள்ளது."
    fi
    grep -E 'DONE' "$log" | tail -n 1
    echo "fuzz: $1: ${tried:-0} inputs in $2 s, nothing found"
    [ "${tried:-0}" -gt 0 ] || refuse "எந்த உள்ளீடும் சோதிக்கப்படவில்லை."
}

cores=$(nproc)
[ "$cores" -le 3 ] || cores=3
share=$(((seconds + cores - 1) / cores))
export root empty logs corpus seeds findings
export -f run_fuzzer refuse
printf '%s\0' front_end_fuzzer companion_fuzzer language_server_fuzzer |
    xargs -0 -P 3 -I NAME bash -c 'set -euo pipefail; run_fuzzer NAME '"$share"
