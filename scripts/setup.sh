# Shared by ./run, ./test and .ci/run: what the machine must have, and the release build.
#
# Everything here speaks on standard error, so that the output of the program stays its own.
# Exit status of the callers: 3 when something must be installed first, 4 when the build failed.

readonly status_missing=3
readonly status_build=4

say() { printf '%s\n' "$*" >&2; }

# True if a file matches one of the patterns.
present() {
    local file
    for file in "$@"; do
        [ -e "$file" ] && return 0
    done
    return 1
}

have() { command -v "$1" >/dev/null 2>&1; }

# Each package is known by a file or a command of its own: asking the package manager takes longer
# than the build of nothing does.
installed() {
    case $1 in
        g++) have "${CXX:-c++}" ;;
        cmake) have cmake ;;
        ninja-build) have ninja ;;
        clang) have clang++ ;;
        clang-format) have clang-format ;;
        libgtest-dev) present /usr/include/gtest/gtest.h /usr/local/include/gtest/gtest.h ;;
        libcli11-dev) present /usr/include/CLI/CLI.hpp /usr/local/include/CLI/CLI.hpp ;;
        nlohmann-json3-dev) present /usr/include/nlohmann/json.hpp /usr/local/include/nlohmann/json.hpp ;;
        libboost-dev) present /usr/include/boost/multiprecision/cpp_int.hpp /usr/local/include/boost/multiprecision/cpp_int.hpp ;;
        qt6-base-dev) present /usr/lib*/cmake/Qt6Widgets /usr/lib/*/cmake/Qt6Widgets ;;
        qt6-svg-dev) present /usr/lib*/cmake/Qt6Svg /usr/lib/*/cmake/Qt6Svg ;;
        desktop-file-utils) have desktop-file-validate ;;
        appstream) have appstreamcli ;;
        shared-mime-info) have update-mime-database ;;
        lintian) have lintian ;;
        xvfb) have Xvfb ;;
        xdotool) have xdotool ;;
        man-db) have man ;;
        poppler-utils) have pdftotext ;;
        dpkg-dev) have dpkg-shlibdeps ;;
        fonts-texgyre) present /usr/share/texmf/fonts/opentype/public/tex-gyre/texgyreschola-regular.otf ;;
        *) return 1 ;;
    esac
}

# shellcheck disable=SC2034  # read by the scripts that source this one
readonly build_packages=(g++ cmake ninja-build libgtest-dev libcli11-dev nlohmann-json3-dev libboost-dev)
readonly desk_packages=(qt6-base-dev qt6-svg-dev fonts-texgyre)
readonly test_packages=(desktop-file-utils appstream shared-mime-info xvfb xdotool man-db poppler-utils)
# shellcheck disable=SC2034
readonly check_packages=(clang clang-format lintian dpkg-dev)

# Prints those of the named packages that are not there.
missing() {
    local package list=
    for package in "$@"; do
        installed "$package" || list="$list $package"
    done
    printf '%s' "${list# }"
}

# Sets `as_root` to what makes a command root's: nothing for root, sudo where it asks nothing, or
# where there is a terminal to ask at.
find_root() {
    if [ "$(id -u)" = 0 ]; then
        as_root=()
    elif have sudo && sudo -n true 2>/dev/null; then
        as_root=(sudo -n)
    elif have sudo && [ -t 0 ] && [ -t 2 ] && [ -z "${CI:-}" ]; then
        as_root=(sudo)
    else
        return 1
    fi
}

apt() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=120 "$@" >&2; }

# Installs the named packages. Returns 0 when all of them are there in the end, and otherwise says
# in a sentence why not.
install() {
    if ! have apt-get; then
        say "There is no apt-get here to install them with."
        return 1
    fi
    if ! find_root; then
        say "They cannot be installed from here: that takes root, or sudo without a password."
        return 1
    fi
    say "Installing with apt-get: $*"
    apt update  # old lists may still do
    if ! apt install -y --no-install-recommends "$@" || [ -n "$(missing "$@")" ]; then
        say "apt-get could not install them."
        return 1
    fi
}

# What no part of Ordwise can be built without.
need_packages() {
    local list
    read -ra list <<<"$(missing "$@")"
    [ ${#list[@]} -eq 0 ] && return 0
    say "Ordwise needs packages that are not installed: ${list[*]}"
    install "${list[@]}" && return 0
    say "Install them and start again. On Debian:"
    say "    sudo apt-get install ${list[*]}"
    exit $status_missing
}

# want_packages WHO WITHOUT PACKAGE...: what only a part needs. Returns 1 without it, and says so.
want_packages() {
    local who=$1 without=$2 list
    shift 2
    read -ra list <<<"$(missing "$@")"
    [ ${#list[@]} -eq 0 ] && return 0
    say "$who packages that are not installed: ${list[*]}"
    install "${list[@]}" && return 0
    say "Without them $without. To have it, on Debian:"
    say "    sudo apt-get install ${list[*]}"
    return 1
}

# Without these everything but the desk program still builds.
want_desk_packages() { want_packages "The desk program needs" "the desk program is left out" "${desk_packages[@]}"; }

# Without these all tests but those of the installation still run whole.
want_test_packages() {
    want_packages "The tests of the installation need" "a part of these tests is left out" "${test_packages[@]}"
}

# up_to_date STAMP LACKING: nothing that a build reads has changed since the build that left this
# stamp, and the desk's packages have neither come nor gone.
up_to_date() {
    local before
    [ -e "$1" ] && IFS= read -r before <"$1" && [ "$before" = "$2" ] &&
        [ -z "$(find CMakeLists.txt CMakePresets.json cmake src tests data packaging fuzz -newer "$1" -print -quit 2>/dev/null)" ]
}

# build PRESET NAME TARGET...: builds unless that is up to date. The stamp of NAME is dated from the
# beginning of the build, so that a file saved meanwhile counts as changed.
build() {
    local preset=$1 stamp=build/$1/.built-$2 lacking
    shift 2
    lacking=$(missing "${desk_packages[@]}")
    up_to_date "$stamp" "$lacking" && return 0
    mkdir -p "build/$preset"
    # One build at a time: a second caller waits, and then finds everything built.
    if ! (
        have flock && flock 9
        printf '%s\n' "$lacking" >"$stamp.begun"
        if [ ! -e "build/$preset/build.ninja" ] || ! cmp -s "$stamp.begun" "build/$preset/.lacking"; then
            cmake --preset "$preset" >&2 && cp "$stamp.begun" "build/$preset/.lacking" || exit 1
        fi
        cmake --build "build/$preset" --target "$@" >&2 && mv -f "$stamp.begun" "$stamp"
    ) 9>"build/$preset/.lock"; then
        say "The build failed; what the compiler says about it stands above."
        exit $status_build
    fi
}

# True if the project has a target of this name where it was configured.
has_target() { grep -q "^build $2: phony" "build/$1/build.ninja" 2>/dev/null; }
