#!/usr/bin/env bash
# The whole check: installs what is missing, builds and tests the normal build, builds and tests
# the sanitizer build, runs every fuzz target for a bounded time and prints the benchmark ratios.
# ZRK_FUZZ_SECONDS (default 45) bounds each fuzz target.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh

passed=0; failed=0
run_ctest() {
  local dir=$1 log
  log=$(mktemp)
  set +e
  (cd "$dir" && ctest --output-on-failure -j2) 2>&1 | tee "$log"
  local rc=${PIPESTATUS[0]}
  set -e
  local total fails
  total=$(sed -n 's/.*tests failed out of \([0-9]*\).*/\1/p' "$log" | tail -1)
  fails=$(sed -n 's/.*, \([0-9]*\) tests failed out of.*/\1/p' "$log" | tail -1)
  passed=$((passed + ${total:-0} - ${fails:-0})); failed=$((failed + ${fails:-0}))
  rm -f "$log"
  return $rc
}

status=0
echo "== normal build"
scripts/configure.sh normal
cmake --build build
run_ctest build || status=1

echo "== sanitizer build (ASan + UBSan)"
scripts/configure.sh asan
cmake --build build-asan
run_ctest build-asan || status=1

echo "== fuzzing"
scripts/run-fuzz.sh build-asan "${ZRK_FUZZ_SECONDS:-45}" || status=1

echo "== benchmarks"
scripts/run-bench.sh build || status=1

echo "tests: $passed passed, $failed failed"
exit $status
