#!/bin/sh
# Makes the Debian packages of a build tree and unpacks both into a folder.
#
#   debian.sh CPACK BUILD FOLDER QT
set -eu
cpack=$1 build=$2 folder=$3 qt=$4

fail() {
    echo "debian.sh: $1" >&2
    exit 1
}

rm -rf "$folder"
mkdir -p "$folder"
"$cpack" --config "$build/CPackConfig.cmake" -B "$folder" > "$folder/cpack.log" 2>&1 ||
    { cat "$folder/cpack.log" && fail "cpack failed"; }

set -- "$folder"/libnorvane-core1_*.deb "$folder"/libnorvane-core-dev_*.deb
[ -f "$1" ] && [ -f "$2" ] && [ $# -eq 2 ] || fail "there are not exactly two packages: $*"
case "$(dpkg-deb --field "$1" Depends)" in
*"libqt${qt}widgets$qt"*) ;;
*) fail "$1 does not depend on Qt's widgets: $(dpkg-deb --field "$1" Depends)" ;;
esac
version=$(dpkg-deb --field "$1" Version)
case "$(dpkg-deb --field "$2" Depends)" in
*"libnorvane-core1 (= $version)"*) ;;
*) fail "$2 does not depend on the same version of the library" ;;
esac
unpacked=$folder/root
for package; do
    dpkg-deb --extract "$package" "$unpacked"
    copyright=usr/share/doc/$(dpkg-deb --field "$package" Package)/copyright
    [ -s "$unpacked/$copyright" ] || fail "$package has no $copyright"
done
