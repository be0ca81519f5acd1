#!/usr/bin/env bash
# Builds the .deb from BUILD_DIR (default: build) and proves it installs: dpkg
# installs it into a throwaway root (dpkg --root, no chroot, so it runs wherever
# CI runs), the installed program answers --version, and every dependency it
# declares is a Debian package apt can install on this machine.
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${BUILD_DIR:-build}
cmake --build "$build_dir" --target lumaris lumaris_manpage -j "$(nproc)"
(cd "$build_dir" && cpack -G DEB >cpack.log) || { cat "$build_dir/cpack.log"; exit 1; }
deb=$(ls -t "$build_dir"/lumaris_*.deb | head -n 1)
echo "package: $deb"
depends=$(dpkg-deb -f "$deb" Depends)
echo "Depends: $depends"
fail() { echo "check_package: $*" >&2; exit 1; }
case "$depends" in *libqt6widgets6*) ;; *) fail "Depends misses the Qt runtime" ;; esac

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
touch "$root/var/lib/dpkg/status" "$root/var/lib/dpkg/available"
# The throwaway root holds no other package, so its dependencies are the host's.
dpkg --root="$root" --force-depends --force-not-root --force-script-chrootless \
  --log=/dev/null -i "$deb" >"$build_dir/dpkg-root.log" 2>&1
"$root/usr/bin/lumaris" --version | grep -qE '^Lumaris [0-9]' || fail "installed lumaris --version"
for file in usr/share/applications/lumaris.desktop usr/share/icons/hicolor/scalable/apps/lumaris.svg \
  usr/share/mime/packages/lumaris.xml usr/share/man/man1/lumaris.1 \
  usr/lib/udev/rules.d/60-lumaris-opendmx.rules usr/share/doc/lumaris/examples/demo_show.xml \
  usr/share/doc/lumaris/examples/moving_spot.fxt usr/share/doc/lumaris/copyright; do
  [ -s "$root/$file" ] || fail "not installed: /$file"
done
grep -q '^Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/' \
  "$root/usr/share/doc/lumaris/copyright" || fail "the copyright file is not in Debian's format"
# Installed without the package, under the default prefix, udev still finds the rule.
DESTDIR="$root/plain" cmake --install "$build_dir" --prefix /usr/local >/dev/null
[ -s "$root/plain/usr/lib/udev/rules.d/60-lumaris-opendmx.rules" ] ||
  fail "cmake --install did not put the udev rule where udev reads it"
[ -s "$root/plain/usr/local/share/doc/lumaris/examples/moving_spot.fxt" ] || fail "cmake --install left out moving_spot.fxt"
if command -v desktop-file-validate >/dev/null 2>&1; then
  desktop-file-validate "$root/usr/share/applications/lumaris.desktop"
fi
# Every dependency resolves to a package of this machine's Debian archive.
apt-get install --simulate --no-install-recommends "$(realpath "$deb")" >"$build_dir/apt-simulate.log" 2>&1 ||
  { cat "$build_dir/apt-simulate.log"; fail "apt cannot satisfy the package's dependencies"; }
echo "package installs: $(basename "$deb")"
