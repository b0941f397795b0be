#!/usr/bin/env bash
# Holds what makes the build a program that one installs. Says what it leaves out for want of a tool.
#
#   package.sh installed BUILD   installs into an empty folder, looks at each piece, starts the desk
#                                from its desktop entry, and takes everything away again
#   package.sh debian BUILD      makes the Debian packages, and lintian finds no error in them
#
# With ORDWISE_SHOTS=FOLDER a picture of the started desk is kept there.
set -u
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd) || exit 1
build=$(CDPATH='' cd -- "${2:?}" && pwd) || exit 1
failed=0
work=$(mktemp -d) || exit 1
export XDG_RUNTIME_DIR=$work
trap 'rm -rf "$work"' EXIT

fault() {
    printf '%s\n' "$*"
    failed=1
}

# have TOOL WHAT: says what is left out without the tool.
have() {
    command -v "$1" >/dev/null 2>&1 && return 0
    echo "Left out, since there is no $1 here: $2"
    return 1
}

# pass SENTENCE COMMAND...: shows what the command says if it fails.
pass() {
    local sentence=$1
    shift
    "$@" >"$work/said" 2>&1 && return 0
    fault "$sentence"
    cat "$work/said"
}

options_of() { "$@" --help | grep -oE -- '--[a-z]+(-[a-z]+)*' | sort -u; }

