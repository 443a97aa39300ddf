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
              ./usr/share/doc/velto/changelog.gz ./usr/share/man/man1/velto.1.gz \
              ./usr/share/bash-completion/completions/velto ./usr/share/zsh/vendor-completions/_velto \
              ./usr/share/fish/vendor_completions.d/velto.fish; do
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
velto="$root/usr/bin/velto"
[ "$("$velto" --version)" = "velto $version" ] || fail "the packaged velto does not answer --version"

# The manual page and the completions know every command --help names.
commands=$("$velto" --help | sed -n '/^Commands/,/^$/s/^  \([a-z-]*\).*/\1/p')
[ -n "$commands" ] || fail "--help names no commands"
page=$(MANWIDTH=100 man -l "$root/usr/share/man/man1/velto.1.gz" 2>&1 | col -b)
for section in SYNOPSIS COMMANDS "EXIT STATUS" FILES ENVIRONMENT "D-BUS INTERFACE"; do
    grep -q "^$section" <<<"$page" || fail "the manual page has no $section"
done
completions="$root/usr/share/bash-completion/completions/velto"
for command in $commands; do
    grep -q "^       $command\b" <<<"$page" || fail "the manual page does not explain $command"
    # What bash offers for the command's first letters.
    offered=$(bash -c 'source "$1"; COMP_WORDS=(velto "$2"); COMP_CWORD=1; _velto; printf "%s\n" "${COMPREPLY[@]}"' \
        _ "$completions" "${command:0:3}")
    grep -qx "$command" <<<"$offered" || fail "bash completes '${command:0:3}' to '$offered', not $command"
done
offered=$(bash -c 'source "$1"; COMP_WORDS=(velto status --j); COMP_CWORD=2; _velto; echo "${COMPREPLY[@]}"' _ "$completions")
[ "$offered" = "--json" ] || fail "bash completes 'velto status --j' to '$offered'"
if command -v fish >/dev/null; then
    offered=$(fish -c "source $root/usr/share/fish/vendor_completions.d/velto.fish; complete -C'velto chec'" | cut -f1)
    [ "$offered" = "check-updates" ] || fail "fish completes 'velto chec' to '$offered'"
fi
if command -v zsh >/dev/null; then
    zsh -n "$root/usr/share/zsh/vendor-completions/_velto" || fail "the zsh completion does not parse"
fi
echo "check-package: $(basename "$deb"), $(stat -c %s "$deb") bytes, Installed-Size $declared KiB"
