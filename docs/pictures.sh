#!/bin/sh
# Makes the pictures of the window that lie beside this script and in the help pages, from a demo database.
#   docs/pictures.sh [PROGRAM]        PROGRAM is build/dev/bin/tarnel when left out
set -eu
docs=$(cd "$(dirname "$0")" && pwd)
program=${1:-$docs/../build/dev/bin/tarnel}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

grab() { # SCALE: into a folder of that name
  "$program" pictures "$work/$1" --scale "$1" --database "$work/tasks.db" --mailbox "$work/mailbox" >>"$work/told"
}

"$program" new "$work/tasks.db" --demo --mailbox "$work/mailbox" >"$work/told"
grab 1.5
mv "$work/1.5/frmOutWiz-Tasks.png" "$docs/wizard.png"
mv "$work/1.5/frmOutWiz-Appointments.png" "$docs/appointments.png"
mv "$work/1.5/frmOutWiz-OutlookSettings.png" "$docs/settings.png"
grab 2
for picture in "$work"/2/*.png; do
  mv "$picture" "$docs/../host/help/images/$(basename "$picture" .png)@2x.png"
done
