#!/usr/bin/env bash
# Sets up a fresh Debian machine for the game and builds it, then:
#   ./setup.sh play   starts the game
#   ./setup.sh test   runs every test suite, plainly and under the address and undefined sanitizers,
#                     and each fuzz target for a fixed number of runs
#   ./setup.sh soak   the robot player's 500 hunts under the sanitizers
#   ./setup.sh build  only builds
packages=(
  build-essential cmake ninja-build pkg-config clang-format ccache
  qt6-base-dev libqt6opengl6-dev qt6-multimedia-dev
  libavformat-dev libavcodec-dev libavutil-dev libswscale-dev libswresample-dev ffmpeg
  libsqlite3-dev sqlite3 libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth imagemagick x11-apps x11-utils poppler-utils espeak-ng libespeak-ng-dev sox
  clang libclang-rt-14-dev tuxpaint-stamps-default unzip ufoai-sound lugaru-data
  librsvg2-bin desktop-file-utils appstream dpkg-dev
)

set -euo pipefail
cd "$(dirname "$0")"

install_missing() {
  local missing=()
  for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo=sudo
  echo "Installing: ${missing[*]}"
  $sudo apt-get update
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
}

stage_number=0
stage_count=1
stage() {  # stage <what>: says which stage of the run is starting
  stage_number=$((stage_number + 1))
  printf '\n== %d/%d  %s  (%s)\n' "$stage_number" "$stage_count" "$1" "$(date +%T)"
}

build() {  # build <dir> [cmake options...]
  local dir=$1
  shift
  cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" > /dev/null
  cmake --build "$dir" -j "$(nproc)"
}

# The plain build, which also generates the sample world the other builds' tests share.
plain_build() {
  build build
}

# Unoptimised: quicker to build, and free of the optimiser's false bounds warnings under the
# sanitizers. It generates no world: its robot plays in the plain build's.
sanitizer_build() {
  export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  build build-asan -DCMAKE_BUILD_TYPE=Debug -DHUNT_SANITIZE=ON -DHUNT_BUILD_BENCH=OFF -DHUNT_GENERATE_WORLD=OFF
}

# The readers of outside files under libFuzzer, which needs clang.
fuzz_build() {
  build build-fuzz -DCMAKE_CXX_COMPILER=clang++ -DHUNT_FUZZ=ON -DHUNT_BUILD_TESTS=OFF -DHUNT_BUILD_BENCH=OFF \
    -DHUNT_GENERATE_WORLD=OFF
}

run_tests() {  # run_tests <dir> [ctest options...]
  local dir=$1
  shift
  ctest --test-dir "$dir" --output-on-failure -j "$(nproc)" "$@"
}

install_missing
case "${1:-play}" in
  build)
    plain_build
    ;;
  play)
    plain_build
    exec ./build/bin/hunt
    ;;
  test)
    stage_count=6
    stage "plain build and the sample world (build/)"
    plain_build
    stage "every suite, the desktop files and the installed game (build/)"
    run_tests build -LE soak
    stage "sanitizer build (build-asan/)"
    sanitizer_build
    # The world generator's suites paint and voice whole worlds, and whole hunts play on one; the
    # plain run covers them.
    stage "suites under the sanitizers (build-asan/)"
    run_tests build-asan -LE "soak|tools|world|desktop"
    stage "fuzz build (build-fuzz/)"
    fuzz_build
    stage "each fuzz target for its fixed number of runs (build-fuzz/)"
    run_tests build-fuzz -L fuzz
    ;;
  soak)
    stage_count=3
    stage "plain build and the sample world (build/)"
    plain_build
    stage "sanitizer build (build-asan/)"
    sanitizer_build
    stage "the robot's 500 hunts under the sanitizers (build-asan/)"
    run_tests build-asan -L soak
    ;;
  *)
    echo "usage: $0 [play|test|build|soak]" >&2
    exit 2
    ;;
esac
