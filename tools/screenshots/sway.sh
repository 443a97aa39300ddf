#!/usr/bin/env bash
# The pre-break card and the break screen as Velto shows them on sway, two outputs and a bar, with a native
# editor window in front; taken with grim inside a private headless sway. Needs the test suite's packages.
# Usage: tools/screenshots/sway.sh BUILD_DIR OUTPUT_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
out=$(mkdir -p "$2" && cd "$2" && pwd)

if [ -z "${VELTO_SCREENSHOTS_INNER:-}" ]; then
    export VELTO_SCREENSHOTS_INNER=1
    here=$(cd "$(dirname "$0")" && pwd)
    exec dbus-run-session --config-file="$here/../../tests/support/test-bus.conf" -- \
        "$build/tests/platform/linux/run_in_compositor" sway --bar -- "$0" "$build" "$out"
fi

home=$(mktemp -d)
trap 'kill "${app:-}" "${editor:-}" 2>/dev/null; rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share"
sleep 60 | "$build/tests/platform/linux/wayland_test_window" --app-id org.example.Editor --title Editor >/dev/null &
editor=$!
sleep 1
"$build/bin/velto" >/dev/null 2>&1 &
app=$!
sleep 3
dbus-send --session --print-reply --dest=com.velto.app /com/velto/app \
    com.velto.app.Control.triggerTestPreBreakNotification >/dev/null
sleep 1.5
grim -o HEADLESS-1 "$out/sway-card.png"
"$build/bin/velto" break
sleep 1.5
grim "$out/sway-break.png"
"$build/bin/velto" quit >/dev/null
