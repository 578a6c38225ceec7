#!/usr/bin/env bash
# Builds the fuzz targets (build-fuzz, clang with libFuzzer and the sanitizers) and runs
# each for a bounded time from its seeds in tests/fuzz/corpus/<name>. Fails on the first
# crash, leak, sanitizer report, broken rule or time-out; what made it fail is kept in
# build-fuzz/funde/<name>/ and can be run again alone:
#   build-fuzz/tests/fuzz/fuzz_<name> build-fuzz/funde/<name>/crash-...
# usage: tests/fuzz/run.sh [SECONDS_PER_TARGET (default 15)] [NAME...]
set -euo pipefail
cd "$(dirname "$0")/../.."
sekunden=${1:-15}
shift || true

CC=clang CXX=clang++ cmake -S . -B build-fuzz -DKES_FUZZ=ON >/dev/null
cmake --build build-fuzz -j2 >/dev/null

namen=("$@")
if [ ${#namen[@]} -eq 0 ]; then
  for d in tests/fuzz/corpus/*/; do namen+=("$(basename "$d")"); done
fi
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
for name in "${namen[@]}"; do
  # What the run adds goes to a folder of its own, dropped afterwards, so that every run
  # starts from the seeds alone and costs the same; the seeds stay as they are.
  arbeit=$(mktemp -d)
  mkdir -p "build-fuzz/funde/$name"
  log=build-fuzz/funde/$name.log
  if ! build-fuzz/tests/fuzz/fuzz_"$name" -max_total_time="$sekunden" -timeout=20 -rss_limit_mb=2048 \
      -print_final_stats=1 -artifact_prefix="build-fuzz/funde/$name/" \
      "$arbeit" "tests/fuzz/corpus/$name" >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "fuzz_$name: failed, see $log and build-fuzz/funde/$name/" >&2
    rm -rf "$arbeit"
    exit 1
  fi
  rm -rf "$arbeit"
  echo "fuzz_$name: $(grep -o 'number_of_executed_units: [0-9]*' "$log" | grep -o '[0-9]*$') runs, no finding"
done
