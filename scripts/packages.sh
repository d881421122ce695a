# The Debian packages that the project needs, and how they get onto the machine. To be sourced.

build_packages=(cmake fonts-liberation g++ ninja-build qt6-base-dev qt6-wayland)
test_packages=(at-spi2-core clang dbus gir1.2-atspi-2.0 libclang-rt-dev libgtest-dev python3-gi weston)
screen_packages=(imagemagick openbox x11-utils xdotool xvfb)
package_packages=(dpkg-dev file)
package_check_packages=(appstream desktop-file-utils lintian)

# Before a command that only the administrator may give.
as_root=()
[[ $EUID -eq 0 ]] || as_root=(sudo)

install_packages() {
    local package missing=()
    for package in "$@"; do
        dpkg-query --show --showformat='${Status}' "$package" 2>/dev/null |
            grep -q 'install ok installed' || missing+=("$package")
    done
    [[ ${#missing[@]} -eq 0 ]] && return

    if ! command -v apt-get >/dev/null || ! command -v "${as_root[0]:-true}" >/dev/null; then
        printf 'Please install these packages (named as on Debian) and start again:\n' >&2
        printf '  %s\n' "${missing[@]}" >&2
        exit 1
    fi
    "${as_root[@]}" apt-get update
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --no-install-recommends "${missing[@]}"
}
