#!/bin/bash
# Signs a program file in place, with what tools/package.sh is told in the environment.
set -euo pipefail
[ $# -eq 1 ] && [ -n "${SIGN_CERTIFICATE:-}" ] || {
  echo "usage: SIGN_CERTIFICATE=FILE.p12 SIGN_PASSWORD=... sign.sh FILE" >&2
  exit 1
}
stamp=()
[ -z "${SIGN_TIMESTAMP:-}" ] || stamp=(-ts "$SIGN_TIMESTAMP")
# By a file that nobody else can read: a command line is seen by all.
password=$(mktemp)
trap 'rm -f "$password" "$1.signed"' EXIT
printf '%s' "${SIGN_PASSWORD:-}" >"$password"
osslsigncode sign -pkcs12 "$SIGN_CERTIFICATE" -readpass "$password" -h sha256 -n "Widget Varnel" \
  "${stamp[@]}" -in "$1" -out "$1.signed" >/dev/null
mv "$1.signed" "$1"
