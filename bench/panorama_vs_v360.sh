#!/bin/sh
# SPDX-License-Identifier: GPL-2.0-or-later
# Races our renderer against ffmpeg's v360 filter on the world's own panorama at resolution
# code "1": the same image, a 1920 x 1080 view with the same fields of view, bilinear, one
# thread each. v360 gets the image once in the planar format it works in, so no conversion
# runs per frame. The still view is the headline; the turning view (one heading a frame) is
# printed beside it. The last line is the ratio of still views per second, `ratio N.N`.
# Usage: [BUILD_DIR=build] [PANORAMA=file.svh] [FRAMES=40] panorama_vs_v360.sh
set -eu
build=${BUILD_DIR:-build}
bench=$build/bench/panorama_bench
manifest=${PANORAMA:-$build/world/surnd/13Pstnd1.svh}
frames=${FRAMES:-40}
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

[ -x "$bench" ] || { echo "no $bench: build the panorama_bench target" >&2; exit 1; }
[ -f "$manifest" ] || { echo "no $manifest: build the world target" >&2; exit 1; }
folder=$(dirname "$manifest")
image=$folder/$(sed -n 's/^image \(.*\)$/\1/p' "$manifest" | tr -d '\r')
vfov=$(sed -n 's/^cylindrical \([0-9.]*\).*/\1/p' "$manifest")
size=$(ffprobe -v error -select_streams v:0 -show_entries stream=width,height -of csv=p=0:s=x "$image")

# At its base zoom our view shows the image's full height in its middle column, so the flat
# view's vertical field is the image's and its focal length 540 / tan(vfov / 2).
hfov=$(awk -v v="$vfov" 'BEGIN { pi = atan2(0, -1); t = v * pi / 360;
  focal = 540 * cos(t) / sin(t); printf "%.4f", 2 * atan2(960, focal) * 180 / pi }')
v360="v360=input=cylindrical:output=flat:ih_fov=360:iv_fov=$vfov:h_fov=$hfov:v_fov=$vfov:w=1920:h=1080:interp=linear"

# One command a frame turns the view, as a player dragging does.
awk -v n=$((2 * frames)) 'BEGIN { for (i = 0; i < n; i++) printf "%.3f v360 yaw %.2f;\n", i / 25, (i * 1.2) % 360 - 180 }' \
  >"$tmp/turn.cmd"

# The image is decoded and converted to planar RGB once; `loop` then hands the same frame on.
seconds() {  # user CPU seconds of one ffmpeg run of $2 frames through the filter chain $1
  ffmpeg -hide_banner -nostats -v info -benchmark -threads 1 -filter_threads 1 -i "$image" \
    -vf "format=gbrp,loop=loop=-1:size=1,setpts=N/25/TB,$1" -frames:v "$2" -f null - 2>&1 |
    sed -n 's/.*utime=\([0-9.]*\)s.*/\1/p' | tail -n 1
}
# Runs of n and 2n frames: the difference is n frames, free of start-up, of the decode and of
# v360's first table build; a run that passes the frame on untouched is taken off.
views() {  # milliseconds a view through the filter chain $1
  one=$(seconds "$1" "$frames")
  two=$(seconds "$1" $((2 * frames)))
  awk -v a="$one" -v b="$two" -v n="$frames" 'BEGIN { printf "%.2f", (b - a) * 1000 / n }'
}
source=$(views "null")
still=$(views "$v360")
turning=$(views "sendcmd=f=$tmp/turn.cmd,$v360")

ours=$("$bench" --benchmark_filter='BM_Panorama(Still|Turning)/1920$' --benchmark_repetitions="${REPETITIONS:-5}" \
  --benchmark_report_aggregates_only=true --benchmark_format=csv 2>/dev/null |
  awk -F, '/Still\/1920_median/ { s = $4 } /Turning\/1920_median/ { t = $4 } END { printf "%s %s", s, t }')
awk -v base="$source" -v vs="$still" -v vt="$turning" -v ours="$ours" -v image="$image ($size)" 'BEGIN {
  split(ours, o, " ")
  vs -= base; vt -= base
  printf "image: %s, view 1920 x 1080, bilinear, one thread each\n", image
  printf "v360: %.2f ms a still view (%.2f turning)\n", vs, vt
  printf "ours: %.2f ms a still view (%.2f turning, median)\n", o[1], o[2]
  printf "turning ratio %.1f\n", vt / o[2]
  printf "ratio %.1f\n", vs / o[1]
}'
