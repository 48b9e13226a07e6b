#!/usr/bin/env bash
# Draws img/btn/dia-close.png anew: four frames of 20 x 20 side by side (normal, hover, pressed, disabled).
# Needs ImageMagick; each frame is drawn eight times as large and scaled down.
set -euo pipefail
cd "$(dirname "$0")/.."

frames=()
trap 'rm -f "${frames[@]}"' EXIT
frame() { # FACE RIM CROSS
    local file
    file=$(mktemp --suffix=.png)
    frames+=("$file")
    convert -size 160x160 xc:none -fill "$1" -stroke "$2" -strokewidth 8 -draw 'roundrectangle 12,12 147,147 28,28' \
        -fill none -stroke "$3" -strokewidth 16 -draw 'stroke-linecap round line 50,50 110,110' \
        -draw 'stroke-linecap round line 110,50 50,110' -filter Box -resize 20x20 "$file"
}
frame 'rgba(60,60,60,0.55)' 'rgb(102,102,102)' 'rgb(215,215,215)'
frame 'rgb(255,126,2)' 'rgb(255,160,70)' 'rgb(255,255,255)'
frame 'rgb(195,92,0)' 'rgb(225,96,0)' 'rgb(255,235,215)'
frame 'rgba(40,40,40,0.4)' 'rgb(60,60,60)' 'rgb(90,90,90)'
convert "${frames[@]}" +append -strip -define png:exclude-chunks=date,time PNG32:img/btn/dia-close.png
