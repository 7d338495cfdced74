#!/usr/bin/env bash
# Installs, on Debian 12, the packages the build and the tests need and that
# are missing. Safe to run again: it installs nothing when all are there.
set -euo pipefail

pacchetti=(
  g++ cmake ninja-build pkg-config
  googletest libgtest-dev libgmock-dev libbenchmark-dev
  qt6-base-dev libgl-dev
  fonts-liberation fontconfig poppler-utils
  xvfb xauth
  cups printer-driver-cups-pdf
  clang libclang-rt-14-dev locales
  at-spi2-core python3-pyatspi dbus
)

mancanti=()
for p in "${pacchetti[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    mancanti+=("$p")
  fi
done

if [ ${#mancanti[@]} -gt 0 ]; then
  echo "Installo: ${mancanti[*]}"
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  export DEBIAN_FRONTEND=noninteractive
  $sudo_cmd apt-get update -qq
  $sudo_cmd apt-get install -y -qq --no-install-recommends "${mancanti[@]}"
fi

# The system locales the tests start the desktop program under.
for nome in it_IT en_US; do
  if ! locale -a 2>/dev/null | grep -qix "$nome.utf-\?8"; then
    sudo_cmd=""
    [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
    $sudo_cmd localedef -i "$nome" -f UTF-8 "$nome.UTF-8"
  fi
done
