#!/usr/bin/env bash
# Runs every fuzzer for some seconds, beginning with the problems of the tests. An input that breaks
# something is kept and its place is said.
#
#   run-fuzzers.sh BUILD SECONDS [FUZZER]...    e.g. run-fuzzers.sh build/sanitize 60 solve keys
#
# New inputs are kept in BUILD/corpus, so that the next run goes on from there.
set -u
build=$(CDPATH='' cd -- "${1:?}" && pwd) || exit 1
seconds=${2:?}
shift 2
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd) || exit 1
corpus=$build/corpus
[ $# -gt 0 ] || set -- keys solve batch markup problem_file

rm -rf "$corpus/seeds"
"$build/fuzz/write_seeds" "$here/../tests/cases" "$corpus/seeds" || exit 1
status=0
for fuzzer in "$@"; do
    mkdir -p "$corpus/$fuzzer" "$corpus/seeds/$fuzzer"
    echo "fuzz_$fuzzer, $seconds seconds"
    # One input may take as long as a slow solve under the sanitizers does, and no longer.
    if ! "$build/fuzz/fuzz_$fuzzer" -max_total_time="$seconds" -timeout=20 -detect_leaks=0 -rss_limit_mb=2048 -dict="$here/keys.dict" \
        -artifact_prefix="$corpus/$fuzzer-" -print_final_stats=1 "$corpus/$fuzzer" "$corpus/seeds/$fuzzer" >"$corpus/$fuzzer.log" 2>&1; then
        tail -n 60 "$corpus/$fuzzer.log"
        status=1
    fi
    grep -E 'stat::(number_of_executed_units|average_exec)|DONE' "$corpus/$fuzzer.log"
done
exit $status
