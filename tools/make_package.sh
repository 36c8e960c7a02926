#!/usr/bin/env bash
# Builds the Debian package and tries it: unpacked, both programs run; installed into a system of its
# own and removed again, nothing of it is left (as root). The path of the package is the last line.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ -f build/release/build.ninja ]] || cmake --preset release
cmake --build --preset release --target zel_viewer zel_tool zel_package_files
(cd build/release && cpack -G DEB >/dev/null)
package=$(ls -t build/release/packages/*.deb | head -1)

trial=$(mktemp -d)
trap 'rm -rf -- "$trial"' EXIT
dpkg-deb -x "$package" "$trial/unpacked"
"$trial/unpacked/usr/bin/zelora" demo "$trial/demo"
find "$trial/demo" -type f -not -name DICOMDIR -print0 |
    xargs -0 "$trial/unpacked/usr/bin/zelora" check >/dev/null
XDG_RUNTIME_DIR=$trial XDG_CONFIG_HOME=$trial/config QT_QPA_PLATFORM=offscreen \
    QT_LOGGING_RULES='*.warning=false' ZELORA_SNAPSHOT=$trial/picture.png \
    "$trial/unpacked/usr/bin/zelora-viewer" "$trial/demo"
[[ -s $trial/picture.png ]]

mkdir -p "$trial"/root/var/lib/dpkg/{info,updates,triggers}
touch "$trial/root/var/lib/dpkg/status"
install_with() {
    dpkg --root="$trial/root" --force-depends --force-not-root --force-bad-path \
         --force-script-chrootless --log=/dev/null --no-triggers "$@" >"$trial/dpkg.log" 2>&1
}
before=$(cd "$trial/root" && find . -not -path './var/*' | sort)
install_with -i "$package"
[[ -x $trial/root/usr/bin/zelora-viewer ]]
install_with --purge zelora-viewer
after=$(cd "$trial/root" && find . -not -path './var/*' | sort)
[[ $before == "$after" ]] || { diff <(echo "$before") <(echo "$after"); exit 1; }
echo "$package"
