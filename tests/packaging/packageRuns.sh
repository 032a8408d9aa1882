#!/usr/bin/env bash
# Packs the program, unpacks it into an empty root and works with what lies there, as on a machine that never saw the
# sources.   packageRuns.sh BUILD_FOLDER
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "packageRuns: $*" >&2; exit 1; }

(cd "$work" && cpack --config "$build/CPackConfig.cmake" -B "$work/pack" >"$work/log" 2>&1) || { cat "$work/log"; fail "no package"; }
package=$(echo "$work"/pack/*.deb)
depends=$(dpkg-deb -f "$package" Depends)
for library in libsqlite3-0 libical3 libstdc++6; do
  [[ $depends == *$library* ]] || fail "no dependency on $library in: $depends"
done

root=$work/root
dpkg-deb -x "$package" "$root"
man -l --warnings "$root/usr/share/man/man1/tarnel.1" >/dev/null 2>"$work/warnings"
[ ! -s "$work/warnings" ] || { cat "$work/warnings"; fail "the man page has faults"; }
for file in share/applications/tarnel.desktop share/icons/hicolor/scalable/apps/tarnel.svg \
  share/doc/tarnel/copyright include/tarnel/TarnelOutWizard.idl lib/tarnel/help/helpindex.htm; do
  [ -s "$root/usr/$file" ] || fail "$file is missing"
done

mkdir "$work/home"
cd "$work/home"
tarnel() { env -i PATH=/usr/bin:/bin HOME="$work/home" "$root/usr/bin/tarnel" "$@"; }
tarnel --help | grep -q 'Outlook Wizard' || fail "no help text"
tarnel new tasks.db --demo
tarnel drive --database tasks.db >facts <<'COMMANDS'
list smtTaskList(0)
key 27
COMMANDS
grep -q 'File the tax return' facts || { cat facts; fail "the wizard shows no task"; }
tail -n 1 facts | grep -qx '{"returned":true}' || { cat facts; fail "the wizard did not come back"; }

# The example, made from what the package brings alone.
cc "$root/usr/share/doc/tarnel/examples/openWizard.c" -o openWizard -I"$root/usr/include/tarnel" -ldl
echo 'key 27' | env -i HOME="$work/home" LD_LIBRARY_PATH="$root/usr/lib" ./openWizard tasks.db - >facts
grep -qx 'event 1 CloseTheWizard' facts || { cat facts; fail "the example heard no event"; }
[ ! -e .local/state/tarnel/errors.txt ] || { cat .local/state/tarnel/errors.txt; fail "a failure was reported"; }
