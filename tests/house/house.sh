#!/usr/bin/env bash
# Holds what the compiler does not: the rules by which the sources are laid out.
#
#   house.sh sources          rules of the source files
#   house.sh links PROGRAM    the program needs no window library
#   house.sh formatted        every source is as clang-format leaves it
set -u
cd "$(CDPATH='' cd -- "$(dirname -- "$0")/../.." && pwd)" || exit 1
failed=0

# breach SENTENCE LINES: reports the lines, if there are any, as breaches of the rule.
breach() {
    [ -z "$2" ] && return
    printf '%s\n%s\n' "$1" "$2"
    failed=1
}

sources() {
    find src -name '*.?pp' -print0 | xargs -0 grep -l . >/dev/null || breach "No sources were found." "$PWD/src"
    breach "A header is included by its bare name, so that only what lies to the left is found:" \
        "$(grep -rnE '#include "\.\.?/' src tests)"
    breach "A variable is declared once, in a header, and never by hand in a source file:" \
        "$(grep -rnE '^[[:space:]]*extern\b' src --include='*.cpp')"
    breach "The name of a source file is unique, since it is included without its folder:" \
        "$(find src -name '*.?pp' -printf '%f\n' | sort | uniq -d)"
    breach "Numbers become text, and text numbers, in base/NumberText alone:" \
        "$(grep -rnE 'std::(to_string|sto[a-z]+|from_chars|to_chars)\b|\bstrto[a-z]+|\bato[filn]+\(|\bs?n?printf\(|stringstream' \
            src --include='*.?pp' | grep -vE '^src/(base/NumberText\.cpp|desk/SvgPainter\.cpp|cli/|qt/)')"
    breach "What judges the engine shares nothing with it; src/exact/ includes its own headers and those of base/ alone:" \
        "$(grep -rnoE '#include "[^"]+"' src/exact | while IFS= read -r line; do
            header=${line##*include \"}
            [ -e "src/exact/${header%\"}" ] || [ -e "src/base/${header%\"}" ] || printf '%s\n' "$line"
        done)"
    breach "A header that is read twice must do no harm:" \
        "$(find src tests -name '*.hpp' -print0 | xargs -0 grep -L '^#pragma once')"
}

links() {
    local needed
    needed=$(readelf -d "$1") || exit 1
    breach "$1 has a window library in it:" "$(grep -iE 'NEEDED.*(qt|gtk|gdk|libX|wayland|xcb|libGL|libEGL)' <<<"$needed")"
}

formatted() {
    # Another version formats differently.
    if ! clang-format --version 2>/dev/null | grep -q 'version 14\.'; then
        echo "Formatting is not checked: there is no clang-format 14 here."
        exit 0
    fi
    find src tests bench fuzz packaging -name '*.?pp' -print0 2>/dev/null | xargs -0 clang-format --dry-run --Werror || failed=1
}

case ${1:-} in
    sources) sources ;;
    links) links "$2" ;;
    formatted) formatted ;;
    *) sed -n '2,6s/^# \{0,1\}//p' "$0" && exit 2 ;;
esac
exit $failed
