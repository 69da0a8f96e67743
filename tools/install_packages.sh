#!/bin/bash
# Installs what building and testing need and is not there yet: the distribution's packages named in
# packages.txt, npm when there is none, and the artwork packages that package-lock.json pins.
# Does nothing, at once and without the network, when everything is there.
set -euo pipefail
cd "$(dirname "$0")/.."

missing_packages() {
  local wanted installed
  wanted=$(sed 's/#.*//' tools/packages.txt | tr -d ' \t' | grep . | sort -u)
  installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p' | sort -u)
  comm -23 <(printf '%s\n' "$wanted") <(printf '%s\n' "$installed")
  command -v npm >/dev/null || printf 'nodejs\nnpm\n'
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

mapfile -t missing < <(missing_packages)
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  # A source of the machine's own that cannot be reached need not matter: the installation decides.
  as_root apt-get update -q || echo "Warning: not every package list could be updated" >&2
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
    -o DPkg::Lock::Timeout=600 "${missing[@]}"
fi

# npm writes its own copy of the lock file last, so that copy tells when the tree was made.
if [ package-lock.json -nt node_modules/.package-lock.json ]; then
  npm ci --ignore-scripts --no-audit --no-fund
fi
