#!/usr/bin/env bash
# A long run through one `ordwise-cli batch`: the same mixed requests again and again. Each must be
# answered at the end as at the start, and the memory must stay flat.
#
#   scripts/endurance.sh [REQUESTS]    a million without a number
set -u
cd "$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)" || exit 1
terminal=build/release/src/cli/ordwise-cli
allowed_growth=1024  # kilobytes

# Every topic has its examples, plain and harder; between them come problems that end in a message, in a
# refused key, in a line that is no request, and with other settings.
requests() {
    "$terminal" topics | sed -E 's/^ *[0-9]+ +//' | while IFS= read -r name; do
        printf '{"op":"example","topic":"%s","seed":7}\n' "$name"
        printf '{"op":"example","topic":"%s","seed":8,"complex":true,"settings":{"use_fraction":0,"RoundVar":4}}\n' "$name"
    done
    cat <<'END'
{"op":"solve","topic":"Arithmetic","problem":"5/0"}
{"op":"solve","topic":"Arithmetic","problem":"1/2+1/3+0.25"}
{"op":"solve","topic":"Arithmetic","problem":"2+x"}
{"op":"solve","topic":"Solving Equations","problem":"5x-3=2x+9","settings":{"detail":3,"ExpDetail":1}}
{"op":"solve","topic":"Evaluating Polynomials","problem":"xy","answers":["2"]}
{"op":"solve","topic":"Volume of a Sphere","boxes":{"2":"3"},"settings":{"RoundVar":4}}
{"op":"keys","topic":"Absolute Values","text":"|3+"}
{"op":"dance"}
no request
END
}

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
requests >"$work/round"
each=$(wc -l <"$work/round")
rounds=$(((${1:-1000000} + each - 1) / each))

# Counts the answers that differ from that to the same request in the first round.
mkfifo "$work/answers"
awk -v each="$each" '
    { n = NR % each }
    NR <= each { first[n] = $0; next }
    $0 != first[n] { ++different }
    END { print NR, different + 0 }' <"$work/answers" >"$work/counted" &
counter=$!

for ((i = 0; i < rounds; ++i)); do cat "$work/round"; done | "$terminal" batch >"$work/answers" &
program=$!

# The memory once a tenth is done, and the most of it after that.
started=$SECONDS early=0 most=0
while kill -0 $program 2>/dev/null; do
    now=$(awk '/^VmRSS/ { print $2 }' "/proc/$program/status" 2>/dev/null)
    [ -n "$now" ] && most=$((now > most ? now : most))
    [ $early -eq 0 ] && [ $((SECONDS - started)) -ge 2 ] && early=$most
    sleep 0.2
done
[ $early -eq 0 ] && early=$most
wait $program $counter
read -r answered different <"$work/counted"
echo "$answered answers of $((each * rounds)) in $((SECONDS - started)) seconds, $different of them different from the first round"
echo "resident: $early KB after two seconds, at most $most KB"
[ "$answered" = $((each * rounds)) ] && [ "$different" = 0 ] && [ $((most - early)) -le $allowed_growth ]
