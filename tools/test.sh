#!/bin/bash
# Builds the native tree (with sanitizers) and the Windows tree and runs every test of both, and the
# checks of the sources, as one ctest run. Further arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."

for preset in native-asan windows; do
  cmake --preset "$preset"
  cmake --build --preset "$preset" --parallel "$(nproc)"
done

mkdir -p build/all
cat >build/all/CTestTestfile.cmake <<EOF
subdirs("$PWD/tests/checks" "$PWD/build/native-asan" "$PWD/build/windows")
EOF
export UBSAN_OPTIONS=print_stacktrace=1
# Scenes share a real desktop with whatever else the machine does, so a test that failed is run once
# more. Both runs stay in the output; what fails twice fails.
tools/with_session.sh ctest --test-dir build/all --parallel "$(nproc)" --output-on-failure \
  --no-tests=error --repeat until-pass:2 "$@"
