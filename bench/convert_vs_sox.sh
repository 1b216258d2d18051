#!/usr/bin/env bash
# Whole-process `kqx convert` against sox doing the same conversion, side by side, on 600 s
# of speech-like sound at 44.1 kHz 16-bit mono (to OKI 32K, OKI 24K, u-Law and G.726 32)
# and on 600 s of OKI 32K back to WAVE. Each pair runs kqx and sox one after the other;
# the ratio printed is the median of the pairs' ratios of wall-clock time, with the medians
# of each side and the peak memory of each (all measured by /usr/bin/time -v). The target
# is a ratio of at most 0.5 and a peak under 16 MiB. Then the signal-to-noise ratio of each
# of kqx's round trips (WAVE to the format and back to 8 kHz WAVE, against the same WAVE
# converted straight to 8 kHz). sox writes no G.726: its 4-bit IMA ADPCM at 8 kHz, the same
# bit rate, stands in for it.
#
# usage: bench/convert_vs_sox.sh KQX [PAIRS] [SECONDS]
set -euo pipefail
kqx=$(realpath "${1:?usage: $0 KQX [PAIRS] [SECONDS]}")
pairs=${2:-5}
seconds=${3:-600}
command -v sox >/dev/null || { echo "sox is not installed: nothing to compare"; exit 0; }
[ -x /usr/bin/time ] || { echo "/usr/bin/time is not installed"; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

sox -n -r 44100 -b 16 -c 1 speech.wav synth "$seconds" sine 200-2000 synth "$seconds" pinknoise \
  mix tremolo 4 70 gain -n -6
"$kqx" convert speech.wav speech.o32 >/dev/null

# Runs a command under /usr/bin/time -v; prints "SECONDS KBYTES". The time is bash's clock
# around the whole process, to the microsecond (time's own is in hundredths of a second,
# too coarse for the short decodes); the peak memory is time's.
measure() {
  local start=$EPOCHREALTIME
  /usr/bin/time -v -o time.txt "$@" >/dev/null 2>&1 || { echo "failed: $*" >&2; exit 1; }
  local end=$EPOCHREALTIME
  awk -v a="$start" -v b="$end" -F': ' '/Maximum resident set size/ { kb = $2 }
              END { printf "%.4f %d\n", b - a, kb }' time.txt
}

median() { sort -g | awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

worst=0
printf '%-24s %9s %9s %7s %12s %12s\n' conversion kqx_s sox_s ratio kqx_peak_KiB sox_peak_KiB
compare() {
  local name=$1 kqxcmd=$2 soxcmd=$3
  : >kqx.t; : >sox.t; : >ratio.t
  for ((i = 0; i < pairs; ++i)); do
    read -r kt km < <(measure $kqxcmd)
    read -r st sm < <(measure $soxcmd)
    echo "$kt $km" >>kqx.t
    echo "$st $sm" >>sox.t
    awk -v a="$kt" -v b="$st" 'BEGIN { printf "%.4f\n", (b > 0) ? a / b : 0 }' >>ratio.t
  done
  local km sm kt st ratio
  kt=$(cut -d' ' -f1 kqx.t | median); st=$(cut -d' ' -f1 sox.t | median)
  km=$(cut -d' ' -f2 kqx.t | sort -n | tail -n 1); sm=$(cut -d' ' -f2 sox.t | sort -n | tail -n 1)
  ratio=$(median <ratio.t)
  printf '%-24s %9.4f %9.4f %7.3f %12d %12d\n' "$name" "$kt" "$st" "$ratio" "$km" "$sm"
  worst=$(awk -v a="$ratio" -v b="$worst" 'BEGIN { print (a > b) ? a : b }')
}

compare "WAVE to OKI 32K" "$kqx convert speech.wav out.o32" "sox speech.wav -r 8000 -t vox sox.vox"
compare "WAVE to OKI 24K" "$kqx convert speech.wav out.o24" "sox speech.wav -r 6000 -t vox sox.vox"
compare "WAVE to u-Law" "$kqx convert speech.wav out.mlw" "sox speech.wav -r 8000 -t ul sox.ul"
compare "WAVE to G.726 32" "$kqx convert speech.wav out.r32" "sox speech.wav -r 8000 -t ima sox.ima"
compare "OKI 32K to WAVE" "$kqx convert speech.o32 back.wav" "sox -t vox -r 8000 speech.o32 sox.wav"
echo "worst ratio: $worst (target at most 0.5)"

# Round trips through kqx, against the input converted straight to 8 kHz.
rms() { sox "$@" -n stat 2>&1 | awk '/RMS +amplitude/ { print $3 }'; }
"$kqx" convert speech.wav ref.lin >/dev/null
"$kqx" convert ref.lin ref.wav >/dev/null
for ext in o32 o24 mlw r32 r24 alw; do
  "$kqx" convert speech.wav "rt.$ext" >/dev/null
  "$kqx" convert "rt.$ext" rt.wav >/dev/null
  signal=$(rms ref.wav)
  noise=$(rms -m -v 1 ref.wav -v -1 rt.wav)
  awk -v e="$ext" -v s="$signal" -v n="$noise" \
    'BEGIN { printf "round trip %s: SNR %.2f dB\n", e, (n > 0) ? 20 * log(s / n) / log(10) : 200 }'
done
