#!/bin/sh
# Builds and runs a program with what pkg-config says about the installed library.
#
#   pkgconfig.sh PKG_CONFIG LIBRARY_FOLDER SOURCE PROGRAM COMPILER [FLAGS...]
set -eu
pkg_config=$1 folder=$2 source=$3 program=$4
shift 4

PKG_CONFIG_PATH=$folder/pkgconfig
export PKG_CONFIG_PATH
flags=$("$pkg_config" --cflags --libs norvane-core)

# The flags are words, not one word.
# shellcheck disable=SC2086
"$@" -std=c++17 -fPIC "$source" $flags "-Wl,-rpath,$folder" -o "$program"
"$program"
