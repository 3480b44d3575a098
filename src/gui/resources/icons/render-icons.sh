#!/usr/bin/env bash
# Renders each tool-bar picture from its SVG source to the PNG files the
# program compiles in (24 and 48 pixels). The program itself reads only the
# PNGs, so it needs no SVG support at run time. Needs rsvg-convert (librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for source in *.svg; do
  name=${source%.svg}
  rsvg-convert -w 24 -h 24 "$source" -o "$name-24.png"
  rsvg-convert -w 48 -h 48 "$source" -o "$name-48.png"
done
