#!/usr/bin/env bash
# Sets up a fresh Debian machine for the game and builds it, then:
#   ./setup.sh play   starts the game
#   ./setup.sh test   runs every test suite, plainly and under the address and undefined sanitizers,
#                     and each fuzz target for a fixed number of runs
#   ./setup.sh soak   the robot player's 500 hunts under the sanitizers
#   ./setup.sh build  only builds
set -euo pipefail
cd "$(dirname "$0")"

packages=(
  build-essential cmake ninja-build pkg-config clang-format ccache
  qt6-base-dev libqt6opengl6-dev qt6-multimedia-dev
  libavformat-dev libavcodec-dev libavutil-dev libswscale-dev libswresample-dev ffmpeg
  libsqlite3-dev sqlite3 libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth imagemagick x11-apps poppler-utils espeak-ng libespeak-ng-dev sox
  clang libclang-rt-14-dev
  unzip ufoai-sound lugaru-data tuxpaint-stamps-default
)

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

build() {  # build <dir> [cmake options...]
  local dir=$1
  shift
  cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" > /dev/null
  cmake --build "$dir" -j "$(nproc)"
}

run_tests() {  # run_tests <dir> [labels to leave out]
  ctest --test-dir "$1" --output-on-failure -j "$(nproc)" -LE "${2:-soak}"
}

sanitizer_build() {
  export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  # Unoptimised: quicker to build, and free of the optimiser's false bounds warnings under the sanitizers.
  build build-asan -DCMAKE_BUILD_TYPE=Debug -DHUNT_SANITIZE=ON -DHUNT_BUILD_BENCH=OFF -DHUNT_GENERATE_WORLD=OFF
}

install_missing
case "${1:-play}" in
  build)
    build build
    ;;
  play)
    build build
    exec ./build/bin/hunt
    ;;
  test)
    build build
    run_tests build
    export ASAN_OPTIONS=detect_leaks=0:abort_on_error=1
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    # Unoptimised: quicker to build, and free of the optimiser's false bounds warnings under the sanitizers.
    # The world generator's suites paint and voice whole worlds, and whole hunts play on one; the plain run covers them.
    build build-asan -DCMAKE_BUILD_TYPE=Debug -DHUNT_SANITIZE=ON -DHUNT_BUILD_BENCH=OFF -DHUNT_GENERATE_WORLD=OFF
    run_tests build-asan "soak|tools|world"
    # The readers of outside files under libFuzzer, which needs clang.
    build build-fuzz -DCMAKE_CXX_COMPILER=clang++ -DHUNT_FUZZ=ON -DHUNT_BUILD_TESTS=OFF -DHUNT_BUILD_BENCH=OFF \
      -DHUNT_GENERATE_WORLD=OFF
    ctest --test-dir build-fuzz --output-on-failure -j "$(nproc)" -L fuzz
    ;;
  soak)
    build build
    sanitizer_build
    ctest --test-dir build-asan --output-on-failure -L soak
    ;;
  *)
    echo "usage: $0 [play|test|build|soak]" >&2
    exit 2
    ;;
esac
