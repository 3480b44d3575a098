#!/usr/bin/env bash
# Renders each picture-note picture from its SVG source to the PNG file the
# program compiles in (192 pixels, scaled down where it is shown smaller). The
# program itself reads only the PNGs, so it needs no SVG support at run time.
# Needs rsvg-convert (librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for source in *.svg; do
  rsvg-convert -w 192 -h 192 "$source" -o "${source%.svg}.png"
done
