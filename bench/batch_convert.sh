#!/usr/bin/env bash
# The batch conversion's scaling: 1,000 files of 5 s of speech-like sound at 44.1 kHz
# 16-bit converted to OKI 32K by one `kqx convert DIR --to o32 --out OUT`, on one thread
# and then on every core; prints the wall-clock time of each (median of the runs, by
# /usr/bin/time -v), the speed-up and the peak memory.
#
# usage: bench/batch_convert.sh KQX [FILES] [RUNS]
set -euo pipefail
kqx=$(realpath "${1:?usage: $0 KQX [FILES] [RUNS]}")
files=${2:-1000}
runs=${3:-3}
command -v sox >/dev/null || { echo "sox is needed to make the input"; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/in" "$work/out"
for ((i = 0; i < 10; ++i)); do
  sox -n -r 44100 -b 16 -c 1 "$work/in/s$i.wav" synth 5 sine "$((200 + 37 * i))-2000" \
    synth 5 pinknoise mix tremolo 4 70 gain -n -6
done
for ((i = 10; i < files; ++i)); do cp "$work/in/s$((i % 10)).wav" "$work/in/s$i.wav"; done

measure() {
  /usr/bin/time -v -o "$work/time.txt" "$@" >/dev/null 2>&1 || { echo "failed: $*" >&2; exit 1; }
  awk -F': ' '/Elapsed \(wall clock\)/ {
                n = split($2, p, ":"); t = 0; for (i = 1; i <= n; ++i) t = t * 60 + p[i] }
              /Maximum resident set size/ { kb = $2 }
              END { printf "%.3f %d\n", t, kb }' "$work/time.txt"
}
median() { sort -g | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

cores=$(nproc)
for jobs in 1 "$cores"; do
  : >"$work/t"
  for ((r = 0; r < runs; ++r)); do
    measure "$kqx" convert "$work/in" --to o32 --out "$work/out" --jobs "$jobs" >>"$work/t"
  done
  t=$(cut -d' ' -f1 "$work/t" | median)
  kb=$(cut -d' ' -f2 "$work/t" | sort -n | tail -n 1)
  echo "$files files on $jobs thread(s): $t s, peak $kb KiB"
  eval "time_$jobs=$t"
done
awk -v a="$time_1" -v b="$(eval echo \$time_$cores)" -v c="$cores" \
  'BEGIN { printf "speed-up on %d cores: %.2f\n", c, (b > 0) ? a / b : 0 }'
[ "$(ls "$work/out" | wc -l)" -eq "$files" ] || { echo "not every file was converted"; exit 1; }
