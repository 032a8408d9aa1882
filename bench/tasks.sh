# Sourced by the scripts here: a folder that goes at the end, and task databases in it.

here=$(cd "$(dirname "$0")" && pwd)
build=${BUILD:-$here/../build/release}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Nothing of the user's own is read or written.
export HOME="$work/home" XDG_CONFIG_HOME="$work/home/config" XDG_DATA_HOME="$work/home/data" XDG_STATE_HOME="$work/home/state"
mkdir -p "$HOME"

# makeTasks FILE COUNT: a task database with so many current tasks.
makeTasks() {
  "$build/bin/tarnel" new "$1" --mailbox "$1.mailbox" > /dev/null
  sqlite3 "$1" "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < $2)
    INSERT INTO TASKS(tskGUIDID, tskDesc, tskNotes, tskHasNotes, tskDeadline, tskProject, tskCurrent, tskTimeNeeded,
      tskPossPoints, tskCreatedDate, tskLastMod)
    SELECT printf('%08X-7C1D-4A6E-9F30-5B2D8E1A4C77', i), 'Call the office about matter ' || i,
      'Ask for the papers of last year.', 1, '2026-11-19 08:30:00', 'Household', 1, i % 240, i * 7919 % 1000,
      '2026-01-02 10:00:00', '2026-03-04 11:15:00' FROM n;"
}

# seconds COMMAND...: its wall time, its output thrown away; the script ends when it fails. What was written before is
# on the disk by then.
seconds() {
  sync
  python3 - "$@" << 'END'
import subprocess, sys, time
start = time.monotonic()
done = subprocess.run(sys.argv[1:], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
taken = time.monotonic() - start
if done.returncode: sys.exit("%s failed: %s" % (sys.argv[1], done.stderr.decode()))
print("%.4f" % taken)
END
}

# ratios NAME LIMIT FILE: FILE holds pairs "baseline ours"; their medians, and the median of the pairs' ratios.
ratios() {
  python3 - "$@" << 'END'
import statistics, sys
name, limit, file = sys.argv[1:]
pairs = [tuple(map(float, line.split())) for line in open(file)]
middle = lambda values: statistics.median(values)
print("%-34s baseline %.3f s, ours %.3f s, ours/baseline %.3f (limit %s)" % (
    name, middle(b for b, _ in pairs), middle(o for _, o in pairs), middle(o / b for b, o in pairs), limit))
END
}
