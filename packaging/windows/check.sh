#!/usr/bin/env bash
# Compiles what only Windows has, and runs it in a fresh, empty Wine where there is one. Needs Debian's
# g++-mingw-w64-x86-64-posix; wine and wine64 for the run.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
folder=$(mktemp --directory)
x86_64-w64-mingw32-g++-posix -std=c++20 -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror \
    -Isrc -static -o "$folder/registry_check.exe" src/platform/*_windows.cpp \
    src/platform/{binary_file,system_info}.cpp packaging/windows/registry_check.cpp
if command -v wine >/dev/null; then
    WINEPREFIX=$folder/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' \
        wine "$folder/registry_check.exe"
fi
rm -rf "$folder"
echo "The Windows files compile."
