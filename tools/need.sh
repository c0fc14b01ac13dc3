#!/bin/bash
# Installs the Debian packages among its arguments that are missing. Elsewhere it names them and leaves them to you.
# usage: need.sh PACKAGE...
set -euo pipefail

if ! command -v dpkg >/dev/null; then
  echo "not a Debian system; the equivalents of these packages are needed: $*" >&2
  exit 0
fi
missing=()
for package in "$@"; do
  dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed' || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "installing: ${missing[*]}"
trap 'echo "to do it yourself, as root: apt-get install ${missing[*]}" >&2' ERR
root=(env DEBIAN_FRONTEND=noninteractive)
[ "$(id -u)" = 0 ] || root=(sudo "${root[@]}")
"${root[@]}" apt-get -qq update
"${root[@]}" apt-get -qq -y --no-install-recommends install "${missing[@]}" >/dev/null
