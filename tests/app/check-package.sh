#!/usr/bin/env bash
# Builds the Debian package from this build with CPack, as `make deb` does, and checks it the way apt and a user
# meet it: its metadata (Depends from the binaries plus the QML modules, a true Installed-Size), its files,
# lintian, and the executable, manual page and completions unpacked into a scratch root.
# Usage: check-package.sh BUILD_DIR SCRATCH_DIR
set -euo pipefail

build=$(cd "$1" && pwd)
scratch=$2
fail() { echo "check-package: $*" >&2; exit 1; }

rm -rf "$scratch"
mkdir -p "$scratch"
(cd "$build" && cpack -G DEB -B "$scratch/packages" >"$scratch/cpack.log" 2>&1) || fail "cpack: $(tail -5 "$scratch/cpack.log")"
deb=$(ls "$scratch"/packages/velto_*_amd64.deb)
version=$(dpkg-deb -f "$deb" Version)
[ "$(basename "$deb")" = "velto_${version}_amd64.deb" ] || fail "the package is named $(basename "$deb")"

depends=$(dpkg-deb -f "$deb" Depends)
for wanted in libqt6core6 libqt6quick6 libc6 qml6-module-qtquick-controls qml6-module-qtquick-layouts \
              qml6-module-qtquick-shapes qt6-wayland; do
    [[ ", $depends," == *", $wanted"[\ ,]* ]] || fail "Depends lacks $wanted: $depends"
done

files=$(dpkg-deb -c "$deb" | awk '{print $6}')
for wanted in ./usr/bin/velto ./usr/share/applications/com.velto.app.desktop \
              ./usr/share/metainfo/com.velto.app.metainfo.xml ./usr/share/icons/hicolor/scalable/apps/com.velto.app.svg \
              ./usr/share/gnome-shell/extensions/velto@velto.app/extension.js ./usr/share/doc/velto/copyright \
              ./usr/share/doc/velto/changelog.gz; do
    grep -qx -- "$wanted" <<<"$files" || fail "the package lacks $wanted"
done
grep -Eq '^\./usr/lib/(x86_64-linux-gnu/)?velto/velto-windows\.so$' <<<"$files" || fail "no windows module under /usr/lib"
! grep -v '^\./usr/' <<<"$files" | grep -q . || fail "files outside /usr: $(grep -v '^\./usr/' <<<"$files")"

root="$scratch/root"
dpkg -x "$deb" "$root"
! grep -rlF -- "$build" "$root" >/dev/null || fail "build paths inside: $(grep -rlF -- "$build" "$root" | head -3)"
actual=$(du -sk --apparent-size "$root" | cut -f1)
declared=$(dpkg-deb -f "$deb" Installed-Size)
((declared >= actual * 9 / 10 && declared <= actual * 11 / 10)) ||
    fail "Installed-Size says $declared KiB, the files take $actual KiB"
grep -q '^Exec=/usr/bin/velto$' "$root/usr/share/applications/com.velto.app.desktop" ||
    fail "the desktop entry runs $(grep '^Exec=' "$root/usr/share/applications/com.velto.app.desktop" | head -1)"

if command -v lintian >/dev/null; then
    lintian --fail-on error "$deb" >"$scratch/lintian.log" 2>&1 ||
        fail "lintian: $(cat "$scratch/lintian.log")"
fi

# The unpacked executable finds its own libraries relative to itself.
[ "$("$root/usr/bin/velto" --version)" = "velto $version" ] || fail "the packaged velto does not answer --version"
echo "check-package: $(basename "$deb"), $(stat -c %s "$deb") bytes, Installed-Size $declared KiB"
