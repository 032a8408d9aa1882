#!/bin/sh
# Makes the pictures of the window that stand in the README and beside this script, from a demo database.
#   docs/pictures.sh [PROGRAM]        PROGRAM is build/dev/bin/tarnel when left out
set -eu
docs=$(cd "$(dirname "$0")" && pwd)
program=${1:-$docs/../build/dev/bin/tarnel}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$program" new "$work/tasks.db" --demo --mailbox "$work/mailbox" >"$work/told"
"$program" pictures "$work" --scale 1.5 --database "$work/tasks.db" --mailbox "$work/mailbox" >>"$work/told"
mv "$work/frmOutWiz-Tasks.png" "$docs/wizard.png"
mv "$work/frmOutWiz-Appointments.png" "$docs/appointments.png"
mv "$work/frmOutWiz-OutlookSettings.png" "$docs/settings.png"
