#!/usr/bin/env bash
# front_end.sh [RUNS]: the whole front end beside Python's compile() of the same print lines, and its
# time a line at 100,000 lines beside that at 10,000. Each run is a process of its own, as a user's
# is; all take turns, processor time counts, and the best of RUNS. Says whether each aim holds; ends
# with 1 if one doesn't.
[ -n "${BASH_VERSION:-}" ] || exec bash "$0" "$@"
set -euo pipefail
root=$(CDPATH="" cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
# shellcheck source=scripts/messages.sh
. scripts/messages.sh
# shellcheck source=scripts/build_directory.sh
. scripts/build_directory.sh

runs=${1:-7}
few=10000 many=100000
bench=build/bench/bench/bench_front_end

scripts/install_packages.sh python3
configure bench
run_quietly "அளவீட்டு நிரலைக் கட்ட முடியவில்லை." cmake --build build/bench --target bench_front_end
python=$(python3 -c 'import sys; print(sys.executable)')
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The print lines of bench/sources.cpp as Python writes them.
compile_in_python() {
    "$python" - "$many" <<'PYTHON'
import sys
import time

FORMS = (
    'print("வணக்கம், உலகம்! இது வரி எண்: ", 42)\n',
    "print(123456, ' ', 3.14159)\n",
    'print(True, " அல்லது ", False)\n',
    'print("அடைப்புக்குறி இல்லாமலும் எழுதலாம்")\n',
)
source = "".join(FORMS[i % 4] for i in range(int(sys.argv[1])))
start = time.process_time()
code = compile(source, "bench.py", "exec")
del code
print((time.process_time() - start) * 1000)
PYTHON
}

for _ in $(seq "$runs"); do
    compile_in_python >>"$work/python"
    for kind in prints mixed; do
        for lines in "$few" "$many"; do
            "$bench" "$kind" "$lines" >>"$work/$kind.$lines"
        done
    done
done

least() { sort -g "$work/$1" | awk 'NR == 1 { print $1 }'; }
megabytes() { awk '$2 > most { most = $2 } END { print most }' "$work/$1"; }

status=0
# aim TEXT RATIO MOST
aim() {
    awk -v text="$1" -v ratio="$2" -v most="$3" 'BEGIN {
        holds = ratio <= most
        printf "%-58s %6.2fx  aim %.2fx  %s\n", text, ratio, most, holds ? "✔" : "✗"
        exit !holds }' || status=1
}
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { print a / b }'; }

printf '%-28s %10s %10s\n' "front end, best of $runs" "ms" "MB"
printf '%-28s %10.1f\n' "python compile(), $many" "$(least python)"
for kind in prints mixed; do
    for lines in "$few" "$many"; do
        printf '%-28s %10.1f %10.1f\n' "$kind, $lines lines" "$(least "$kind.$lines")" \
            "$(megabytes "$kind.$lines")"
    done
done
aim "$many prints beside python" "$(ratio "$(least "prints.$many")" "$(least python)")" 0.20
for kind in prints mixed; do
    growth=$(ratio "$(least "$kind.$many")" "$(least "$kind.$few")")
    aim "$kind: time a line, $many lines beside $few" \
        "$(ratio "$growth" $((many / few)))" 1.10
done
exit "$status"
