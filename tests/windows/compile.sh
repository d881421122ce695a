#!/usr/bin/env bash
# Compiles what only Windows has, and what builds on it without a toolkit. Needs Debian's
# g++-mingw-w64-x86-64-posix.
# compile.sh PROGRAM: links the registry check into that file.
set -euo pipefail
program=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
sources=(src/platform/*_windows.cpp src/platform/binary_file.cpp src/platform/registry.cpp
    src/ui/system_info.cpp tests/windows/registry_check.cpp)
x86_64-w64-mingw32-g++-posix -std=c++20 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
    -Isrc -static -o "$program" "${sources[@]}"
echo "The Windows files compile."
