#!/usr/bin/env bash
# Draws the layers as the build links them: docs/layers.dot and docs/layers.svg, from
# CMake's --graphviz output of a configuration without tests, rendered with dot.
set -euo pipefail
cd "$(dirname "$0")/.."
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
cmake -S . -B "$out" -G Ninja -DKQ_BUILD_TESTS=OFF -DKQ_BUILD_BENCH=OFF -DKQ_BUILD_FUZZ=OFF \
  --graphviz="$out/layers.dot" > /dev/null
# Each program above what it links, the lowest layer at the bottom; the legend of target
# kinds is left out.
sed -e '/^subgraph clusterLegend {$/,/^}$/d' "$out/layers.dot" > docs/layers.dot
dot -Tsvg docs/layers.dot -o docs/layers.svg
echo "docs/layers.svg"
