#!/bin/sh
# Draws the icon's sizes from its drawing. Needs rsvg-convert (Debian: librsvg2-bin).
set -eu
cd "$(dirname "$0")/hicolor"
for size in 16 22 24 32 48 64 128 256 512; do
  mkdir -p "${size}x${size}/apps"
  rsvg-convert --width "$size" --height "$size" \
    --output "${size}x${size}/apps/verlume.png" scalable/apps/verlume.svg
done
