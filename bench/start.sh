#!/bin/sh
# From the start of the process to the first painted window: `tarnel wizard` with 10,000 tasks beside a bare Qt window
# with an empty list, whole processes in turn, on Qt's offscreen platform or, with DISPLAY set, on that screen. At most
# 2 times.   BUILD=build/release bench/start.sh [TASKS] [PAIRS]
set -eu
tasks=${1:-10000}
pairs=${2:-15}
. "$(dirname "$0")/tasks.sh"
[ -n "${DISPLAY:-}" ] || export QT_QPA_PLATFORM=offscreen

makeTasks "$work/start.db" "$tasks"
for pair in $(seq "$pairs"); do
  echo "$(seconds "$build/bench/bare_window")" \
    "$(seconds "$build/bench/wizard_start" wizard --database "$work/start.db" --mailbox "$work/start.db.mailbox")" \
    >> "$work/pairs"
done
ratios "first window with $tasks tasks" 2 "$work/pairs"
