#!/usr/bin/env bash
# --check and --resave on fixture files: the hand-written golden files pass and
# resave byte for byte; a damaged one is refused whole; a show named .fxt is not one.
set -u
lumaris=$1
data=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

fail() { echo "FAIL: $*"; cat "$work/out" "$work/err"; failures=$((failures + 1)); }

expect_code() {
  local want=$1
  shift
  "$lumaris" "$@" >"$work/out" 2>"$work/err"
  local got=$?
  [ "$got" -eq "$want" ] || fail "lumaris $* exited $got, expected $want"
}

expect_code 0 --check "$data/fixture_single.fxt"
grep -qx 'Kind: single' "$work/out" || fail "--check did not name the kind"
grep -q '^Fixture 1: Spot 250 ' "$work/out" || fail "--check did not list the fixture"
expect_code 0 --check "$data/fixture_all.fxt"
grep -q '^Fixture 4: Wash' "$work/out" || fail "--check did not list fixture 4 of an all file"

for kind in single all; do
  cp "$data/fixture_$kind.fxt" "$work/in_$kind.FXT"
  expect_code 0 --resave "$work/in_$kind.FXT" "$work/out_$kind.fxt"
  cmp -s "$data/fixture_$kind.fxt" "$work/out_$kind.fxt" || fail "--resave did not reproduce fixture_$kind.fxt"
done

# As an editor leaves it: a byte-order mark in front, a Ctrl-Z at the end; a resave drops both.
{ printf '\357\273\277'; cat "$data/fixture_single.fxt"; printf '\032'; } >"$work/edited.fxt"
expect_code 0 --check "$work/edited.fxt"
grep -q 'byte-order mark' "$work/out" && grep -q 'Ctrl-Z' "$work/out" || fail "--check did not name the editor's marks"
expect_code 0 --resave "$work/edited.fxt" "$work/plain.fxt"
cmp -s "$data/fixture_single.fxt" "$work/plain.fxt" || fail "--resave kept the editor's marks"

head -c 1000 "$data/fixture_single.fxt" >"$work/cut.fxt"
expect_code 1 --check "$work/cut.fxt"
grep -q 'Damaged at line' "$work/out" || fail "--check did not say where the cut file is damaged"
expect_code 1 --resave "$work/cut.fxt" "$work/never.fxt"
[ ! -e "$work/never.fxt" ] || fail "--resave wrote a damaged fixture file"

cp "$data/fixture_single.fxt" "$work/spot.xml"  # a fixture file not named .fxt is read as a show
expect_code 2 --check "$work/spot.xml"
cp "$data/full_show.xml" "$work/show.fxt"
expect_code 2 --check "$work/show.fxt"
grep -q 'Not a LUMARIS Fixture V.2 file !' "$work/err" || fail "--check did not say the show is not a fixture file"
expect_code 2 --resave "$work/show.fxt" "$work/never.fxt"
[ ! -e "$work/never.fxt" ] || fail "--resave wrote a file for a non-fixture file"

if [ "$failures" -eq 0 ]; then echo "check_fixtures: all passed"; fi
exit "$failures"
