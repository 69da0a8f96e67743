#!/bin/bash
# Reviews the engines, as they are compiled natively, by the rules in .clang-tidy.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset native-asan
run-clang-tidy -quiet -p build/native-asan -j "$(nproc)" "^$PWD/(base|core|theme|widgets)/"
