#!/usr/bin/env bash
# Runs the registry check in a fresh, empty Wine. Needs Debian's wine and wine64, and what compile.sh
# needs; ./test.sh installs none of them.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
folder=$(mktemp --directory)
trap 'wineserver --wait; rm -rf "$folder"' EXIT
"$here/compile.sh" "$folder/registry_check.exe"
export WINEPREFIX=$folder/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
wine "$folder/registry_check.exe"
