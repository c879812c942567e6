#!/usr/bin/env bash
# Installs what is missing of the given groups of scripts/packages.txt.
# Usage: install_packages.sh GROUP...
set -euo pipefail

list=$(dirname "$0")/packages.txt
wanted=()
while read -r package group _; do
  [[ -z $package || $package == \#* ]] && continue
  for asked in "$@"; do
    if [[ $group == "$asked" ]]; then wanted+=("$package"); fi
  done
done <"$list"

installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null |
  awk '$2 == "installed" {print $1}' || true)
missing=()
for package in "${wanted[@]}"; do
  if ! grep -qxF "$package" <<<"$installed"; then missing+=("$package"); fi
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

as_root=()
if [[ $(id -u) -ne 0 ]]; then
  if ! command -v sudo >/dev/null; then
    echo "These packages are missing and need root to install: ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

echo "Installing ${missing[*]}" >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
install() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y "$@"
}
if ! { install update && install install --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
  tail -n 20 "$log" >&2
  echo "These packages are missing and could not be installed: ${missing[*]}" >&2
  exit 1
fi
