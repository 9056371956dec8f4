#!/usr/bin/env bash
# Render the editor icons in Resources/ and the contact sheet Art/contact-sheet.png
# from the hand-written SVG sources in Art/Icons/.
#
# Debian packages needed:
#   librsvg2-bin       (rsvg-convert: SVG -> PNG)
#   python3            (Art/contact-sheet.py, standard library only)
#   fonts-dejavu-core  (labels on the contact sheet)
#
#   apt-get install -y librsvg2-bin python3 fonts-dejavu-core
#
# Usage: Art/render-icons.sh   (from anywhere; output is byte-for-byte repeatable)
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$root"
src=Art/Icons

command -v rsvg-convert >/dev/null || { echo "rsvg-convert missing: apt-get install librsvg2-bin" >&2; exit 1; }
command -v python3 >/dev/null || { echo "python3 missing: apt-get install python3" >&2; exit 1; }

# render SOURCE.svg SIZE OUTPUT.png
render() {
    mkdir -p "$(dirname "$3")"
    rsvg-convert --width "$2" --height "$2" --format png "$src/$1" --output "$3"
}

# Plugin logo: toolbar button and notification.
render Logo.svg 40 Resources/Logo/Logo_40x.png
render Logo.svg 80 Resources/Logo/Logo_80x.png

# Livestream Wizard: 16 px grid version and the 128 px header version.
render Wizard_16.svg 16 Resources/Wizard/Wizard_16x.png
render Wizard_64.svg 128 Resources/Wizard/Wizard_128x.png

# Class icons: each has a 16 px grid drawing and a 64 px drawing.
classes=(CineCapture 360Capture SpoutSender SpoutReceiver NDI ViewportCapture
         MediaOutput VirtualCam ScreenCapture CGElement CGMatte VideoPlacementPlane)
for name in "${classes[@]}"; do
    render "${name}_16.svg" 16 "Resources/ClassIcons/${name}_16x.png"
    render "${name}_64.svg" 64 "Resources/ClassIcons/${name}_64x.png"
done

# Contact sheet (kept out of Resources/, which ships only the icons).
tmp="$(mktemp --suffix=.svg)"
trap 'rm -f "$tmp"' EXIT
PYTHONDONTWRITEBYTECODE=1 python3 Art/contact-sheet.py >"$tmp"
rsvg-convert --format png "$tmp" --output Art/contact-sheet.png

echo "Rendered $((4 + 2 * ${#classes[@]})) icons and Art/contact-sheet.png"
