#!/usr/bin/env bash
# Installs the Debian packages the build, the tests, the fuzzers and the benchmarks need.
# Does nothing when they are all there already.
set -euo pipefail
packages=(
  build-essential cmake ninja-build ccache clang libclang-rt-14-dev binutils
  qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools qtwebengine5-dev libqt5webchannel5-dev
  qtpositioning5-dev libqt5svg5-dev libqt5charts5-dev libjs-leaflet libjs-leaflet.markercluster
  xvfb xauth libbenchmark-dev zlib1g-dev libxml2-dev python3 xxd locales
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
if [ ${#missing[@]} -ne 0 ]; then
  echo "Installing: ${missing[*]}"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
# The decimal tests run once under a comma-decimal locale, as a Russian desktop has.
if ! locale -a 2>/dev/null | grep -qi '^ru_RU\.utf-\?8$'; then
  $SUDO localedef -i ru_RU -f UTF-8 ru_RU.UTF-8
fi
