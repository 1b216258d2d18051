#!/usr/bin/env bash
# Installs the Debian 12 packages that the build needs, only when some are missing.
set -euo pipefail
packages=(
  build-essential cmake ninja-build pkg-config git
  libgtest-dev libgmock-dev libbenchmark-dev
  libspandsp-dev libsoxr-dev
  clang clang-format libclang-rt-14-dev
  qt6-base-dev qt6-base-dev-tools qt6-multimedia-dev libqt6opengl6-dev
  libgl-dev xvfb xauth
  libcli11-dev nlohmann-json3-dev libsqlite3-dev libespeak-ng-dev espeak-ng-data
  libgraphviz-dev graphviz qt6-svg-dev shared-mime-info
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -q
$sudo apt-get install -y -q --no-install-recommends "${missing[@]}"
