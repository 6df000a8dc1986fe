#!/bin/sh
# Installs the Debian packages the build and the tests need. Run as root.
set -e
# qt6-base-dev: the desktop window; fonts-dejavu-core: text in its offscreen
# screenshots; dpkg-dev and file: the Debian package (cpack -G DEB);
# libmimalloc-dev: the allocator the programs link.
packages="g++ cmake ninja-build pkg-config mdbtools-dev libsqlite3-dev libcli11-dev libgtest-dev libmimalloc-dev
qt6-base-dev fonts-dejavu-core dpkg-dev file"
missing=""
for p in $packages; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing="$missing $p"
done
if [ -n "$missing" ]; then
  apt-get update
  DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing
fi
