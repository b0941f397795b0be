#!/usr/bin/env bash
# Runs every fuzzer for some seconds, beginning with the problems of the tests. An input that breaks
# something is kept and its place is said.
#
#   run-fuzzers.sh BUILD SECONDS [FUZZER]...    e.g. run-fuzzers.sh build/sanitize 60 solve keys
#
# New inputs are kept in the user's cache, so that every run goes on from the one before, whatever build
# it is of. How often each fuzzer was executed in all of them stands there in `executions`.
set -u
build=$(CDPATH='' cd -- "${1:?}" && pwd) || exit 1
seconds=${2:?}
shift 2
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd) || exit 1
cache=${XDG_CACHE_HOME:-${HOME:-$build}/.cache}/ordwise/fuzz
[ $# -gt 0 ] || set -- keys solve batch markup problem_file desk command_line

mkdir -p "$cache" && touch "$cache/executions" || exit 1
seeds=$(mktemp -d) || exit 1
trap 'rm -rf "$seeds"' EXIT
"$build/fuzz/write_seeds" "$here/../tests/cases" "$seeds" || exit 1

# add_executions FUZZER COUNT: prints the sum of all runs.
add_executions() {
    awk -v name="$1" -v more="$2" '
        $1 == name { more += $2; next }
        { print }
        END { print name, more }' "$cache/executions" >"$cache/executions.new" && mv "$cache/executions.new" "$cache/executions"
    awk -v name="$1" '$1 == name { print $2 }' "$cache/executions"
}

status=0
for fuzzer in "$@"; do
    mkdir -p "$cache/$fuzzer" "$seeds/$fuzzer"
    log=$cache/$fuzzer.log
    echo "fuzz_$fuzzer, $seconds seconds"
    # One input may take as long as a slow solve under the sanitizers does, and no longer.
    if ! "$build/fuzz/fuzz_$fuzzer" -max_total_time="$seconds" -timeout=20 -detect_leaks=0 -rss_limit_mb=2048 -dict="$here/keys.dict" \
        -artifact_prefix="$cache/$fuzzer-" -print_final_stats=1 "$cache/$fuzzer" "$seeds/$fuzzer" >"$log" 2>&1; then
        tail -n 60 "$log"
        status=1
    fi
    executed=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    echo "$(grep DONE "$log"), ${executed:-0} executions, $(add_executions "$fuzzer" "${executed:-0}") in all runs"
done
exit $status
