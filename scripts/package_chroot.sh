#!/usr/bin/env bash
# Installs the Debian packages as a new user would, on a clean Debian 12 made with debootstrap, and
# renders the control dialog there. Not part of CI: it downloads the base system and Qt (a few hundred
# megabytes). Run as root after scripts/package.sh.
#
#   bash scripts/package_chroot.sh [CHROOT_DIR] [PACKAGE_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."

root=${1:-build/debian12}
packages=${2:-build/packages}
command -v debootstrap > /dev/null || DEBIAN_FRONTEND=noninteractive apt-get install -y -qq debootstrap > /dev/null
if [ ! -x "$root/usr/bin/apt-get" ]; then
    echo "== Making a clean Debian 12 in $root"
    debootstrap --variant=minbase bookworm "$root" http://deb.debian.org/debian > /dev/null
fi
mkdir -p "$root/tmp/debs"
cp "$packages"/libtrovane-embed0_*.deb "$packages"/trovane-dialog_*.deb "$root/tmp/debs/"
echo "== apt-get install ./trovane-dialog_*.deb"
chroot "$root" /bin/bash -c '
    set -e
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq /tmp/debs/*.deb > /dev/null
    QT_QPA_PLATFORM=offscreen trovane-dialog --screenshot /tmp/out.png 2> /dev/null
    test -s /tmp/out.png'
cp "$root/tmp/out.png" "$packages/debian12-screenshot.png"
echo "installed and ran on a clean Debian 12: $packages/debian12-screenshot.png"
