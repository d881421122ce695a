#!/usr/bin/env bash
# Makes the program for Windows and tries it under Wine: the part that only Windows has, then the tour,
# which must leave the user's registry as it was. check.sh [FOLDER]: as make.sh. Pictures and palette
# files of the tour are kept in FOLDER/tour.
set -euo pipefail
windows=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
top=$(realpath "$windows/../..")
. "$top/scripts/packages.sh"

# save_registry FILE: what is kept for the user's programs, without the state of Wine's own screen.
save_registry() {
    wine reg export 'HKCU\Software' "Z:$PWD/exported" /y >/dev/null
    iconv --from-code UTF-16 --to-code UTF-8 exported | tr --delete '\r' |
        sed '/Wine\\Temporary System Parameters/,/^$/d' >"$1"
}

# Windows comes with smooth letters. Without, Wine draws some of them beside the place that it tells.
smooth_letters() {
    local key='HKCU\Control Panel\Desktop'
    wine reg add "$key" /v FontSmoothing /d 2 /f >/dev/null
    wine reg add "$key" /v FontSmoothingType /t REG_DWORD /d 2 /f >/dev/null
}

# Wine says so of a drive whose label it may not read, at each look at it.
without_denied_labels() { grep --invert-match 'Read access denied for device'; }

install_packages "${screen_packages[@]}" "${wine_packages[@]}"
folder=$(realpath --canonicalize-missing "${1:-$top/build/windows}")
"$windows/make.sh" "$folder"

WINEPREFIX=$(mktemp --directory)
export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
trap 'wineserver --kill || true; rm -r "$WINEPREFIX"' EXIT
cd "$WINEPREFIX"
cmake -E tar xf "$folder"/cirrava-pal-*-windows.zip
program=$(echo "$PWD"/cirrava-pal-*-windows/cirrava-pal.exe)
"$windows/compile.sh" platform_check.exe
wine platform_check.exe
smooth_letters
save_registry before
wineserver --kill # the next one to start serves the tour's own screen
rm -rf "$folder/tour"
mkdir "$folder/tour"
"$top/tests/tour.sh" "$program" "$folder/tour" 2> >(without_denied_labels >&2)
save_registry after
if ! diff before after; then
    echo "FAILED: the program has left something in the registry" >&2
    exit 1
fi
echo "The registry is as it was. $program has $(stat --format=%s "$program") bytes and imports"
x86_64-w64-mingw32-objdump --private-headers "$program" | sed -n 's/.*DLL Name: /  /p'
