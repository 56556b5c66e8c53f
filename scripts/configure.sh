#!/usr/bin/env bash
# configure.sh normal|asan : configures build/ (gcc, optimised) or build-asan/ (clang, ASan+UBSan, fuzzers).
set -euo pipefail
cd "$(dirname "$0")/.."
launcher=()
if command -v ccache >/dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
case "${1:-normal}" in
  normal)
    cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}" >/dev/null ;;
  asan)
    cmake -S . -B build-asan -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug \
      -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" -DZRK_SANITIZE=ON -DZRK_FUZZ=ON -DZRK_BENCH=OFF "${launcher[@]}" >/dev/null ;;
  *) echo "usage: configure.sh normal|asan" >&2; exit 2 ;;
esac
