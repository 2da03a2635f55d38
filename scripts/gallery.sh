#!/usr/bin/env bash
# Renders the gallery: the control dialog of each kind of demo object, in English and German, and
# each dialog the panels open. The pictures are drawn off-screen and come out the same on every run
# on one machine.
#
#   bash scripts/gallery.sh [OUT_DIR]        (default docs/gallery)
set -euo pipefail
cd "$(dirname "$0")/.."

out=${1:-docs/gallery}
dialog=${TROVANE_DIALOG:-$(bash scripts/build_dialog.sh)}
mkdir -p "$out"

# picture NAME ARGUMENTS...: one picture of the dialog with the given options.
picture() {
    local name=$1; shift
    QT_QPA_PLATFORM=offscreen "$dialog" --screenshot "$out/$name.png" "$@" 2> /dev/null \
        || { echo "gallery: $name failed" >&2; exit 1; }
    echo "  $out/$name.png"
}

echo "== The control dialog by kind of object"
picture circuit-breaker             --object ABC --index 10 --page alarms
picture circuit-breaker-operation   --object ABC --index 10 --page operation
picture circuit-breaker-tagouts     --object ABC --index 10 --page tagout
picture disconnector                --object E01_Q9 --index 1 --page operation
picture measured-value              --object E01_P --index 1 --page substitution
picture bay-control-location        --object DEF --index 2 --page operation
picture dial-up-station             --object RTU --index 1 --page communication
picture circuit-breaker-de          --object ABC --index 10 --page alarms --language DE
picture circuit-breaker-operation-de --object ABC --index 10 --page operation --language DE

echo "== The dialogs the panels open"
picture comment-dialog              --object ABC --index 10 --screenshot-dialog btnIndication
picture tagout-edit-dialog          --object ABC --index 10 --page tagout --screenshot-dialog btnAdd
picture tagout-removal-dialog       --object ABC --index 10 --page tagout --user operator1 --select-row 1 --screenshot-dialog btnRemove
picture error-dialog                --object ABC --index 10 --screenshot-error "The server did not answer the command."
echo "gallery written to $out"
