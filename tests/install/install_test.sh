#!/usr/bin/env bash
# Torvane installed into a temporary prefix and started by its launcher from an unrelated
# folder works in an application folder of the user's own; a real VCDXMINFO job runs
# through that folder's tools; a folder that cannot be made ends the start with the reason;
# --help and --version need no display; the desktop entry and the metainfo are valid; the
# Debian package holds it all, passes lintian, is hardened and names what it needs.
#   Usage: install_test.sh BUILD MEDIA HARDENED(ON: built with Debian's hardening flags)
set -euo pipefail
build=$1 media=$2 hardened=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'echo "failed: line $LINENO" >&2' ERR
cmake --install "$build" --prefix "$work/prefix" >/dev/null
export HOME=$work/home XDG_DATA_HOME=$work/data QT_QPA_PLATFORM=offscreen
app=$work/data/torvane/app
torvane=$work/prefix/bin/torvane
headless=(env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=)  # no window system to be had

printed=$("${headless[@]}" "$torvane" --version) && "${headless[@]}" "$torvane" --help | grep -q "^Usage: "
touch "$work/file" && status=0
reason=$("${headless[@]}" XDG_DATA_HOME="$work/file" "$torvane" 2>&1) || status=$?
[[ $status -eq 1 && $reason == *"$work/file/torvane/app"* && ! -e $app ]]

[ "$(cd / && TORVANE_EXIT_AT_START=1 "$torvane")" = "application folder: $app" ]
[ -L "$app/VCDImager/vcdxminfo.exe" ] && [ -w "$app/lkVCDImager" ]

cp "$media/clip-vcd.mpg" "$work/clip é.mpg"
printf 'echo off\r\n"%s/VCDImager/vcdxminfo.exe" -i -a -v -p --output-file="%s/r.xml" "%s"\r\n' \
    "$app" "$work" "$work/clip é.mpg" >"$work/run.bat"
(cd "$work" && "$app/torvane-cmd" run.bat >/dev/null 2>&1)
grep -q "<horizontal-size>352</horizontal-size>" "$work/r.xml"

desktop-file-validate "$work/prefix/share/applications/torvane.desktop"
appstreamcli validate --no-net "$work/prefix/share/metainfo/org.example.torvane.metainfo.xml" >/dev/null

(cd "$build" && cpack -B "$work/package" >/dev/null)
deb=$(ls "$work"/package/torvane_*.deb)
lintian --fail-on error,warning "$deb"
root=$work/root && dpkg-deb -x "$deb" "$root"
for file in bin/torvane lib/torvane/{torvane,torvane-cmd,VCDImager/vcdxminfo.exe,lkVCDImager/scanbus.bat} \
    share/applications/torvane.desktop share/icons/hicolor/{scalable/apps/torvane.svg,{16x16,256x256}/apps/torvane.png}; do
    [ -f "$root/usr/$file" ] || { echo "the package lacks /usr/$file"; exit 1; }
done
grep -q "^License: GPL-2+" "$root/usr/share/doc/torvane/copyright"

# One version: what the program prints, the package, the metainfo, the change log, the manual.
version=$(dpkg-deb -f "$deb" Version) && [ "$printed" = "Torvane $version" ]
grep -q "<release version=\"$version\"" "$root/usr/share/metainfo/org.example.torvane.metainfo.xml"
zcat "$root/usr/share/doc/torvane/changelog.gz" | grep -qF "torvane ($version)"
zcat "$root/usr/share/man/man1/torvane.1.gz" | grep -q "^\.TH TORVANE 1 .* \"Torvane $version\""

# Libraries with the least versions the build found; the programs Torvane runs by name.
depends=$(dpkg-deb -f "$deb" Depends)
for library in libc6 libgcc-s1 libqt6widgets6 libvterm0 libcdio19; do grep -qF "$library (>= " <<<"$depends"; done
grep -qE "ffmpeg,.*vcdimager,.*xdg-utils" <<<"$depends"

# Every program and the preloaded library of a hardened build: stack protector, immediate
# binding, and checked libc calls. Three make no call the compiler could not prove in bounds,
# so hardening-check finds no checked call in them.
[ "$hardened" = OFF ] || for binary in $(find "$root/usr/lib/torvane" -type f \( -perm -u+x -o -name '*.so' \) ! -name '*.bat'); do
    report=$(hardening-check "$binary" || true) fortify=yes
    case ${binary##*/} in torvane-cmd | scanbus.exe | torvane-reading.so) fortify="(yes|no, only unprotected)" ;; esac
    [[ $report =~ "Stack protected: yes".*"Fortify Source functions: "$fortify.*"Immediate binding: yes" ]] ||
        { echo "$report"; exit 1; }
done
