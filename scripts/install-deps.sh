#!/usr/bin/env bash
# Installs the Debian 12 packages the build, the tests and the benchmarks need.
# Only packages that are missing are installed, so a warm machine does not wait.
# `install-deps.sh fuzz` adds what the fuzz targets need (clang and its libFuzzer runtime);
# `install-deps.sh package` what the package and its checks need (icon renderer, validators, lintian).
set -euo pipefail

packages=(
  # build
  cmake ninja-build g++ make clang-format pkg-config
  # Qt 6.4 core, GUI and QML toolchain
  qt6-base-dev qt6-base-dev-tools qt6-declarative-dev qt6-declarative-dev-tools
  libgl-dev libegl-dev libxkbcommon-dev
  # QML modules loaded at run time
  qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates
  qml6-module-qtquick-layouts qml6-module-qtquick-window qml6-module-qtquick-dialogs qml6-module-qt-labs-folderlistmodel
  qml6-module-qtquick-shapes qml6-module-qttest qt6-qpa-plugins
  # the desktop's own file chooser through its portal, where one answers
  qt6-xdgdesktopportal-platformtheme
  # fonts: text face and the icon set; fontTools writes Inter with its tabular digits at build time
  fonts-inter fonts-material-design-icons-iconfont python3-fonttools
  # a session bus of its own for the colour-scheme portal test
  dbus-daemon
  # a folder that stops answering, as a hung network mount does: a FUSE file system in Python
  python3-fusepy fuse3
  # the real-window test: an X server of its own and real pointer and key events
  xvfb xdotool
  # benchmark peers and the peak-memory probe
  gdu ncdu time
)
if [ "${1:-}" = fuzz ]; then
  packages+=(clang libclang-rt-14-dev)
fi
if [ "${1:-}" = package ]; then
  packages+=(librsvg2-bin desktop-file-utils appstream lintian dpkg-dev file)
fi

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -ne 0 ]; then
  echo "Missing packages: ${missing[*]} (run as root, or install them with apt-get)" >&2
  exit 1
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${missing[@]}"
