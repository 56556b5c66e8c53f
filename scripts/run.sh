#!/usr/bin/env bash
# Builds the product and starts the reference host with the plug-in loaded. Without a display it
# runs a scripted session under Xvfb and writes screenshots into ./screenshots (or $1).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/configure.sh normal
cmake --build build --target zrk-host zrk_k7140
host=build/host/zrk-host
plugin=build/device/libzrk_k7140.so
if [ -n "${DISPLAY:-}" ]; then
  exec "$host" "$plugin"
fi
shots=$(realpath -m "${1:-screenshots}")
mkdir -p "$shots"
xvfb-run -a -s "-screen 0 1280x900x24" "$host" --demo "$shots" "$plugin"
echo "Screenshots written to $shots:"
ls -1 "$shots"
