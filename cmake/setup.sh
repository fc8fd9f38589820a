# Sourced by ./run and ./test: what they need from the system, and how they build.
# Expects the variable root, the top folder of the source tree.

build_packages=(
    cmake ninja-build g++
    qtbase5-dev qttools5-dev qttools5-dev-tools
    libyaml-dev pkg-config libtiff-dev libisal-dev libqpdf-dev
    libsdl2-dev libsndfile1-dev libebur128-dev
    cmark-gfm
)
run_packages=(espeak-ng ffmpeg libqt5svg5 qttranslations5-l10n
    fonts-dejavu-core fonts-noto-color-emoji)
style_packages=(clang-format clang-tidy)
package_packages=(dpkg-dev file gzip lintian appstream desktop-file-utils)
bench_packages=(libbenchmark-dev)
windows_packages=(
    g++-mingw-w64-x86-64-posix libz-mingw-w64-dev nasm dpkg-dev qttools5-dev-tools
    zip icoutils librsvg2-bin
)
wine_packages=(wine wine64 fonts-wine fonts-liberation xvfb)
fuzz_packages=(clang libclang-rt-14-dev llvm)
test_packages=(
    libgtest-dev libgmock-dev locales
    imagemagick libtiff-tools qt5-image-formats-plugins
    qpdf poppler-utils mupdf-tools
    flite
    xvfb xauth openbox xdotool
    e2fsprogs
)

# install_packages NAME...: installs the Debian packages that are missing; quiet when none is.
install_packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q '^install ok installed$' ||
            missing+=("$name")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Installing: ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        cat "$log" >&2
        echo "Could not install: ${missing[*]}" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

# build PRESET [TARGET...]: configures when needed and builds; quiet when nothing is to be done.
build() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! (cd "$root" && { [ -f "out/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
        cmake --build --preset "$preset" ${1:+--target "$@"}) >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    grep -E 'warning:' "$log" >&2 || true
    rm -f "$log"
}
