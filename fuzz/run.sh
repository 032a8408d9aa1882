#!/usr/bin/env bash
# Builds the fuzzers and runs each for SECONDS (60 when left out), two at a time. What they find ends the script with 1 and
# lies in build/fuzz/findings: mend the fault and keep the file in fuzz/corpus, where every test run plays it again.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}

fuzzers=(StringBag JetSql ConnectionString SettingsFile Filter Ics Drive)
cmake --preset asan >/dev/null
cmake --build --preset asan --target "${fuzzers[@]/%/_fuzz}"

mkdir -p build/fuzz/findings
# One fuzzer on a copy of its corpus, so that what it only tries out stays out of the sources.
fuzz_one() {
  local corpus=build/fuzz/corpus/$1 log=build/fuzz/findings/$1.log
  mkdir -p "$corpus"
  if ! "build/asan/fuzz/$1_fuzz" "$corpus" "fuzz/corpus/$1" -max_total_time="$2" -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix="build/fuzz/findings/$1-" -print_final_stats=1 >"$log" 2>&1; then
    echo "$1 has found something:"
    tail -40 "$log"
    return 1
  fi
  echo "$1: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs, nothing found"
}
export -f fuzz_one
printf '%s\n' "${fuzzers[@]}" | xargs -P 2 -I NAME bash -c 'fuzz_one NAME '"$seconds"
