#!/bin/sh
# Starts the installed Torvane. The program takes its current directory as its
# application folder, and it and its jobs write there: job scripts and MPEG lists in the
# tool folders, the drive scan's files in lkVCDImager/. The installed folder belongs to
# root, so each user gets an application folder of their own, under
# $XDG_DATA_HOME/torvane/app, holding links to the installed files; the links are made
# anew at every start, so that an upgrade is seen at once.
#
# When that folder cannot be made, the reason goes to standard error and, on a desktop,
# into a message box (a person who started Torvane from a menu sees no terminal); the
# launcher then ends with status 1.
set -e
self=$(readlink -f "$0")
installed=$(cd "$(dirname "$self")/../lib/torvane" && pwd)
case ${1-} in
--help | --version) exec "$installed/torvane" "$1" ;;
esac

app=${XDG_DATA_HOME:-$HOME/.local/share}/torvane/app
fail() {
    reason="Torvane cannot start: it cannot make its application folder $app.
$1"
    echo "$reason" >&2
    if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
        TORVANE_START_FAILURE=$reason "$installed/torvane" >/dev/null 2>&1 || true
    fi
    exit 1
}
error=$(mkdir -p "$app/VCDImager" "$app/lkVCDImager" "$app/MPEG" 2>&1) || fail "$error"
for file in "$installed"/* "$installed"/VCDImager/* "$installed"/lkVCDImager/* "$installed"/MPEG/*; do
    [ -f "$file" ] || continue
    error=$(ln -sfn "$file" "$app/${file#"$installed"/}" 2>&1) || fail "$error"
done

# The files named were named from the folder the launcher was called in.
for file; do
    case $file in
    /*) ;;
    *) file=$PWD/$file ;;
    esac
    set -- "$@" "$file"
    shift
done
cd "$app"
exec "$installed/torvane" "$@"
