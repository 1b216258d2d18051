#!/usr/bin/env bash
# Installs what the build needs, builds everything with warnings as errors, and runs all
# tests: the normal build, then the address and undefined sanitizer build of the tests.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
jobs=$(nproc)
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKQ_WERROR=ON
cmake --build build/release -j "$jobs"
(cd build/release && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$jobs")
if [ "${KQ_SKIP_SANITIZE:-0}" != 1 ]; then
  cmake -S . -B build/sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKQ_WERROR=ON -DKQ_SANITIZE=ON \
    -DKQ_BUILD_QT=OFF -DKQ_BUILD_BENCH=OFF -DKQ_BUILD_FUZZ=OFF
  cmake --build build/sanitize -j "$jobs"
  (cd build/sanitize && ctest --output-on-failure -j "$jobs")
fi
