#!/bin/bash
# picture_of.sh PICTURE.png PROGRAM.exe... starts the program on the present display, waits until the
# desktop has changed and come to rest, and takes a picture of it. In a terminal the program goes on
# until it ends or is interrupted, elsewhere it is ended.
set -euo pipefail

picture=$1
shift

desktop() { import -silent -window root rgb:- | sha256sum; }

empty=$(desktop)
wine "$@" &
program=$!

before=$empty
for _ in {1..20}; do
  sleep 0.5
  # Its exit code counts when the program ends by itself.
  kill -0 $program 2>/dev/null || wait $program
  now=$(desktop)
  if [ "$now" != "$empty" ] && [ "$now" = "$before" ]; then break; fi
  before=$now
done
import -silent -window root "$picture"
echo "The desktop is shown in $picture"

if [ -t 0 ]; then
  wait $program
else
  kill $program 2>/dev/null || true
fi
