#!/usr/bin/env bash
# Installs what the build needs, builds KQEdit and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build/release -j "$(nproc)" --target kqx
# The desktop program's folder is there only when Qt 6 was found.
if [ -d build/release/app ]; then
  cmake --build build/release -j "$(nproc)" --target KQEdit
fi
if [ -x build/release/app/KQEdit ]; then
  exec build/release/app/KQEdit "$@"
fi
# Without Qt 6 the desktop program is not built: say so, and show the command-line tool.
echo "KQEdit was not built (Qt 6 Widgets, PrintSupport and Multimedia are needed)." >&2
exec build/release/cli/kqx --help
