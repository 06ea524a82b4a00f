#!/bin/sh
# Starts the installed Torvane. The program takes its current directory as its
# application folder, and it and its jobs write there: job scripts and MPEG lists in the
# tool folders, the drive scan's files in lkVCDImager/. The installed folder belongs to
# root, so each user gets an application folder of their own, under
# $XDG_DATA_HOME/torvane/app, holding links to the installed files; the links are made
# anew at every start, so that an upgrade is seen at once.
set -e
self=$(readlink -f "$0")
installed=$(cd "$(dirname "$self")/../lib/torvane" && pwd)
app=${XDG_DATA_HOME:-$HOME/.local/share}/torvane/app
mkdir -p "$app/VCDImager" "$app/lkVCDImager"
for file in "$installed"/* "$installed"/VCDImager/* "$installed"/lkVCDImager/*; do
    [ -f "$file" ] || continue
    ln -sfn "$file" "$app/${file#"$installed"/}"
done
cd "$app"
exec "$installed/torvane" "$@"
