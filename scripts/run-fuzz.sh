#!/usr/bin/env bash
# run-fuzz.sh BUILD_DIR SECONDS : runs every fuzz target of the build for SECONDS each,
# starting from its checked-in seeds (fuzz/corpus/<target>/) in a scratch corpus.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build-asan}; seconds=${2:-45}
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
status=0
shopt -s nullglob
for bin in "$build"/fuzz/fuzz_*; do
  [ -x "$bin" ] && [ -f "$bin" ] || continue
  name=$(basename "$bin")
  work=$(mktemp -d)
  [ -d "fuzz/corpus/$name" ] && cp -r "fuzz/corpus/$name/." "$work/"
  echo "-- $name (${seconds}s)"
  if ! "$bin" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=0 \
       -artifact_prefix="$PWD/$build/fuzz/$name-" "$work" > "$build/fuzz/$name.log" 2>&1; then
    echo "FAIL: $name (see $build/fuzz/$name.log)"; tail -40 "$build/fuzz/$name.log"; status=1
  else
    grep -E '^#[0-9]+.*DONE' "$build/fuzz/$name.log" | tail -1 || true
  fi
  rm -rf "$work"
done
exit $status
