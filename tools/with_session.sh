#!/bin/bash
# with_session.sh COMMAND... runs the command on the project's own virtual desktop (build/wine), which
# is started before and ended after it unless it was running already. Exits as the command does.
set -euo pipefail
cd "$(dirname "$0")/.."

session=build/wine
if ! tools/wine_session.sh env "$session" >/dev/null 2>&1; then
  trap 'tools/wine_session.sh stop "$session"' EXIT
  tools/wine_session.sh start "$session"
fi
# shellcheck source=/dev/null
. "$session/session.env"
"$@"
