#!/usr/bin/env bash
# Velto's top-bar indicator and its menu as GNOME Shell shows them without a tray, through Velto's Shell
# extension, inside a private headless GNOME Shell; taken with the shell's own screenshot interface. Needs the
# test suite's packages and root (the shell runs in a mount namespace of its own).
# Usage: tools/screenshots/gnome.sh BUILD_DIR OUTPUT_DIR
set -euo pipefail
build=$(cd "$1" && pwd)
out=$(mkdir -p "$2" && cd "$2" && pwd)
here=$(cd "$(dirname "$0")" && pwd)

if [ -z "${VELTO_SCREENSHOTS_INNER:-}" ]; then
    export VELTO_SCREENSHOTS_INNER=1
    exec dbus-run-session --config-file="$here/../../tests/support/test-bus.conf" -- \
        "$build/tests/platform/linux/run_in_compositor" gnome \
        --extension "$build/src/platform/gnome-shell/legacy/velto@velto.app" -- "$0" "$build" "$out"
fi

home=$(mktemp -d)
trap 'kill "${app:-}" 2>/dev/null; rm -rf "$home"' EXIT
export XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share"
shell() {
    gdbus call --session --dest org.gnome.Shell --object-path /org/gnome/Shell --method org.gnome.Shell.Eval "$1" \
        >/dev/null
}
area() {
    gdbus call --session --dest org.gnome.Shell.Screenshot --object-path /org/gnome/Shell/Screenshot \
        --method org.gnome.Shell.Screenshot.ScreenshotArea "$1" "$2" "$3" "$4" false "$out/$5" >/dev/null
}
"$build/bin/velto" >/dev/null 2>&1 &
app=$!
# The session's own welcome banners stay out of the picture.
shell "Main.messageTray.bannerBlocked = true; Main.messageTray._notificationQueue.forEach(n => n.destroy())"
sleep 4
area 784 0 240 32 gnome-indicator.png
shell "Main.panel.statusArea.velto.menu.open()"
sleep 1
area 664 0 360 350 gnome-indicator-menu.png
"$build/bin/velto" quit >/dev/null
