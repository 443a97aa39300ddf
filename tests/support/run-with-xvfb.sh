#!/usr/bin/env bash
# Runs a command on a private Xvfb display of its own, optionally under openbox (VELTO_TEST_WM=openbox), and
# stops both afterwards. Usage: run-with-xvfb.sh COMMAND [ARGS...]
set -u
xvfb=$(command -v Xvfb) || { echo "run-with-xvfb: Xvfb is not installed" >&2; exit 1; }
for number in $(seq 120 199); do
    [ -e "/tmp/.X${number}-lock" ] || [ -e "/tmp/.X11-unix/X${number}" ] && continue
    "$xvfb" ":${number}" -nolisten tcp -noreset -screen 0 ${VELTO_TEST_SCREEN:-1280x800x24} >/dev/null 2>&1 &
    server=$!
    for _ in $(seq 1 100); do
        [ -e "/tmp/.X11-unix/X${number}" ] && break
        kill -0 "$server" 2>/dev/null || break
        sleep 0.05
    done
    if [ -e "/tmp/.X11-unix/X${number}" ] && kill -0 "$server" 2>/dev/null; then
        export DISPLAY=":${number}"
        break
    fi
    kill "$server" 2>/dev/null; wait "$server" 2>/dev/null
    server=
done
[ -n "${DISPLAY:-}" ] && [ -n "${server:-}" ] || { echo "run-with-xvfb: no free display" >&2; exit 1; }
wm=
if [ "${VELTO_TEST_WM:-}" = openbox ] && command -v openbox >/dev/null; then
    openbox --sm-disable >/dev/null 2>&1 &
    wm=$!
    # openbox sets _NET_SUPPORTING_WM_CHECK once it manages the screen.
    for _ in $(seq 1 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
        sleep 0.05
    done
fi
"$@"
status=$?
[ -n "$wm" ] && { kill "$wm" 2>/dev/null; wait "$wm" 2>/dev/null; }
kill "$server" 2>/dev/null; wait "$server" 2>/dev/null
exit $status
