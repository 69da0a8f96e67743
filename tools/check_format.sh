#!/bin/bash
# Checks that every source has the common layout; with --fix, gives it that layout.
set -euo pipefail
cd "$(dirname "$0")/.."

if [ "${1:-}" = --fix ]; then action=(-i); else action=(--dry-run --Werror); fi
git ls-files -z --cached --others --exclude-standard -- '*.cpp' '*.h' |
  xargs -0 --max-args=50 clang-format "${action[@]}"
