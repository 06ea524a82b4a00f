#!/usr/bin/env bash
# Torvane installed into a temporary prefix and started by its launcher from an unrelated
# folder works in an application folder of the user's own; a real VCDXMINFO job runs
# through that folder's tools; the desktop entry and the metainfo are valid; the Debian
# package holds it all and names what it needs.  Usage: install_test.sh BUILD MEDIA
set -euo pipefail
build=$1 media=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/prefix" >/dev/null
export HOME=$work/home XDG_DATA_HOME=$work/data QT_QPA_PLATFORM=offscreen
app=$work/data/torvane/app

started=$(cd / && TORVANE_EXIT_AT_START=1 "$work/prefix/bin/torvane")
[ "$started" = "application folder: $app" ] || { echo "started in: $started"; exit 1; }
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
contents=$(dpkg-deb -c "$deb")
for file in bin/torvane lib/torvane/torvane lib/torvane/torvane-cmd lib/torvane/VCDImager/vcdxminfo.exe \
    lib/torvane/lkVCDImager/scanbus.bat share/applications/torvane.desktop \
    share/icons/hicolor/scalable/apps/torvane.svg share/metainfo/org.example.torvane.metainfo.xml; do
    grep -q " \./usr/$file\$" <<<"$contents" || { echo "the package lacks /usr/$file"; exit 1; }
done
for dependency in libqt6widgets6 libvterm0 libcdio19 vcdimager; do
    dpkg-deb -f "$deb" Depends | grep -q "$dependency" || { echo "no dependency on $dependency"; exit 1; }
done
