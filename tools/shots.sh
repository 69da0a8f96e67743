#!/bin/bash
# Writes pictures of every window into build/shots, and sheets of them into build/shots/sheets.
# Arguments choose subjects by how their names begin (see tools/shots/subjects.cpp).
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset windows
cmake --build --preset windows --parallel "$(nproc)" --target shots

shots=$PWD/build/shots
rm -rf "$shots"
mkdir -p "$shots/sheets"
VARNEL_EXE=$PWD/build/windows/WidgetVarnel.exe VARNEL_ARTIFACTS=$shots \
  tools/with_session.sh wine build/windows/tools/shots/shots.exe "$@"

# Debian's own name first: another program may stand under the plain one.
imagemagick() { "$(command -v "$1-im6.q16" || command -v "$1")" "${@:2}"; }

# sheet NAME COLUMNS PATTERN puts the pictures whose names match side by side, under their names.
sheet() {
  local pictures
  mapfile -t pictures < <(find "$shots" -maxdepth 1 -name "$3.png" | sort -V)
  [ ${#pictures[@]} -gt 0 ] || return 0
  tools/sheet.sh "$shots/sheets/$1.png" "$2" "${pictures[@]}"
}

# Every symbol of the weather, in the order that the font has them.
symbols() {
  local lines
  LC_ALL=C.UTF-8 printf -v lines '%b' '\uE000\uE001\uE002\uE003\uE004\uE005\uE006\uE007\n' \
    '\uE008\uE009\uE00A\uE00B\uE00C\uE00D\uE00E\uE00F\n' '\uE011\uE012\uE014\uE015'
  imagemagick convert -font build/windows/assets/Icon-works.ttf -pointsize 64 -kerning 16 \
    -interline-spacing 16 -background '#33566e' -fill white -bordercolor '#33566e' \
    "label:$lines" -border 16 "$shots/sheets/weather-symbols.png"
}

# The README's picture: the manager and all widgets, each in a theme of its own.
desktop() {
  local name
  local pictures=()
  for name in manager clock weather notes calendar whiteboard calculator stopwatch countdown; do
    [ -f "$shots/gallery-$name.png" ] || return 0
    pictures+=("$shots/gallery-$name.png")
  done
  imagemagick montage +label "${pictures[@]}" -tile 3x -geometry '+12+12' -background '#33566e' \
    "$shots/sheets/desktop.png"
}

imagemagick mogrify -format png "$shots"/*.bmp
rm "$shots"/*.bmp
sheet presets 14 'presets-*'
for size in 2400x1600 5900x3471 7500x5250; do
  sheet "widgets-$size" 6 "*-$size"
  sheet "widgets-$size-150-200" 4 "*-$size-[12][05]0"
  sheet "widgets-$size-presets" 6 "*-$size-[A-Z]*"
done
symbols
desktop
echo "The pictures are in build/shots"
