#!/bin/bash
# sheet.sh SHEET COLUMNS PICTURE... puts pictures side by side into one, each above its name.
set -euo pipefail

# By its path: on a machine that nobody has set up ImageMagick finds no font by itself.
font=/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf
# Debian's own name first: another program may stand under the plain one.
montage=$(command -v montage-im6.q16 || command -v montage)
"$montage" -font "$font" -label '%t' "${@:3}" -tile "$2x" -geometry '+6+6' \
  -background '#33566e' -fill white "$1"
