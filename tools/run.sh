#!/bin/bash
# Builds the program and starts it: on the user's display where there is one, else on a virtual
# desktop, of which it leaves a picture.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset windows
cmake --build --preset windows --target WidgetVarnel --parallel "$(nproc)"
program=build/windows/WidgetVarnel.exe
if [ -n "${DISPLAY:-}" ]; then
  WINEDEBUG=${WINEDEBUG:--all} exec wine "$program"
fi
exec tools/with_session.sh tools/picture_of.sh build/desktop.png "$program"
