# The Debian packages that the project needs, and how they get onto the machine. To be sourced.

build_packages=(cmake fonts-liberation g++ ninja-build qt6-base-dev qt6-wayland)
# In newer releases the narrow letters have a package of their own.
grep --quiet 'VERSION_ID="12"' /etc/os-release || build_packages+=(fonts-liberation-sans-narrow)
test_packages=(clang libclang-rt-dev libgtest-dev python3)
screen_packages=(at-spi2-core dbus gir1.2-atspi-2.0 imagemagick openbox python3-gi x11-utils xdotool xvfb)
package_packages=(build-essential debhelper)
windows_packages=(dpkg-dev g++-mingw-w64-x86-64-posix)
wine_packages=(wine wine64)
package_check_packages=(appstream desktop-file-utils lintian weston)

# Before a command that only the administrator may give.
as_root=()
[[ $EUID -eq 0 ]] || as_root=(sudo)

is_locked() { [[ -e $1 ]] && grep -q ":$(stat --format=%i "$1") " /proc/locks; }

# Another apt-get may be at work, as in the first minutes of many desktops. This one waits for the lock
# of dpkg by itself, but not for those of its own folders.
apt_get() {
    while is_locked /var/lib/apt/lists/lock || is_locked /var/cache/apt/archives/lock; do
        echo "Waiting until another apt-get is done." >&2
        sleep 2
    done
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get --option DPkg::Lock::Timeout=-1 --yes "$@"
}

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
    apt_get update
    apt_get install --no-install-recommends "${missing[@]}"
}
