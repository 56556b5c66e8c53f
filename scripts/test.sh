#!/usr/bin/env bash
# The whole check: installs what is missing, builds and tests the normal build, builds and tests
# the sanitizer build, runs every fuzz target for a bounded time and prints the benchmark ratios.
# The demo session also runs once on the offscreen platform without a display: a workstation
# without OpenGL, where the map shows a message and nothing else may change.
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

echo "== demo without OpenGL (offscreen platform, no display)"
demo_home=$(mktemp -d)
root=$PWD
if (cd "$demo_home" && HOME="$demo_home" QT_QPA_PLATFORM=offscreen DISPLAY= XDG_RUNTIME_DIR="$demo_home" \
      timeout 600 "$root/build/host/zrk-host" --demo "$demo_home/shots" "$root/build/device/libzrk_k7140.so" \
      > "$demo_home/demo.log" 2>&1) && ls "$demo_home/shots" | grep -q '_geo_files_on_card\.png$'; then
  echo "offscreen demo: exit 0, $(ls "$demo_home/shots" | grep -c '\.png$') screenshots"
  passed=$((passed + 1))
else
  echo "FAIL: the offscreen demo (exit status or missing geo screenshots):"; tail -30 "$demo_home/demo.log"
  failed=$((failed + 1)); status=1
fi
rm -rf "$demo_home"

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
