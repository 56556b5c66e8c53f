#!/usr/bin/env bash
# run-bench.sh BUILD_DIR : runs every benchmark of the build briefly; each prints its ratios
# against the reference it measures in the same run.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
status=0
shopt -s nullglob
for bin in "$build"/bench/bench_*; do
  [ -x "$bin" ] && [ -f "$bin" ] || continue
  echo "-- $(basename "$bin")"
  "$bin" --benchmark_min_time="${ZRK_BENCH_MIN_TIME:-0.2}" || status=1
done
exit $status
