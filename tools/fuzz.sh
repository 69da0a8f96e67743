#!/bin/bash
# Builds every fuzz target and runs each for FUZZ_SECONDS (30). Inputs that reach new code gather in
# build/fuzz/corpus and are used again; an input that breaks a target is put into build/fuzz/found
# (once fixed, it belongs into fuzz/corpus/NAME, where every test run replays it).
set -euo pipefail
cd "$(dirname "$0")/.."

mapfile -t names < <(basename --multiple --suffix=_fuzz.cpp fuzz/*_fuzz.cpp)
cmake --preset native-asan -B build/fuzz -DCMAKE_CXX_FLAGS=-fsanitize=fuzzer-no-link
cmake --build build/fuzz --parallel "$(nproc)" --target "${names[@]/%/_fuzz}"

failed=()
for name in "${names[@]}"; do
  gathered=build/fuzz/corpus/$name
  found=build/fuzz/found/$name
  log=build/fuzz/$name.log
  mkdir -p "$gathered" "$found"
  if "build/fuzz/fuzz/${name}_fuzz" -max_total_time="${FUZZ_SECONDS:-30}" -timeout=10 \
    -print_final_stats=1 -artifact_prefix="$found/" "$gathered" "fuzz/corpus/$name" >"$log" 2>&1; then
    echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") runs, nothing found"
  else
    echo "$name: FAILED, the input is in $found, the report in $log"
    failed+=("$name")
  fi
done
[ ${#failed[@]} -eq 0 ]
