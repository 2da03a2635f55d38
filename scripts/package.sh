#!/usr/bin/env bash
# Builds the Debian packages (runtime library, -dev, programs) into build/packages, checks their
# contents and dependency fields, runs lintian on them, and tries the control dialog from a
# throw-away root.
#
#   bash scripts/package.sh [BUILD_DIR]
#
# BUILD_DIR (default build/package, a Release build) is configured for the /usr prefix and built.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/package}
out=${TROVANE_PACKAGE_DIR:-build/packages}
jobs=$(nproc)

if ! command -v lintian > /dev/null; then
    echo "== Installing lintian"
    DEBIAN_FRONTEND=noninteractive apt-get update -qq
    DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends lintian > /dev/null
fi

echo "== Building $build for the packages"
if [ ! -f "$build/CMakeCache.txt" ]; then
    cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DTROVANE_BUILD_TESTS=OFF -DTROVANE_BUILD_BENCH=OFF > /dev/null
fi
cmake -S . -B "$build" -DCMAKE_INSTALL_PREFIX=/usr > /dev/null
cmake --build "$build" -j "$jobs" --target trovane-dialog trovane-vexl trovane_embed trovane_factory trovane_qt > /dev/null
rm -rf "$out" && mkdir -p "$out"
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$PWD/$out" > /dev/null
rm -rf "$out/_CPack_Packages"
ls "$out"

fail() { echo "package: $*" >&2; exit 1; }
# grep reads every line (no -q): a reader that stops early would fail the pipe with SIGPIPE.
contents() { local listing; listing=$(dpkg-deb -c "$out"/$1_*.deb); awk '{print $6}' <<< "$listing"; }
field() { dpkg-deb -f "$out"/$1_*.deb "$2"; }

echo "== Contents and dependencies"
contents libtrovane-embed0 | grep > /dev/null '/usr/lib/.*/libtrovane_embed.so.0$' || fail "runtime: no shared library"
contents libtrovane-embed0 | grep > /dev/null 'server-root/ovo_lib/defaults/icons/AlarmLedNormal.ico' || fail "runtime: no icons"
contents libtrovanecommon-dev | grep > /dev/null '/usr/include/trovane/blocking/blocking.h' || fail "dev: no headers"
contents libtrovanecommon-dev | grep > /dev/null 'cmake/TrovaneCommon/TrovaneCommonConfig.cmake' || fail "dev: no CMake package"
if contents libtrovanecommon-dev | grep > /dev/null '/usr/include/trovane/sim/vexl_parser.h'; then fail "dev: a private header"; fi
contents trovane-dialog | grep > /dev/null '/usr/lib/.*/trovane/trovane-dialog$' || fail "programs: no trovane-dialog"
contents trovane-dialog | grep > /dev/null '/usr/lib/.*/trovane/trovane-vexl$' || fail "programs: no trovane-vexl"
dpkg-deb -c "$out"/trovane-dialog_*.deb | grep > /dev/null 'usr/bin/trovane-dialog -> ' || fail "programs: no link in /usr/bin"
contents trovane-dialog | grep > /dev/null '/usr/share/applications/trovane-dialog.desktop' || fail "programs: no desktop entry"
contents trovane-dialog | grep > /dev/null '/usr/share/trovane/server-root/apl/DEMO/PAR/APL/FrameWindow.ini' || fail "programs: no demo configuration"
# Names are checked against the archive when the package lists are there to ask.
archive_known=no
apt-cache show libc6 > /dev/null 2>&1 && archive_known=yes
for package in libtrovane-embed0 libtrovanecommon-dev trovane-dialog; do
    depends=$(field $package Depends)
    echo "$package: Depends: $depends"
    # Only names of Debian's archive or of these packages: lower case, digits, + - . only.
    for name in $(echo "$depends" | tr ',|' '\n\n' | sed 's/(.*)//; s/ //g'); do
        [[ $name =~ ^[a-z0-9][a-z0-9+.-]+$ ]] || fail "$package depends on '$name'"
        if [[ $name != libtrovanecommon* && $name != libtrovane-embed* ]] && [ "$archive_known" = yes ]; then
            apt-cache show "$name" > /dev/null 2>&1 || fail "$package depends on '$name', which Debian does not have"
        fi
    done
done

echo "== lintian"
lintian --fail-on error --suppress-tags-from-file /dev/null "$out"/*.deb || fail "lintian reports errors"

echo "== The control dialog from a throw-away root"
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
for deb in "$out"/libtrovane-embed0_*.deb "$out"/trovane-dialog_*.deb; do dpkg-deb -x "$deb" "$root"; done
QT_QPA_PLATFORM=offscreen LD_LIBRARY_PATH="$root/usr/lib/x86_64-linux-gnu" \
    "$root/usr/lib/x86_64-linux-gnu/trovane/trovane-dialog" --screenshot "$root/out.png" > /dev/null
[ -s "$root/out.png" ] || fail "trovane-dialog wrote no screenshot"
# The same dialog from the build tree: a missing icon, language file or configuration in the
# packages would show as a different picture.
QT_QPA_PLATFORM=offscreen "$build/apps/trovane-dialog/trovane-dialog" --screenshot "$root/built.png" > /dev/null
cmp -s "$root/out.png" "$root/built.png" || fail "the unpacked dialog looks different from the built one"
echo "packages OK: $out"
