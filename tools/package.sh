#!/bin/bash
# Makes what users get, in build/package: the installer and an archive with the same files. The same
# sources give the same bytes, as long as nothing is signed.
#
# SIGN_CERTIFICATE names a PKCS #12 file and SIGN_PASSWORD its password: program, installer and
# uninstaller are signed with it then, and stamped by the server SIGN_TIMESTAMP where that is set.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset windows
cmake --build --preset windows --target WidgetVarnel --parallel "$(nproc)"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)

name=WidgetVarnel-$version
tools=$PWD/tools
icon=$PWD/build/windows/assets/app.ico
script=$PWD/packaging/installer.nsi
sign=
[ -z "${SIGN_CERTIFICATE:-}" ] || sign=$tools/sign.sh
cd build
rm -rf package
mkdir -p "package/$name/licences"
cp windows/WidgetVarnel.exe ../packaging/README.txt ../THIRD-PARTY.md "package/$name"
notice() { cp "/usr/share/doc/$1/copyright" "package/$name/licences/$2"; }
notice gcc-mingw-w64-base gcc.txt
notice mingw-w64-x86-64-dev mingw-w64.txt
notice nlohmann-json3-dev nlohmann-json.txt
notice nsis nsis.txt
notice wamerican-large word-lists.txt
[ -z "$sign" ] || "$sign" "package/$name/WidgetVarnel.exe"
# Every file gets the moment of the last change, in a fixed zone, because the archive records it.
export TZ=UTC
moment=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
cd package
find "$name" -exec chmod u=rwX,go=rX {} + -exec touch --date="@$moment" {} +
find "$name" -type f | LC_ALL=C sort | zip -q -X -9 "$name.zip" -@

# What the uninstaller removes: each file, then the folders that hold no others.
{
  find "$name" -type f -printf 'Delete "$INSTDIR\\%P"\n' | LC_ALL=C sort
  find "$name" -mindepth 1 -depth -type d -printf 'RMDir "$INSTDIR\\%P"\n' | LC_ALL=C sort
} | tr / '\\' >uninstall.list
kilobytes=$(find "$name" -type f -printf '%s\n' | awk '{ sum += $1 } END { print int((sum + 1023) / 1024) }')
numbers=$(sed 's/$/.0.0.0/; s/^\([0-9]*\.[0-9]*\.[0-9]*\.[0-9]*\).*/\1/' <<<"$version")
SOURCE_DATE_EPOCH=$moment makensis -V2 -WX -DVERSION="$version" -DNUMBERS="$numbers" \
  -DFILES="$PWD/$name" -DLIST="$PWD/uninstall.list" -DKILOBYTES="$kilobytes" -DICON="$icon" \
  -DTHEMES=themes -DSIGN="$sign" -DOUTPUT="$PWD/$name-x64.exe" "$script"
rm uninstall.list
echo "Made build/package/$name-x64.exe and $name.zip"
