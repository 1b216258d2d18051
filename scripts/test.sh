#!/usr/bin/env bash
# Installs what the build needs, builds everything with warnings as errors, and runs all
# tests: the normal build (the `slow` label included), then the address and undefined
# sanitizer build of everything, the Qt binding too, with the GUI tests offscreen and the
# fuzz targets' corpora replayed.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
jobs=$(nproc)
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKQ_WERROR=ON
cmake --build build/release -j "$jobs"
(cd build/release && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$jobs")
if [ "${KQ_SKIP_SANITIZE:-0}" != 1 ]; then
  cmake -S . -B build/sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DKQ_WERROR=ON -DKQ_SANITIZE=ON \
    -DKQ_BUILD_BENCH=OFF -DKQ_BUILD_FUZZ=ON
  cmake --build build/sanitize -j "$jobs"
  # Leaks of Qt's own start-up are suppressed by name (see scripts/lsan.supp); the long
  # random runs are the release build's.
  (cd build/sanitize && QT_QPA_PLATFORM=offscreen \
    LSAN_OPTIONS="suppressions=$PWD/../../scripts/lsan.supp:print_suppressions=0" \
    ctest --output-on-failure -j "$jobs" -LE slow)
fi
# The libFuzzer targets, built with clang (the whole build instrumented), each run for a
# short bounded time as a smoke test; the runs of a million inputs and more are for the
# developer's machine (docs/architecture-speech.md). A crash found there is kept in
# fuzz/corpus/NAME/ and replayed by CTest above.
if [ "${KQ_SKIP_FUZZ:-0}" != 1 ] && command -v clang++ >/dev/null 2>&1; then
  CXX=clang++ cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined" \
    -DKQ_BUILD_QT=OFF -DKQ_BUILD_TESTS=OFF -DKQ_BUILD_BENCH=OFF -DKQ_BUILD_FUZZ=ON
  cmake --build build/fuzz -j "$jobs" --target kqx_reader_fuzz wave_fuzz script_fuzz textform_fuzz
  for target in kqx_reader wave script textform; do
    # New inputs go to the build folder's corpus; the repository's is read only.
    mkdir -p build/fuzz/corpus/$target
    # pipefail makes a fuzzer's failure the script's
    build/fuzz/fuzz/${target}_fuzz -runs=20000 -max_total_time=60 build/fuzz/corpus/$target \
      fuzz/corpus/$target 2>&1 | tail -n 1
  done
fi
