#!/usr/bin/env bash
# Builds and starts the main job: the control dialog on the embedded demo server.
# Arguments are passed on to trovane-dialog (see the README).
set -euo pipefail
cd "$(dirname "$0")/.."

dialog=$(bash scripts/build_dialog.sh)
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || [[ " $* " == *" --screenshot "* ]] ||
    [[ " $* " == *" --list-objects "* ]] || [[ " $* " == *" --help "* ]]; then
    exec "$dialog" "$@"
fi
# No display: without arguments, the gallery of every kind of object and dialog; with them, a
# picture of that dialog. Either way, say where it went.
if [ $# -eq 0 ]; then
    TROVANE_DIALOG=$dialog bash scripts/gallery.sh build/run/gallery
    echo "No display: wrote the gallery of the control dialog to $(pwd)/build/run/gallery"
    exit 0
fi
"$dialog" --screenshot trovane-dialog.png "$@"
echo "No display: wrote a screenshot of the control dialog to $(pwd)/trovane-dialog.png"
