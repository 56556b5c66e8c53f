#!/usr/bin/env bash
# Installs the Debian packages the build, the tests, the fuzzers and the benchmarks need.
# Does nothing when they are all there already.
set -euo pipefail
packages=(
  build-essential cmake ninja-build ccache clang libclang-rt-14-dev binutils
  qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools qtwebengine5-dev libqt5webchannel5-dev
  qtpositioning5-dev libqt5svg5-dev libqt5charts5-dev libjs-leaflet libjs-leaflet.markercluster
  xvfb xauth libbenchmark-dev zlib1g-dev libxml2-dev python3 xxd
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi
echo "Installing: ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
