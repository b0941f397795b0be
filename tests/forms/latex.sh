#!/usr/bin/env bash
# Every line and note of seeded examples, as LaTeX, in a renderer of the web that allows nothing doubtful.
#
#   tests/forms/latex.sh ORDWISE_CLI FOLDER [EXAMPLES]
#
# The renderer is installed into FOLDER once. Ends with 77, which counts as left out, where there is no
# node or nothing can be installed.
set -u
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd) || exit 1
terminal=$1 folder=$2 examples=${3:-20}

leave_out() {
    echo "Left out: $*" >&2
    exit 77
}
command -v node >/dev/null && command -v npm >/dev/null || leave_out "there is no node here to render LaTeX with."
mkdir -p "$folder" && cd "$folder" || exit 1
if [ ! -e node_modules/katex/package.json ]; then
    echo '{"private": true}' >package.json
    timeout 60 npm install --silent --no-audit --no-fund --no-package-lock katex@0.16 >npm.log 2>&1 ||
        leave_out "the renderer katex cannot be installed with npm."
fi
cp "$here/latex.mjs" . && node latex.mjs "$terminal" "$examples"
