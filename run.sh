#!/usr/bin/env bash
# Installs what is missing, builds the program and opens the wizard on a demo database. Arguments go on to
# `tarnel wizard`. Without a display the same wizard tells its lists and saves pictures of its window.
set -euo pipefail
cd "$(dirname "$0")"
. .ci/packages.sh

install_missing "${build_packages[@]}" "${show_packages[@]}"
cmake --preset dev >/dev/null
cmake --build --preset dev --target tarnel

tarnel=build/dev/bin/tarnel
files=(--database demo/tasks.db --mailbox demo/outlook.mailbox)
[ -e demo/tasks.db ] || "$tarnel" new demo/tasks.db --demo --mailbox demo/outlook.mailbox

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$tarnel" wizard "${files[@]}" "$@"
fi

echo "There is no display here. The same wizard, without one:"
printf '%s\n' 'list smtTaskList(0)' 'list smtTaskList(1)' | "$tarnel" drive "${files[@]}" "$@" | jq -r '
  if .reply == "list" then
    "", (if .control == "smtTaskList(0)" then "Tarnel" else "Microsoft Outlook" end),
    (.items[] | "  [" + (if .checked then "x" else " " end) + "] " + (.caption | gsub("&&"; "&"))
      + (if .toolTip == "" then "" else "   (" + .toolTip + ")" end))
  elif .message then "", .message.text
  elif .report then "", .report.text
  else empty end'
echo
"$tarnel" pictures demo/pictures "${files[@]}" "$@"
echo "Pictures of the window are in demo/pictures."