# Every option that the help names is in the manual page, and no other.
manual_of() {
    local program=$1 page=$work/usr/share/man/man1/${1##*/}.1.gz
    local helped written command
    helped=$( {
        options_of "$program"
        for command in "${@:2}"; do options_of "$program" "$command"; done
    } | sort -u)
    written=$(zcat "$page" | sed '/^\.SH SYNOPSIS/,/^\.SH DESCR/d; /^\.SH EXAMPLES/,$d' | sed 's/\\//g' | grep -oE -- '--[a-z]+(-[a-z]+)*' | sort -u)
    [ "$helped" = "$written" ] && return
    fault "The options of ${program##*/} and of its manual page differ (< help, > page):"
    diff <(echo "$helped") <(echo "$written")
}

manuals() {
    local page
    # shellcheck disable=SC2046  # the commands are single words
    manual_of "$work/usr/bin/ordwise-cli" \
        $("$work/usr/bin/ordwise-cli" --help | sed -n '/^Subcommands/,$s/^  \([a-z]*\) .*/\1/p')
    [ -e "$work/usr/bin/ordwise" ] && manual_of "$work/usr/bin/ordwise"
    have man "the manual pages as man reads them" || return
    for page in "$work"/usr/share/man/man1/*; do
        [ -z "$(LC_ALL=C.UTF-8 man --warnings -l "$page" 2>&1 >/dev/null)" ] || fault "man complains about $page."
    done
}

# contents PROGRAM: the list of what it is made of, which the build makes, is whole, and what is compiled in
# is named where the licences stand, for whoever has the package and for whoever looks at About.
contents() {
    local doc=$work/usr/share/doc/$1 name
    for name in SPDX-2.3 "$1" libc.so.6; do
        grep -q "\" : \"$name\"" "$doc/$1.spdx.json" || fault "The list of what $1 is made of does not hold $name."
    done
    for name in $(grep -A7 '"Compiled in."' "$doc/$1.spdx.json" | sed -n 's/^ *"name" : "\(.*\)",$/\1/p'); do
        grep -qx "Files: $name" "$doc/copyright" || fault "The copyright file of $1 does not name $name, which is compiled in."
        grep -q "${name%%.*} (" "$here/../../src/qt/AboutDialog.cpp" || fault "About does not name $name, which is compiled in."
    done
}

# What the desktop reads: menu entry, description, file type.
desktop_files() {
    local share=$work/usr/share
    have desktop-file-validate "the desktop entry" &&
        pass "The desktop entry is not valid:" desktop-file-validate "$share"/applications/ordwise.desktop
    have appstreamcli "the description for software centres" &&
        pass "The description for software centres is not valid:" appstreamcli validate --no-net "$share"/metainfo/*.xml
    if have update-mime-database "the file type"; then
        cp -r "$share/mime" "$work/mime"
        pass "The file type is not valid:" env XDG_DATA_HOME="$work" update-mime-database "$work/mime"
        grep -q '^50:application/x-ordwise-problem:\*\.hvx$' "$work/mime/globs2" || fault "*.hvx has no type."
    fi
    for size in 16x16 22x22 24x24 32x32 48x48 64x64 96x96 128x128 256x256 512x512; do
        for icon in apps/ordwise mimetypes/application-x-ordwise-problem; do
            # A picture of this kind tells its width and height from the 17th byte on.
            [ "$(od -An -j16 -N8 --endian=big -tu4 "$share/icons/hicolor/$size/$icon.png" | xargs printf '%sx%s')" = $size ] ||
                fault "The icon $icon has no size $size."
        done
    done
}

# A double click on a problem file, as a desktop does it: the command line of the desktop entry, the
# file in place of %f.
double_click() {
    local command display shots=${ORDWISE_SHOTS:-} x_server desk i
    have Xvfb "the start of the desk" && have xdotool "the start of the desk" || return
    mkdir -p "$work/home/My problems"
    export HOME=$work/home PATH=$work/usr/bin:$PATH
    unset XDG_CONFIG_HOME XDG_DATA_HOME WAYLAND_DISPLAY
    mkdir -p "$HOME/.config/ordwise" && printf '[Ordwise]\nmnuShowStep=0\n' >"$HOME/.config/ordwise/settings.ini"
    ordwise-cli solve "Solving Equations" 3x-4=11 --save "$HOME/My problems/a.hvx" >"$work/said" || fault "It saves no problem."
    mkfifo "$work/display"
    Xvfb -displayfd 3 -screen 0 1280x1000x24 3>"$work/display" 2>"$work/xvfb" &
    x_server=$!
    read -r display <"$work/display"
    command=$(sed -n 's/^Exec=//p' "$work/usr/share/applications/ordwise.desktop")
    DISPLAY=:$display QT_QPA_PLATFORM=xcb bash -c "exec ${command/\%f/\"\$HOME/My problems/a.hvx\"}" >"$work/desk" 2>&1 &
    desk=$!
    for ((i = 0; i < 100; ++i)); do
        DISPLAY=:$display xdotool search --name '^a.hvx - Solving Equations - Ordwise' >"$work/said" 2>&1 && break
        sleep 0.1
    done
    [ $i -lt 100 ] || fault "Ten seconds after a double click no window shows the problem. $(cat "$work/desk")"
    if [ -n "$shots" ] && have import "the picture of the desk"; then
        sleep 4  # the splash is gone and the solution written
        DISPLAY=:$display import -window root "$shots/double-click.png"
    fi
    kill $desk $x_server
    wait
}

installed() {
    # What was installed from this build before keeps its list.
    mv "$build/install_manifest.txt" "$work/kept" 2>/dev/null
    DESTDIR=$work pass "It cannot be installed:" cmake --install "$build" --prefix /usr
    manuals
    contents ordwise-cli
    if [ -e "$work/usr/bin/ordwise" ]; then
        contents ordwise
        desktop_files
        (double_click; exit $failed) || failed=1
    else
        echo "Left out, since Qt was not found: the desk program"
    fi
    DESTDIR=$work pass "It cannot be uninstalled:" cmake -P "$build/packaging/Uninstall.cmake"
    [ ! -e "$work/usr" ] || fault "Left behind: $(find "$work/usr")"
    mv "$work/kept" "$build/install_manifest.txt" 2>/dev/null
}

# What is given to users runs at a place of its own, cannot write to its tables, and guards its stack.
hardened() {
    local package program lacks
    for package in "$work"/*.deb; do
        dpkg-deb -x "$package" "$work/unpacked"
    done
    for program in "$work"/unpacked/usr/bin/*; do
        lacks=
        readelf -h "$program" | grep -q 'Type: *DYN' || lacks="$lacks, a place of its own"
        readelf -lW "$program" | grep -q GNU_RELRO || lacks="$lacks, tables that are closed"
        readelf -dW "$program" | grep -q 'FLAGS.*NOW' || lacks="$lacks, binding at the start"
        readelf -sW --dyn-syms "$program" | grep -q __stack_chk_fail || lacks="$lacks, a guarded stack"
        readelf -sW --dyn-syms "$program" | grep -qE '__[a-z]+_chk@' || lacks="$lacks, checked copies"
        [ -z "$lacks" ] || fault "The packaged ${program##*/} is not hardened; it lacks: ${lacks#, }."
    done
}

debian() {
    have dpkg-shlibdeps "the Debian packages" || return
    (cd "$build" && pass "The Debian packages cannot be made:" cpack -G DEB -B "$work"; exit $failed) || failed=1
    ls -l "$work"/*.deb
    hardened
    have lintian "what lintian says about the packages" || return
    lintian --fail-on error,warning "$work"/*.deb 2>&1 | tee "$work/said"
    [ "${PIPESTATUS[0]}" = 0 ] || fault "lintian finds faults in the packages."
}

case $1 in
    installed) installed ;;
    debian) debian ;;
    *) sed -n '2,8s/^# \{0,1\}//p' "$0" && exit 2 ;;
esac
exit $failed
