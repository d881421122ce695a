#!/usr/bin/env bash
# Makes the Debian package and checks its texts and files; installs it on this machine, tries the
# program, and removes it again.
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
    local changelog=$packaging/changelog date
    date=$(dpkg-parsechangelog --file "$changelog" --show-field Date)
    same "the package's changelog" \
        "$(dpkg-parsechangelog --file "$changelog" --show-field Version) $(date --date "$date" +%F)" "$1 $2"
    same "CHANGELOG.md" "$(first_match '^## (.*)' "$top/CHANGELOG.md")" "${1%.0} ($2)"
}

# check_files WHAT FOLDER
check_files() {
    (cd "$2" && find . ! -type d -printf '%m %P\n') | LC_ALL=C sort --key=2 |
        diff "$packaging/installed_files.txt" - || fail "$1 brings other files or permissions"
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
lintian --allow-root --fail-on error,warning "$package"

folder=$(mktemp --directory --tmpdir cirrava-pal-package.XXXXXX)
echo "Installed files and a picture are in $folder until the end."
(umask 022 && DESTDIR=$folder/by-cmake cmake --install "$top/build/release" --prefix /usr >/dev/null)
check_files "cmake --install" "$folder/by-cmake"
dpkg-deb --extract "$package" "$folder/by-package"
check_files "the package" "$folder/by-package"
metainfo=$folder/by-package/usr/share/metainfo/$id.metainfo.xml
appstreamcli validate --no-net --strict "$metainfo"
check_changelogs "$(dpkg-deb --field "$package" Version)" "$(first_match '<release .*date="(.*)"' "$metainfo")"
# Under Wayland a desktop knows the window by it; under X11 by the window's class.
grep --quiet "$id" "$folder/by-package/usr/bin/cirrava-pal" || fail "the program does not set its id"

same "before the package is installed" "$(traces)" ""
trap purge EXIT
"${as_root[@]}" apt-get install --yes --no-install-recommends "$package"
"$packaging/try_installed.sh" "$folder"
"$packaging/try_wayland.sh" cirrava-pal
purge
trap - EXIT
same "after the package is removed" "$(traces)" ""
rm -r "$folder"
echo "The package is as it must be."
