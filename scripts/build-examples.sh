#!/bin/sh
# Rebuilds the example applications in examples/ with the headless editor: first the
# spoken placeholder prompts that the voice dialogs choose from, then the application by
# its script (which compiles and saves it), its path texts made relative to its folder, then
# its listing.
# Usage: scripts/build-examples.sh [KQX]   (KQX: the kqx program, default build/dev/cli/kqx)
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
kqx=${1:-$root/build/dev/cli/kqx}
case $kqx in /*) ;; *) kqx=$(pwd)/$kqx ;; esac
for name in balance reminder mailbox; do
  dir=$root/examples/$name
  echo "== $name"
  (cd "$dir" &&
    "$kqx" prompts --into voice --texts prompts.csv > /dev/null &&
    { [ ! -f numbers/digits.csv ] ||
      "$kqx" prompts --into numbers --texts numbers/digits.csv > /dev/null; } &&
    rm -f "$name.kqx" &&
    "$kqx" script "$name.kqs" --home "$dir" > "$name.events" &&
    ! grep -q '"event":"\(refused\|error\)"\|Compilation Error' "$name.events" &&
    # The path dialogs give whole folder names; the example keeps them relative to its own
    # folder, so that it works wherever it is copied (the text form carries the change).
    "$kqx" export "$name.kqx" | sed "s#\"path\":\"$dir/#\"path\":\"#" > "$name.json" &&
    "$kqx" import "$name.json" -o "$name.kqx" > /dev/null &&
    rm -f "$name.json" &&
    "$kqx" list "$name.kqx" -o "$name.lst" --now "2026-01-01 09:00:00" > /dev/null &&
    "$kqx" prompts "$name.kqx" --texts prompts.csv > /dev/null) || {
    echo "failed: $name (see $dir/$name.events)" >&2
    exit 1
  }
  rm -f "$dir/$name.events"
done
