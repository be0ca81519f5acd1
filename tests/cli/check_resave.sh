#!/usr/bin/env bash
# --check exit codes on a clean, a damaged, a cut and a non-show file; --resave of a
# golden show reproduces it apart from the date and the advanced version.
set -u
lumaris=$1
data=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

expect_code() {
  local want=$1
  shift
  "$lumaris" "$@" >"$work/out" 2>"$work/err"
  local got=$?
  if [ "$got" -ne "$want" ]; then
    echo "FAIL: lumaris $* exited $got, expected $want"
    cat "$work/out" "$work/err"
    failures=$((failures + 1))
  fi
}

expect_code 0 --check "$data/full_show.xml"
grep -qx 'Screens: 4' "$work/out" || { echo "FAIL: --check did not count the screens"; failures=$((failures + 1)); }
expect_code 1 --check "$data/damaged_show.xml"
grep -q 'Submix block 1: Num 40 is out of range' "$work/out" || { echo "FAIL: --check did not name the skipped block"; failures=$((failures + 1)); }
# A show cut short in a Button block: loadable, damaged, and the line is named.
head -c 3000 "$data/full_show.xml" >"$work/cut.xml"
expect_code 1 --check "$work/cut.xml"
grep -q 'reading stopped at line' "$work/out" || { echo "FAIL: --check did not say where the cut show stopped"; failures=$((failures + 1)); }
expect_code 2 --check "$data/not_a_show.xml"
expect_code 2 --check "$work/no_such_show.xml"

expect_code 0 --resave "$data/full_show.xml" "$work/resaved.xml"
mask() { sed -e 's|<Date>[0-9/]*</Date>|<Date/>|' "$1"; }
mask "$data/full_show.xml" | sed -e 's|<Version>7</Version>|<Version>8</Version>|' >"$work/expected.xml"
mask "$work/resaved.xml" >"$work/actual.xml"
if ! cmp -s "$work/expected.xml" "$work/actual.xml"; then
  echo "FAIL: --resave did not reproduce full_show.xml"
  failures=$((failures + 1))
fi
expect_code 0 --check "$work/resaved.xml"
# The demo show's Cue buttons 7 and 8 survive a resave.
expect_code 0 --resave "$data/../../examples/demo_show.xml" "$work/demo.xml"
if [ "$(grep -ao '<Function>5</Function>' "$work/demo.xml" | wc -l)" -ne 2 ]; then
  echo "FAIL: --resave lost the demo show's Cue buttons"; failures=$((failures + 1))
fi
expect_code 2 --resave "$data/not_a_show.xml" "$work/never.xml"
[ ! -e "$work/never.xml" ] || { echo "FAIL: --resave wrote a file for a non-show"; failures=$((failures + 1)); }

# A pipe given as the show is refused at once, with the reason, never waited on.
mkfifo "$work/pipe.xml"
for run in "--check $work/pipe.xml" "--resave $work/pipe.xml $work/from_pipe.xml"; do
  timeout 10 "$lumaris" $run >"$work/out" 2>"$work/err"
  code=$?
  if [ "$code" -ne 2 ] || ! grep -q 'Not a regular file' "$work/err"; then
    echo "FAIL: lumaris $run exited $code"; cat "$work/err"; failures=$((failures + 1))
  fi
done

if [ "$failures" -eq 0 ]; then echo "check_resave: all passed"; fi
exit "$failures"
