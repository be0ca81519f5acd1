#!/usr/bin/env bash
# Writes the manual page of lumaris from the program's own --help and --version
# text, so the two never disagree: scripts/make_manpage.sh LUMARIS OUT
set -euo pipefail
lumaris=$1
out=$2
version=$("$lumaris" --version | sed -e 's/^Lumaris //')
# troff: backslashes first, then minus signs, then lines that would read as requests.
escape() { sed -e 's/\\/\\e/g' -e 's/-/\\-/g' -e "s/^\\([.']\\)/\\\\\\&\\1/"; }
{
  echo ".TH LUMARIS 1 \"\" \"Lumaris $version\" \"User Commands\""
  echo ".SH NAME"
  echo "lumaris \\- a PC lighting console for one DMX512 universe"
  echo ".SH SYNOPSIS"
  echo ".B lumaris"
  echo "[\\fIoptions\\fR] [\\fISHOW\\fR]"
  echo ".SH DESCRIPTION"
  echo "Lumaris runs a lighting show from desk windows: 64 channel faders with masters and"
  echo "32 submixes, a playback desk of recorded screens, a sequence desk of chases, DMX"
  echo "output through USB and parallel-port adapters, and Art-Net. Shows are XML files."
  echo "Without a display that can be opened the console says so and runs headless."
  echo ".SH OPTIONS"
  echo ".nf"
  "$lumaris" --help | escape
  echo ".fi"
  echo ".SH EXIT STATUS"
  echo "0 on a clean end (SIGINT and SIGTERM end the console cleanly); 2 for a command-line"
  echo "error, or when a headless run cannot load the show it was given. \\fB\\-\\-check\\fR exits"
  echo "0 for a whole show, 1 for a damaged one that loads in part, 2 for a file that is no show."
  echo ".SH FILES"
  echo ".TP"
  echo ".I ~/.config/Lumaris/Lumaris.conf"
  echo "this computer's settings, such as the Art\\-Net destination set in Art\\-Net Setup"
  echo ".TP"
  echo ".I /usr/lib/udev/rules.d/60\\-lumaris\\-opendmx.rules"
  echo "gives the plugdev group access to Open DMX USB interfaces (FTDI 0403:6001)"
  echo ".TP"
  echo ".I /usr/share/doc/lumaris/examples/"
  echo "example shows: demo_show.xml, artnet_demo_show.xml, installation_loop.xml"
} >"$out"
