#!/bin/bash
# Makes the archive that users get: the program, a page to read first and the licences of what it
# contains. The same sources give the same bytes.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset windows
cmake --build --preset windows --target WidgetVarnel --parallel "$(nproc)"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)

name=WidgetVarnel-$version
cd build
rm -rf package
mkdir -p "package/$name/licences"
cp windows/WidgetVarnel.exe ../packaging/README.txt ../THIRD-PARTY.md "package/$name"
notice() { cp "/usr/share/doc/$1/copyright" "package/$name/licences/$2"; }
notice gcc-mingw-w64-base gcc.txt
notice mingw-w64-x86-64-dev mingw-w64.txt
notice nlohmann-json3-dev nlohmann-json.txt
notice wamerican-large word-lists.txt
# Every file gets the moment of the last change, in a fixed zone, because the archive records it.
export TZ=UTC
moment=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
cd package
find "$name" -exec chmod u=rwX,go=rX {} + -exec touch --date="@$moment" {} +
find "$name" -type f | LC_ALL=C sort | zip -q -X -9 "$name.zip" -@
echo "Made build/package/$name.zip"
