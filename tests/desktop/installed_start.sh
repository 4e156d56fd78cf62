#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-2.0-or-later
# Installs the game into a staging folder and starts the installed program under Xvfb as a new
# player would, until its first screen asks its first question; the installed world must be
# the one the drive map points at.
#   installed_start.sh BUILD-FOLDER
set -euo pipefail

first_question="Play Expansion Pack?"

# Runs inside the X server: the game in the background, the window list polled for its question.
inside_x() {
  "$stage/usr/games/hunt" --window --size 1024x768 > "$stage/game.log" 2>&1 &
  local game=$!
  for _ in $(seq 120); do
    if xwininfo -root -tree | grep -qF "\"$first_question\""; then
      kill "$game"
      return 0
    fi
    kill -0 "$game" 2> /dev/null || break
    sleep 0.5
  done
  kill "$game" 2> /dev/null || true
  echo "the installed game showed no \"$first_question\"" >&2
  cat "$stage/game.log" >&2
  return 1
}

if [ "${1:-}" = --inside-x ]; then
  inside_x
  exit
fi

build=$(realpath "$1")
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
cmake --install "$build" --prefix "$stage/usr" > /dev/null
for file in games/hunt share/games/hunt/world/data share/games/hunt/credits.md share/man/man6/hunt.6.gz \
  share/icons/hicolor/scalable/apps/hunt.svg share/icons/hicolor/48x48/apps/hunt.png; do
  [ -e "$stage/usr/$file" ] || { echo "not installed: $file" >&2; exit 1; }
done

# A player who never played: no settings, no saves, and only the staging folder's data.
export stage HOME=$stage/home
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share XDG_DATA_DIRS=$stage/usr/share
export XDG_RUNTIME_DIR=$HOME/runtime
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
unset QT_QPA_PLATFORM
xvfb-run -a -s "-screen 0 1024x768x24" "$0" --inside-x

settings=$XDG_CONFIG_HOME/Hunting/Hunting.ini
grep -qxF "D=$stage/usr/share/games/hunt/world" "$settings" || {
  echo "the drive map does not point at the installed world:" >&2
  cat "$settings" >&2
  exit 1
}
