#!/usr/bin/env bash
# Velto's footprint as a desktop user would see it: the real binary on a private Xvfb display and session bus,
# with a stand-in tray host. After 30 s of settling it samples 60 s of idle running and prints memory (MB, from
# /proc smaps_rollup), CPU (% of one core) and wake-ups per second: the voluntary plus involuntary context
# switches of all its threads, as other break reminders are measured, also listed per thread. Then it shows a
# break, a pre-break card and the settings window, closes them, and prints memory again.
# Memory: RSS, comparable with any other application's figure, and Private_Dirty, what Velto alone costs
# (pages no other process shares and the kernel cannot drop without swapping); PSS for reference.
# Usage: bench/footprint.sh [BUILD_DIR]    (takes about three and a half minutes)
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "${1:-$here/../build}" && pwd)

if [ -z "${VELTO_FOOTPRINT_INNER:-}" ]; then
    export VELTO_FOOTPRINT_INNER=1
    # A window manager, so the settings window can be closed the way a user closes it.
    export VELTO_TEST_WM=openbox
    exec dbus-run-session -- "$here/../tests/support/run-with-xvfb.sh" "$0" "$build"
fi

velto="$build/bin/velto"
home=$(mktemp -d)
trap 'kill "${app:-}" "${host:-}" 2>/dev/null; rm -rf "$home"' EXIT
export HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache"
# VELTO_FOOTPRINT_PICTURE=1: breaks show a 3840x2160 picture of the user's, as a wallpaper background would.
if [ -n "${VELTO_FOOTPRINT_PICTURE:-}" ]; then
    python3 - "$home/picture.png" <<'PNG'
import struct, sys, zlib
width, height = 3840, 2160
row = b"\0" + b"".join(bytes((x * 255 // width, 90, 140)) for x in range(width))
def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
with open(sys.argv[1], "wb") as out:
    out.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)))
    out.write(chunk(b"IDAT", zlib.compress(row * height)) + chunk(b"IEND", b""))
PNG
    mkdir -p "$XDG_CONFIG_HOME/velto"
    printf '%s\n' '# Velto settings: one JSON value per key.' \
        'breakAppearance={"backgroundType":"customImage","backgroundColor":{"red":0.1,"green":0.1,"blue":0.1,"opacity":1},"gradientTheme":"midnight","overlayOpacity":0.3,"screenDisplayMode":"allScreens","customMessages":[],"customImagePath":"'"$home"'/picture.png"}' \
        >"$XDG_CONFIG_HOME/velto/velto.ini"
fi
# Short breaks and a short interval would skew an idle reading; the defaults (20 min, 20 s) are what people run.
"$build/bench/bench_tray_host" >/dev/null &
host=$!
sleep 0.5
"$velto" >/dev/null 2>&1 &
app=$!

memory_mb() {
    awk '/^Rss:/ {r = $2} /^Private_Dirty:/ {d = $2} /^Pss:/ {p = $2}
         END {printf "RSS %.1f  Private_Dirty %.1f  (PSS %.1f)", r / 1024, d / 1024, p / 1024}' "/proc/$app/smaps_rollup"
}
cpu_ticks() { awk '{print $14 + $15}' "/proc/$app/stat"; }
# One line per thread: "tid all-switches voluntary-switches name", spaces in the name made underscores.
thread_switches() {
    local status tid name counts
    for status in /proc/"$app"/task/*/status; do
        tid=${status%/status}; tid=${tid##*/}
        name=$(sed -n 's/^Name:[[:space:]]*//p' "$status" 2>/dev/null) || continue
        counts=$(awk '/^voluntary_ctxt_switches/ {v = $2} /ctxt_switches/ {n += $2} END {print n, v}' "$status" \
            2>/dev/null) || continue
        [ -n "$counts" ] && printf '%s %s %s\n' "$tid" "$counts" "${name// /_}"
    done
}

sleep 30
kill -0 "$app" || { echo "velto did not keep running" >&2; exit 1; }
hz=$(getconf CLK_TCK)
# sample LABEL SECONDS: memory at the end, CPU and wake-ups over the span, and wake-ups per thread.
sample() {
    local t0 t1 start end
    t0=$(cpu_ticks); thread_switches >"$home/switches0"; start=$(date +%s.%N)
    sleep "$2"
    t1=$(cpu_ticks); thread_switches >"$home/switches1"; end=$(date +%s.%N)
    awk -v label="$1" -v memory="$(memory_mb)" -v t="$((t1 - t0))" -v hz="$hz" -v a="$start" -v b="$end" '
        NR == FNR { before[$1] = $2; voluntary[$1] = $3; next }
        # A thread started during the span counts from zero; one that ended is missing from both sums alike.
        {
            d = $2 - before[$1]; v = $3 - voluntary[$1]; total += d
            line[++n] = sprintf("    %-32s %6.2f /s  (voluntary %.2f)", $4 " (" $1 ")", d / (b - a), v / (b - a))
        }
        END {
            e = b - a
            printf "%s:  %s MB   CPU %.2f %%   wake-ups %.2f /s\n", label, memory, 100 * t / hz / e, total / e
            for (i = 1; i <= n; i++) print line[i]
        }' "$home/switches0" "$home/switches1"
}
sample "idle, before any window" 60

call() { dbus-send --session --print-reply --dest=com.velto.app /com/velto/app "com.velto.app.Control.$1" "${@:2}" >/dev/null; }
call takeBreakNow
sleep 26   # a 20 s break, its fades and the next turn
call triggerTestPreBreakNotification
sleep 10   # shown for 8 s, then it slides away
if call openSettings; then
    sleep 3
    # Closed as a user would: the window manager's close shortcut sends the window its close request.
    window=$(xdotool search --name "Velto Settings" | head -n 1)
    [ -n "$window" ] && xdotool windowfocus --sync "$window" key alt+F4 >/dev/null 2>&1
    [ -z "$(xdotool search --name "Velto Settings")" ] || echo "the settings window did not close" >&2
    sleep 2
fi
sleep 5
printf 'after a break, a card and the settings window: %s MB\n' "$(memory_mb)"
# Windows closed must not leave timers behind: the idle figures again.
sample "idle, after the windows" 30
