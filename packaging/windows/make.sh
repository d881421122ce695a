#!/usr/bin/env bash
# Makes the program for Windows, on Debian, with Qt in it, and packs it with the licences and the notice
# that must go with it: FOLDER/cirrava-pal-VERSION-windows.zip
# make.sh [FOLDER]: build/windows without. Qt itself is built there once, from the source of the version
# that Debian has, and used again: some 20 minutes.
set -euo pipefail
windows=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
top=$(realpath "$windows/../..")
. "$top/scripts/packages.sh"

# What the program never asks of Qt or what the cross compiler lacks, and the system's libraries, for
# which Qt has sources of its own.
features_off=(concurrent dbus direct2d1_1 directwrite3 fontconfig gif glib icu jpeg macdeployqt network
    opengl opengl_dynamic pdf printsupport qmake sessionmanager sql tabletevent testlib vulkan
    windeployqt xml zstd
    system_{doubleconversion,freetype,harfbuzz,libb2,pcre2,png,textmarkdownreader,zlib})

# Asks the machine's own Debian archives for sources, with lists of ours beside those of the machine.
fetch_qt() {
    local apt=(apt-get --option "Dir::State=$folder/apt" --option "Dir::Cache=$folder/apt"
        --option "Dir::Etc::SourceList=$folder/apt/sources.list" --option Dir::Etc::SourceParts=/dev/null)
    mkdir -p "$folder/apt/lists/partial"
    apt-get indextargets --format "deb-src \$(REPO_URI) \$(RELEASE) \$(COMPONENT)" \
        'Created-By: Packages' 'Origin: Debian' >"$folder/apt/sources.list"
    "${apt[@]}" update
    (cd "$folder/apt" && "${apt[@]}" --download-only source "qt6-base=$version")
    rm -rf "$folder/source"
    dpkg-source --no-copy --extract "$folder"/apt/*.dsc "$folder/source"
}

# Keeps the licences of what is linked into the program, under their names in the source. The folders left
# out are for other systems, or for the features that are off.
keep_licences() (
    cd "$folder/source"
    mkdir "$1"
    cp --parents --target-directory="$1" LICENSES/{CC0-1.0,GPL-3.0-only,LGPL-3.0-only}.txt
    find LICENSES src/corelib/{text,tools} src/gui/{painting,rhi} src/3rdparty -type f -regextype egrep \
        -regex '(LICENSES/Unicode|src/.*(LICEN[CS]E|COPYING)).*' -not -regex \
        '.*/3rdparty/(android|forkfd|gradle|libjpeg|libpsl|pixman|VulkanMemoryAllocator|wasm|xcb)/.*' \
        -exec cp --parents --target-directory="$1" {} +
)

build_qt() {
    local off=("${features_off[@]/#/-DFEATURE_}")
    fetch_qt
    patch --force --strip=1 --directory="$folder/source" <"$windows/qt-settings.patch"
    cmake -S "$folder/source" -B "$folder/qt-build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$qt" -DBUILD_SHARED_LIBS=OFF \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(gcc -print-multiarch)/cmake" \
        -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DINPUT_opengl=no "${off[@]/%/=OFF}"
    cmake --build "$folder/qt-build"
    DESTDIR=$folder/stage cmake --install "$folder/qt-build"
    keep_licences "$folder/stage$qt/licenses"
    mv "$folder/stage$qt" "$qt" # only when all of it is there
    rm -r "$folder"/{apt,source,qt-build,stage}
}

install_packages "${build_packages[@]}" "${windows_packages[@]}"
folder=$(realpath --canonicalize-missing "${1:-$top/build/windows}")
mkdir -p "$folder"
version=$(dpkg-query --show --showformat='${source:Version}' qt6-base-dev)
toolchain=$windows/mingw.cmake
qt=$folder/qt-$version
[[ -d $qt ]] || build_qt
# Afresh, since another clone may have used this folder. Newer sources of Debian leave Qt's plugins out
# of a program that does not ask for them.
cmake --fresh -S "$top" --preset release -B "$folder/build" -DQT_CHAINLOAD_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_TOOLCHAIN_FILE="$qt/lib/cmake/Qt6/qt.toolchain.cmake" -DQT_SKIP_AUTO_PLUGIN_INCLUSION=OFF \
    -DCIRRAVA_QT_SOURCE="$version"
rm -f "$folder"/cirrava-pal-*-windows.zip "$folder"/build/cirrava-pal-*-windows.zip
cmake --build "$folder/build" --target package
mv "$folder"/build/cirrava-pal-*-windows.zip "$folder"
