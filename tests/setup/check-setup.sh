#!/usr/bin/env bash
# `make run` installs only what building and running Velto need; `make test` adds the test suite's packages.
# Played on a machine that has no package at all (dpkg-query knows none), through the Makefile's own recipes.
set -euo pipefail
unset MAKEFLAGS MFLAGS MAKELEVEL # a make that runs the suite is no parent of these dry runs
root=$(cd "$(dirname "$0")/../.." && pwd)
shim=$(mktemp -d)
trap 'rm -rf "$shim"' EXIT
printf '#!/bin/sh\nexit 1\n' >"$shim/dpkg-query"
chmod +x "$shim/dpkg-query"

names() { sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$@" | sort -u; }
# What the Makefile's package step for TARGET would install on that machine.
installs() {
    local step
    step=$(make -s -n -C "$root" "$1" | awk '/install-deps\.sh/ && !found { print; found = 1 }')
    step=${step#bash }
    (cd "$root" && PATH="$shim:$PATH" bash ${step/install-deps.sh/install-deps.sh --dry-run}) | sort -u
}

fail=0
run=$(installs run)
test=$(installs test)
leaked=$(comm -12 <(echo "$run") <(names "$root/cmake/debian-test-packages.txt"))
[ -z "$leaked" ] || { echo "make run would install test-only packages: $leaked"; fail=1; }
[ "$run" = "$(names "$root/cmake/debian-packages.txt")" ] || { echo "make run would install: $run"; fail=1; }
[ "$test" = "$(names "$root/cmake/debian-packages.txt" "$root/cmake/debian-test-packages.txt")" ] ||
    { echo "make test would install: $test"; fail=1; }
# Velto alone is configured without the tests, whose configuration asks for test-only tools. (grep reads all
# of make's output: with -q it could stop early and fail the pipe.)
make -s -n -C "$root" run | grep -- '-DVELTO_BUILD_TESTS=OFF' >/dev/null || { echo "make run configures the tests"; fail=1; }
exit $fail
