#!/usr/bin/env bash
# Installs what the build needs, builds KQEdit and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build/release -j "$(nproc)" --target KQEdit kqx
if [ -x build/release/app/KQEdit ]; then
  exec build/release/app/KQEdit "$@"
fi
# Until the desktop program is built, show the command-line tool on a demonstration file.
exec build/release/cli/kqx info "${1:-docs/demo.kqx}"
