#!/bin/bash
# Builds the program and the probes and measures speed and memory against other programs. Arguments
# go to bench/run.py.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset native
cmake --build --preset native --parallel "$(nproc)" --target bench_xwatch
cmake --preset windows
cmake --build --preset windows --parallel "$(nproc)" --target WidgetVarnel bench/all
tools/with_session.sh /usr/bin/python3 bench/run.py "$@"
