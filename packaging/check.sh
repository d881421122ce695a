#!/usr/bin/env bash
# Makes the Debian package and checks it; installs it on this machine, tries the program, and removes it
# again.
set -euo pipefail
packaging=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
top=$(dirname "$packaging")
id=org.cirrava.CirravaPal
. "$top/scripts/packages.sh"

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# same WHAT VALUE EXPECTED
same() { [[ $2 == "$3" ]] || fail "$1: found '$2', expected '$3'"; }

# first_match EXPRESSION FILE: what is in the expression's parentheses.
first_match() { sed -nE "s/.*$1.*/\\1/p;T;q" "$2"; }

# check_changelogs VERSION DATE
check_changelogs() {
    local changelog=$top/debian/changelog date
    date=$(dpkg-parsechangelog --file "$changelog" --show-field Date)
    same "debian/changelog" \
        "$(dpkg-parsechangelog --file "$changelog" --show-field Version) $(date --utc --date "$date" +%F)" "$1 $2"
    same "CHANGELOG.md" "$(first_match '^## (.*)' "$top/CHANGELOG.md")" "${1%.0} ($2)"
}

# What is on the machine as long as the package is.
traces() {
    find /etc /usr/bin /usr/share /var/lib/dpkg \
        '(' -name '*cirrava-pal*' -o -name "*$id*" ')' 2>/dev/null || true
    dpkg-query --show cirrava-pal 2>/dev/null || true
}

purge() { "${as_root[@]}" dpkg --purge cirrava-pal; }

install_packages "${build_packages[@]}" "${package_packages[@]}" "${package_check_packages[@]}" \
    "${screen_packages[@]}"
same "desktop-file-validate" "$(desktop-file-validate "$packaging/$id.desktop" 2>&1)" ""

"$packaging/make.sh"
package=$(echo "$top"/build/release/cirrava-pal_*.deb)
lintian --allow-root --fail-on error,warning --display-info --pedantic "$top"/build/debian/*.changes

folder=$(mktemp --directory --tmpdir cirrava-pal-package.XXXXXX)
echo "The files of the package and a picture are in $folder until the end."
dpkg-deb --extract "$package" "$folder/package"
metainfo=$folder/package/usr/share/metainfo/$id.metainfo.xml
# Not --strict: Debian 12 does not know <developer> yet, Debian 13 no longer wants <developer_name>.
appstreamcli validate --no-net "$metainfo"
check_changelogs "$(first_match '<release version="([^"]*)"' "$metainfo")" \
    "$(first_match '<release .*date="([^"]*)"' "$metainfo")"
# Under Wayland a desktop knows the window by it; under X11 by the window's class.
grep --quiet "$id" "$folder/package/usr/bin/cirrava-pal" || fail "the program does not set its id"

same "before the package is installed" "$(traces)" ""
trap purge EXIT
apt_get install --no-install-recommends "$package"
"$packaging/try_installed.sh" "$folder"
"$packaging/try_wayland.sh" cirrava-pal
purge
trap - EXIT
same "after the package is removed" "$(traces)" ""
rm -r "$folder"
echo "The package is as it must be."
