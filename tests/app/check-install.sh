#!/usr/bin/env bash
# Installs the build into a scratch prefix and checks what a desktop would find there: the executable, a valid
# desktop entry and AppStream file, the icons it names, and an autostart entry that starts the installed velto.
# Usage: check-install.sh BUILD_DIR SCRATCH_DIR BUS_CONFIG
set -euo pipefail

build=$1
scratch=$2
bus_config=$3
prefix="$scratch/usr"
fail() { echo "check-install: $*" >&2; exit 1; }

rm -rf "$scratch"
cmake --install "$build" --prefix "$prefix" >/dev/null

for file in bin/velto \
            share/applications/com.velto.app.desktop \
            share/metainfo/com.velto.app.metainfo.xml \
            share/icons/hicolor/scalable/apps/com.velto.app.svg \
            share/icons/hicolor/symbolic/apps/com.velto.app-symbolic.svg \
            share/gnome-shell/extensions/velto@velto.app/metadata.json \
            share/gnome-shell/extensions/velto@velto.app/extension.js; do
    [ -f "$prefix/$file" ] || fail "$file was not installed"
done
[ -x "$prefix/bin/velto" ] || fail "bin/velto is not executable"

desktop-file-validate "$prefix/share/applications/com.velto.app.desktop" || fail "the desktop entry is not valid"
appstreamcli validate --no-net --pedantic "$prefix/share/metainfo/com.velto.app.metainfo.xml" >/dev/null \
    || fail "the AppStream file is not valid"
# Its screenshots are the README's, as the website serves them.
shots=$(sed -n 's|.*<image type="source">.*/screenshots/\(.*\)</image>.*|\1|p' "$prefix/share/metainfo/com.velto.app.metainfo.xml")
[ -n "$shots" ] || fail "the AppStream file shows no screenshots"
for shot in $shots; do
    [ -f "$(dirname "$0")/../../docs/screenshots/$shot" ] || fail "the AppStream file shows $shot, not in docs/screenshots"
done
icon=$(sed -n 's/^Icon=//p' "$prefix/share/applications/com.velto.app.desktop")
[ -f "$prefix/share/icons/hicolor/scalable/apps/$icon.svg" ] || fail "the desktop entry names icon '$icon', not installed"
grep -q "<launchable type=\"desktop-id\">com.velto.app.desktop</launchable>" \
    "$prefix/share/metainfo/com.velto.app.metainfo.xml" || fail "the AppStream file does not launch the desktop entry"

# Its own libraries and its windows module come from the prefix, never from the build tree.
core=$(ldd "$prefix/bin/velto" | awk '$1 == "libvelto_core.so" {print $3}')
[[ "$core" == "$prefix/"* ]] || fail "the installed velto loads libvelto_core.so from '$core'"
[ -n "$(find "$prefix" -name velto-windows.so)" ] || fail "no windows module under $prefix"

version=$("$prefix/bin/velto" --version)
[[ "$version" == "velto "* ]] || fail "the installed velto answers --version with '$version'"

# A real start (not a test run, so launch at login, on by default, writes its entry) from the installed place.
home="$scratch/home"
mkdir -p "$home"
export HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share"
export QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software
unset VELTO_TEST_SUITE CI GITHUB_ACTIONS GITHUB_WORKFLOW
dbus-run-session --config-file="$bus_config" -- bash -c '
    velto="$1"
    "$velto" >/dev/null 2>"$2" &
    pid=$!
    for _ in $(seq 100); do
        "$velto" status >/dev/null 2>&1 && break
        sleep 0.1
    done
    # The settings window comes from the installed windows module.
    "$velto" settings || { kill "$pid"; exit 1; }
    "$velto" quit || { kill "$pid"; exit 1; }
    wait "$pid"
' _ "$prefix/bin/velto" "$scratch/velto.err" || fail "the installed velto did not start, open its settings and quit"
! grep -q "cannot load" "$scratch/velto.err" || fail "the installed velto: $(cat "$scratch/velto.err")"

entry="$XDG_CONFIG_HOME/autostart/com.velto.app.desktop"
[ -f "$entry" ] || fail "no autostart entry at $entry"
desktop-file-validate "$entry" || fail "the autostart entry is not valid"
try_exec=$(sed -n 's/^TryExec=//p' "$entry")
[ "$try_exec" = "$(realpath "$prefix/bin/velto")" ] || fail "the autostart entry tries $try_exec"
exec_line=$(sed -n 's/^Exec=//p' "$entry")
[ "$exec_line" = "\"$(realpath "$prefix/bin/velto")\"" ] || fail "the autostart entry runs $exec_line"
autostart_icon=$(sed -n 's/^Icon=//p' "$entry")
[ "$autostart_icon" = "$icon" ] || fail "the autostart entry names icon '$autostart_icon'"
echo "check-install: all good under $prefix"
