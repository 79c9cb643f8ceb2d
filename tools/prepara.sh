#!/usr/bin/env bash
# Installs the Debian 12 packages that building and testing Corvina need, if any is missing.
set -euo pipefail

pacotes=(
  build-essential
  cmake
  libgtest-dev
  libbenchmark-dev
  nlohmann-json3-dev
  qt6-base-dev
  qt6-multimedia-dev
  qt6-charts-dev
  libqt6opengl6-dev
  libgl-dev
  fonts-dejavu-core
  libfluidsynth-dev
  libasound2-dev
  libsodium-dev
  libsqlite3-dev
  openssl
  file
  desktop-file-utils
  appstream
  timgm6mb-soundfont
  lintian
)

faltam=()
for p in "${pacotes[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    faltam+=("$p")
  fi
done
[ ${#faltam[@]} -eq 0 ] && exit 0

echo "Installing: ${faltam[*]}"
sudo_se_preciso=()
[ "$(id -u)" -ne 0 ] && sudo_se_preciso=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_se_preciso[@]}" apt-get update -qq
"${sudo_se_preciso[@]}" apt-get install -y -qq --no-install-recommends "${faltam[@]}"
