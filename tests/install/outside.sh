#!/usr/bin/env bash
# Builds and runs main.cpp as a stranger would: outside.sh find_package|pkg_config|add_subdirectory BUILD_DIR
set -euo pipefail
way=$1 build=$2
source=$(cd "$(dirname "$0")" && pwd)
rm -rf "$build/outside/$way"
mkdir -p "$build/outside/$way" && cd "$build/outside/$way"

if [[ $way != add_subdirectory ]]; then
    "$CMAKE" --install "$build" --prefix "$PWD/first" >/dev/null
    mv first prefix # nothing installed may know where it was
fi
if [[ $way == pkg_config ]]; then
    pc=$(dirname "$(find "$PWD/prefix" -name vertra.pc)")
    read -ra flags <<<"$CXXFLAGS $(PKG_CONFIG_PATH=$pc pkg-config --cflags --libs vertra)"
    "$CXX" -std=c++20 "$source/main.cpp" "${flags[@]}" -Wl,-rpath,"${pc%/pkgconfig}" -o outside
else
    "$CMAKE" -S "$source/project" -B . -DWAY="$way" -DCMAKE_PREFIX_PATH="$PWD/prefix"
    "$CMAKE" --build .
fi
./outside
