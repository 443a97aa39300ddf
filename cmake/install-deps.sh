#!/usr/bin/env bash
# Installs the Debian packages of the given lists (default: debian-packages.txt, what building and running
# need) that are missing. Does no apt work at all when everything is present.
# Usage: install-deps.sh [--dry-run] [LIST...]; --dry-run prints the missing packages, one a line, and installs
# nothing.
set -euo pipefail

dry_run=
if [ "${1:-}" = --dry-run ]; then
    dry_run=1
    shift
fi
[ $# -eq 0 ] && set -- "$(dirname "$0")/debian-packages.txt"
wanted=()
for list in "$@"; do
    mapfile -t -O "${#wanted[@]}" wanted < <(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$list")
done
[ -n "${VELTO_EXTRA_PACKAGES:-}" ] && read -r -a extra <<<"$VELTO_EXTRA_PACKAGES" && wanted+=("${extra[@]}")

missing=()
for pkg in "${wanted[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$pkg" 2>/dev/null || true)
    [ "$status" = "installed" ] || missing+=("$pkg")
done
if [ -n "$dry_run" ]; then
    [ ${#missing[@]} -eq 0 ] || printf '%s\n' "${missing[@]}"
    exit 0
fi
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null 2>&1 && { sudo -n true 2>/dev/null || [ -t 0 ]; }; then
    as_root=(sudo)
else
    echo "velto: missing Debian packages (${missing[*]}); install them as root: apt-get install ${missing[*]}" >&2
    exit 1
fi

echo "velto: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
# A stale or empty package index is the usual reason an install fails on a fresh machine.
if ! "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null 2>&1; then
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
