#!/usr/bin/env bash
# Builds the Debian package from a build folder, checks its dependencies and
# files, installs it and runs hello with the installed tamrix-pack --run.
#
#   debian_package.sh <build-folder> <hello.tam> <work-folder>
#
# By default the package is unpacked into a scratch root (dpkg-deb -x) and
# apt-get only simulates installing it, which proves that its dependencies
# resolve on this machine without changing it. With TAMRIX_PACKAGE_INSTALL=
# system, and by default as root on a CI machine (CI=true), it is really
# installed with dpkg -i and apt-get -f install, run from /usr/bin, and
# removed again.
set -euo pipefail

if [[ -z "${TAMRIX_PACKAGE_INSTALL:-}" && "${CI:-}" == true && $EUID -eq 0 ]]; then
  TAMRIX_PACKAGE_INSTALL=system
fi

build=$1
hello=$2
work=$3
rm -rf "$work"
mkdir -p "$work/cpack" "$work/run"

for tool in cpack dpkg-deb; do
  if ! command -v "$tool" >/dev/null; then
    echo "skipped: $tool is not installed"
    exit 0
  fi
done

cpack --config "$build/CPackConfig.cmake" -B "$work/cpack" >"$work/cpack.log" 2>&1 ||
  { cat "$work/cpack.log"; echo "FAIL: cpack could not build the package"; exit 1; }
deb=$(ls "$work"/cpack/tamrix_*.deb)
failed=0

depends=$(dpkg-deb -f "$deb" Depends)
for library in libqt6widgets6 libqt6gui6 libqt6core6; do
  if ! grep -q "$library" <<<"$depends"; then
    echo "FAIL: the package does not depend on $library: $depends"
    failed=1
  fi
done
contents=$(dpkg-deb -c "$deb" | awk '{print $NF}')
for file in ./usr/bin/tamrix ./usr/bin/tamrix-pack ./usr/bin/tamrix-db \
  ./usr/share/man/man1/tamrix-pack.1 ./usr/share/man/man1/tamrix-db.1 ./usr/share/man/man7/tamrix.7 \
  ./usr/share/applications/tamrix.desktop \
  ./usr/share/org.kde.syntax-highlighting/syntax/tamrix.xml \
  ./usr/share/tamrix/editors/tamrix.tmLanguage.json \
  ./usr/share/doc/tamrix/guide/README.md; do
  if ! grep -qxF "$file" <<<"$contents"; then
    echo "FAIL: the package lacks $file"
    failed=1
  fi
done
[[ $failed -eq 0 ]] || exit 1

if [[ "${TAMRIX_PACKAGE_INSTALL:-}" == system ]]; then
  dpkg -i "$deb" >"$work/install.log" 2>&1 || apt-get -o DPkg::Lock::Timeout=600 -f install -y >>"$work/install.log" 2>&1
  prefix=/usr
else
  if command -v apt-get >/dev/null; then
    if ! apt-get -s install "$deb" >"$work/simulate.log" 2>&1; then
      cat "$work/simulate.log"
      echo "FAIL: apt-get cannot resolve the package's dependencies"
      exit 1
    fi
  fi
  dpkg-deb -x "$deb" "$work/root"
  prefix="$work/root/usr"
fi

cp "$hello" "$work/run/hello.tam"
mkdir -m 700 "$work/run/.runtime"
status=0
(cd "$work/run" && env -u TAMRIX_ANSWERS -u TAMRIX_INPUT -u TAMRIX_SNAPSHOT QT_QPA_PLATFORM=offscreen \
  XDG_RUNTIME_DIR="$work/run/.runtime" LC_ALL=C.UTF-8 TAMRIX_EXIT=1 TAMRIX_TRACE="$work/run/trace.txt" \
  timeout 30 "$prefix/bin/tamrix-pack" --run hello.tam) || status=$?
if [[ "${TAMRIX_PACKAGE_INSTALL:-}" == system ]]; then
  dpkg -r tamrix >>"$work/install.log" 2>&1 || true
fi
printf 'write\tPARENT\t0\t0\tHello, world!\nwrite\tPARENT\t0\t14\tPress F6 to close this window.\nexit\t0\n' >"$work/expected"
if [[ $status -ne 0 ]] || ! diff -u "$work/expected" "$work/run/trace.txt"; then
  echo "FAIL: the installed tamrix-pack --run hello.tam ended with $status and the trace above"
  exit 1
fi
echo "ok: the package builds, installs and runs hello"
