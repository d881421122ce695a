#!/usr/bin/env bash
# Compiles what only Windows has, without Qt, into a program that tries it there. compile.sh PROGRAM
# Needs Debian's g++-mingw-w64-x86-64-posix.
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
platform=$top/src/platform
x86_64-w64-mingw32-g++-posix -std=c++20 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
    -I"$top/src" -static -o "$1" "$platform"/*_windows.cpp "$platform"/{binary_file,registry}.cpp \
    "$top/packaging/windows/platform_check.cpp"
