#!/bin/sh
# Copying 2,000 tasks, whole processes in turn: vdirsyncer from one folder of .ics files to another, tarnel from a task
# database to a mailbox. First run, then one that changes nothing in vdirsyncer's folders and updates every item here.
# Ours is to take at most a fifth.   BUILD=build/release bench/peer.sh [TASKS] [PAIRS]
set -eu
tasks=${1:-2000}
pairs=${2:-5}
. "$(dirname "$0")/tasks.sh"
command -v vdirsyncer > /dev/null || { echo "Install vdirsyncer first." >&2; exit 1; }

makeTasks "$work/fresh.db" "$tasks"
python3 - "$work/ics" "$tasks" << 'END'
import os, sys
folder, count = sys.argv[1], int(sys.argv[2])
os.makedirs(folder + "/tasks")
for i in range(count):
    uid = "%08X-7C1D-4A6E-9F30-5B2D8E1A4C77" % i
    with open("%s/tasks/%s.ics" % (folder, uid), "w", newline="") as file:
        file.write("\r\n".join(["BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//bench//tasks", "BEGIN:VTODO", "UID:" + uid,
            "DTSTAMP:20261119T083000Z", "SUMMARY:Call the office about matter %d" % i,
            "DESCRIPTION:Ask for the papers of last year.", "DUE:20261119T083000", "STATUS:NEEDS-ACTION",
            "END:VTODO", "END:VCALENDAR", ""]))
END
cat > "$work/config" << END
[general]
status_path = "$work/status/"
[pair tasks]
a = "from"
b = "to"
collections = ["tasks"]
[storage from]
type = "filesystem"
path = "$work/ics/"
fileext = ".ics"
[storage to]
type = "filesystem"
path = "$work/copy/"
fileext = ".ics"
END

cat > "$work/drive" << END
#!/bin/sh
printf 'click smtTaskActions(0) ALL\nclick smtTaskActions(0) UPDATE\n' |
  "$build/bin/tarnel" drive --database "$work/run.db" --mailbox "$work/run.db.mailbox"
END
chmod +x "$work/drive"
peer() { seconds vdirsyncer -c "$work/config" sync; }
itemsCopied() { sqlite3 "$work/run.db.mailbox" "SELECT count(*) FROM items"; }

for pair in $(seq "$pairs"); do
  rm -rf "$work/copy" "$work/status" "$work"/run.db*
  mkdir -p "$work/copy/tasks"
  yes | vdirsyncer -c "$work/config" discover > /dev/null 2>&1
  cp "$work/fresh.db" "$work/run.db"
  cp "$work/fresh.db.mailbox" "$work/run.db.mailbox"
  echo "$(peer) $(seconds "$work/drive")" >> "$work/first"
  echo "$(peer) $(seconds "$work/drive")" >> "$work/second"
  test "$(ls "$work/copy/tasks" | wc -l)" = "$tasks" && test "$(itemsCopied)" = "$tasks" ||
    { echo "Not all tasks were copied." >&2; exit 1; }
done
ratios "first copy of $tasks tasks" 0.2 "$work/first"
ratios "second run" 0.2 "$work/second"
