#!/bin/sh
# SPDX-License-Identifier: GPL-2.0-or-later
# Renders the same 1920 x 1080 view of an 8192 x 1536 cylindrical panorama with ffmpeg's v360
# filter (one thread, bilinear) and with our renderer, still and turning every frame, and
# prints milliseconds per view and the ratio. Usage: panorama_vs_v360.sh [panorama_bench]
set -eu
bench=${1:-build/bench/panorama_bench}
frames=${FRAMES:-40}
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# Square pixels: the vertical field of view follows from the image's shape; at its base zoom
# our view shows the image's full height, so the flat view's fields of view are these.
fovs=$(awk 'BEGIN { pi = atan2(0, -1); r = 8192 / (2 * pi);
  v = 2 * atan2(1536 / 2, r) * 180 / pi; focal = 1080 / 1536 * r;
  printf "%.4f %.4f", v, 2 * atan2(960, focal) * 180 / pi }')
vfov=${fovs% *}
hfov=${fovs#* }
v360="v360=input=cylindrical:output=flat:ih_fov=360:iv_fov=$vfov:h_fov=$hfov:v_fov=$vfov:w=1920:h=1080:interp=linear"

# One command a frame turns the view, as a player dragging does.
awk -v n=$((2 * frames)) 'BEGIN { for (i = 0; i < n; i++) printf "%.3f v360 yaw %.2f;\n", i / 25, (i * 1.2) % 360 - 180 }' \
  >"$tmp/turn.cmd"

seconds() {  # user CPU seconds of one ffmpeg run of $2 frames through the filter chain $1
  ffmpeg -hide_banner -nostats -v info -benchmark -threads 1 -filter_threads 1 \
    -f lavfi -i "testsrc2=size=8192x1536:rate=25" -frames:v "$2" -vf "$1" -f null - 2>&1 |
    sed -n 's/.*utime=\([0-9.]*\)s.*/\1/p' | tail -n 1
}
# Runs of n and 2n frames: the difference is n frames, free of start-up and of v360's first
# table build; a run that only crops gives the cost of making the source frames, taken off.
views() {  # milliseconds a view through the filter chain $1
  one=$(seconds "$1" "$frames")
  two=$(seconds "$1" $((2 * frames)))
  awk -v a="$one" -v b="$two" -v n="$frames" 'BEGIN { printf "%.2f", (b - a) * 1000 / n }'
}
source=$(views "format=rgb24,crop=1920:1080")
still=$(views "format=rgb24,$v360")
turning=$(views "format=rgb24,sendcmd=f=$tmp/turn.cmd,$v360")

ours=$("$bench" --benchmark_filter='BM_Panorama(Still|Turning)$' --benchmark_format=csv 2>/dev/null |
  awk -F, '/BM_PanoramaStill"?,/ { s = $4 } /BM_PanoramaTurning"?,/ { t = $4 } END { printf "%s %s", s, t }')
awk -v base="$source" -v vs="$still" -v vt="$turning" -v ours="$ours" 'BEGIN {
  split(ours, o, " ")
  vs -= base; vt -= base
  printf "v360 (1 thread, bilinear): %.2f ms a still view, %.2f ms a turning view\n", vs, vt
  printf "ours (1 thread, bilinear): %.2f ms a still view, %.2f ms a turning view\n", o[1], o[2]
  printf "ratio (v360 / ours):       %.1fx still, %.1fx turning\n", vs / o[1], vt / o[2]
}'
