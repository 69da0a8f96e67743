#!/bin/bash
# Tries build/package in a fresh Wine prefix: installed, used, installed again over it while it runs,
# removed. Signs a copy with a certificate made for that. Run it after tools/package.sh.
set -euo pipefail
cd "$(dirname "$0")/.."

stage=$PWD/build/package-try
tools/wine_session.sh stop "$stage" 2>/dev/null || true
rm -rf "$stage"
trap 'tools/wine_session.sh stop "$stage"' EXIT
tools/wine_session.sh start "$stage"
# shellcheck disable=SC1091
. "$stage/session.env"

installer=$(ls build/package/WidgetVarnel-*-x64.exe)
local_data=$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local
folder=$local_data/Programs/'Widget Varnel'
program=$folder/WidgetVarnel.exe
entry='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Widget Varnel'

fail() {
  echo "try_package: $*" >&2
  exit 1
}
has() { [ -e "$1" ] || fail "$1 is missing"; }
lacks() { [ ! -e "$1" ] || fail "$1 is still there"; }
value() { wine reg query "$entry" /v "$1" | tr -d '\r' | sed -n "s/^ *$1 *REG_[A-Z]* *//p"; }
has_key() { wine reg query "$1" >/dev/null 2>&1; }
runs() { pgrep -f 'Widget Varnel.WidgetVarnel\.exe' >/dev/null; }
# Waits for what the words say.
until_so() {
  local i
  for ((i = 0; i < 300; i++)); do
    ! "$@" || return 0
    sleep 0.2
  done
  fail "in vain: $*"
}

echo "installing"
wine "$installer" /S
has "$program"
has "$folder/Uninstall.exe"
has "$folder/licences/gcc.txt"
[ -n "$(find "$WINEPREFIX/drive_c" -name 'Widget Varnel.lnk')" ] || fail "no start menu entry"
for name in DisplayName DisplayVersion Publisher DisplayIcon InstallLocation UninstallString \
  QuietUninstallString EstimatedSize NoModify NoRepair; do
  [ -n "$(value "$name")" ] || fail "no $name in the list of programs"
done
[[ $installer == *-"$(value DisplayVersion)"-x64.exe ]] || fail "another version than in its name"

echo "using"
wine "$program" /tray &
until_so has_key 'HKCU\Software\Widget Varnel'
until_so test -d "$folder/themes"
runs || fail "it does not run"
mkdir -p "$folder/tavrin"
echo '{\rtf1 A note.}' >"$folder/tavrin/Kept.rtf"

echo "installing again, while it runs"
touch -d '2001-01-01' "$program"
wine "$installer" /S
[ "$(find "$program" -newermt 2002-01-01)" ] || fail "the program was not replaced"
grep -q 'A note' "$folder/tavrin/Kept.rtf" || fail "the note is not as it was"
until_so runs

echo "removing, while it runs"
wine "$folder/Uninstall.exe" /S
# It works on from a copy of itself.
removed() { [ ! -e "$program" ] && ! has_key "$entry"; }
ended() { ! runs; }
until_so removed
until_so ended
lacks "$program"
lacks "$folder/licences"
has "$folder/tavrin/Kept.rtf"
! has_key "$entry" || fail "still in the list of programs"
has_key 'HKCU\Software\Widget Varnel' || fail "the settings are gone, though nobody was asked"
[ -z "$(find "$WINEPREFIX/drive_c" -name 'Widget Varnel.lnk')" ] || fail "still in the start menu"

echo "signing"
openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj '/CN=Trial' -keyout "$stage/key.pem" \
  -addext 'extendedKeyUsage=codeSigning' -out "$stage/trial.pem" 2>/dev/null
openssl pkcs12 -export -passout pass:trial -inkey "$stage/key.pem" -in "$stage/trial.pem" \
  -out "$stage/trial.p12"
cp "$installer" "$stage/signed.exe"
SIGN_CERTIFICATE=$stage/trial.p12 SIGN_PASSWORD=trial tools/sign.sh "$stage/signed.exe"
osslsigncode verify -CAfile "$stage/trial.pem" -in "$stage/signed.exe" | grep -q 'Succeeded' ||
  fail "the signature is not taken"
echo "All of it went as it should"
