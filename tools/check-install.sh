#!/bin/sh
# Checks that an installed Morvane stands on its own: installs the build into
# a temporary prefix, makes the Debian package and checks what it holds and
# depends on, moves the build tree out of the way, and runs the installed
# morvane and morvane-gui (its offscreen self-test) on a copy of the bundled
# sample from another directory. The build tree comes back at the end.
#
#   sh tools/check-install.sh [BUILD_DIR]      (default: build/debug)
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$root/build/debug}" && pwd)
work=$(mktemp -d)
aside="$build.moved-by-check-install"
restore() {
  if [ -d "$aside" ]; then mv "$aside" "$build"; fi
  rm -rf "$work"
}
trap restore EXIT
trap 'exit 1' INT TERM
fail() {
  echo "check-install: $*" >&2
  exit 1
}

cmake --install "$build" --prefix "$work/prefix" >/dev/null
for f in bin/morvane bin/morvane-gui share/morvane/MorvaneConversionCode.bas \
  share/morvane/help/index.html share/applications/morvane.desktop; do
  [ -e "$work/prefix/$f" ] || fail "the install lacks $f"
done

(cd "$build" && cpack -G DEB -B "$work/deb" >"$work/cpack.log" 2>&1) ||
  fail "cpack -G DEB failed: $(cat "$work/cpack.log")"
deb=$(ls "$work"/deb/*.deb)
dpkg-deb -c "$deb" >"$work/contents"
depends=$(dpkg-deb -f "$deb" Depends)
for p in libqt6widgets6 libqt6network6 libqt6printsupport6 libsqlite3-0 libmdb3 qt6-qpa-plugins; do
  case "$depends" in *"$p"*) ;; *) fail "the package does not depend on $p: $depends" ;; esac
done
for f in ./usr/bin/morvane ./usr/bin/morvane-gui ./usr/share/morvane/mtm_tblActions.tsv \
  ./usr/share/applications/morvane.desktop; do
  grep -q " $f\$" "$work/contents" || fail "the package lacks $f"
done

# From here on nothing of the build tree is there to fall back on.
mv "$build" "$aside"
cp -r "$root/examples/Orders" "$work/Orders"
mkdir "$work/elsewhere"
cd "$work/elsewhere"
unset MORVANE_DATA_DIR
"$work/prefix/bin/morvane" convert "$work/Orders" -o "$work/cli" --yes >cli.log 2>&1 ||
  fail "the installed morvane failed: $(cat cli.log)"
for f in Orders.vbp frmCustomers.frm MorvaneConversionCode.bas analysis/index.html; do
  [ -f "$work/cli/$f" ] || fail "the installed morvane wrote no $f"
done
QT_QPA_PLATFORM=offscreen "$work/prefix/bin/morvane-gui" --self-test "$work/Orders" "$work/gui" \
  >gui.log 2>&1 || fail "the installed morvane-gui failed: $(cat gui.log)"
for f in Orders.vbp frmOrders.frm rptEnvironment.dsr analysis/summary.html; do
  [ -f "$work/gui/$f" ] || fail "the installed morvane-gui wrote no $f"
done
cmp -s "$work/cli/frmCustomers.frm" "$work/gui/frmCustomers.frm" ||
  fail "the window and the command line converted frmCustomers differently"
echo "check-install: the installed programs work with the build tree moved away ($(basename "$deb"))"
