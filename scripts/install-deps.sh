#!/usr/bin/env bash
# Installs everything needed to build and test Tamrix on Debian 12 (run as root).
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive
packages=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools libqt6sql6-sqlite qt6-multimedia-dev
  libgl-dev libfreeimage-dev libffi-dev libcurl4-openssl-dev
  libgtest-dev googletest
  fonts-liberation fonts-dejavu-core xvfb xauth locales
  clang libclang-rt-14-dev
  libqt6sql6-psql libqt6sql6-odbc unixodbc libsqliteodbc odbc-postgresql postgresql python3
  dpkg-dev libkf5syntaxhighlighting-tools
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
# Tests run under a point locale and a comma locale.
for loc in en_US.UTF-8 pt_BR.UTF-8; do
  if ! locale -a 2>/dev/null | grep -qi "^${loc%.UTF-8}.utf8$"; then
    sed -i "s/^# *\(${loc} UTF-8\)/\1/" /etc/locale.gen
    grep -q "^${loc} UTF-8" /etc/locale.gen || echo "${loc} UTF-8" >> /etc/locale.gen
    locale-gen >/dev/null
  fi
done
