#!/usr/bin/env bash
# large_network_test.sh GENERATOR PROGRAM: looks at the networks that bench/large_network.cpp writes.
set -euo pipefail
generator=$(realpath -- "$1")
program=$(realpath -- "$2")
temp=$(mktemp -d)
trap 'rm -rf "$temp"' EXIT
cd "$temp"
failures=0

# expect CASE EXPECTED FOUND
expect() {
  if [[ $2 != "$3" ]]; then
    printf '%s\n  expected: %s\n  found:    %s\n' "$1" "$2" "$3"
    failures=1
  fi
}

# distinct FILE: how many of its links differ, in either direction, and join two nodes.
distinct() {
  awk 'NF == 2 && $1 != $2 { print $1 < $2 ? $1 " " $2 : $2 " " $1 }' "$1" | sort -u | wc -l
}

# At the second size links repeat themselves all the time.
for size in "50000 16" "2000 7"; do
  read -r links digits <<<"$size"
  "$generator" --links "$links" --digits "$digits" >net
  expect "lines of $size" "$links" "$(wc -l <net)"
  expect "links of $size" "$links" "$(distinct net)"
  expect "names of $size" 0 "$(awk -v nodes=$((1 << digits)) \
    '{ for (i = 1; i <= 2; ++i) if ($i !~ /^[0-9]+$/ || $i + 0 >= nodes) ++wrong }
    END { print wrong + 0 }' net)"
done

"$generator" --links 20000 --digits 14 >net
"$generator" --digits 14 --links 20000 >again
"$generator" --links 20000 --digits 14 --seed 2 >other
expect "the same bytes" "" "$(cmp net again)"
expect "another seed" 1 "$(cmp -s net other || echo $?)"
# In order, all links of a node would stand behind each other.
expect "shuffled" 1 "$(awk '$1 != last { ++runs } { last = $1 } END { print (runs > 0.9 * NR) }' net)"

# All links in cliques of one size, none of which lack: so are all that can be found but for a few.
planted=(--planted 0.5 --smallest 9 --largest 9 --missing 0 --a 0.25 --b 0.25 --c 0.25)
"$generator" --links 20000 --digits 14 "${planted[@]}" >cliques
"$program" -i cliques -o out >/dev/null 2>&1
expect "planted cliques" 1 "$((10000 / 36 < $(grep -Ec '^[0-9]+:( [0-9]+){9}' out/cliques)))"
expect "a node of many links" 1 "$(awk '{ ++links[$1]; ++links[$2] }
  END { for (node in links) if (links[node] > most) most = links[node]; print (most > 100) }' net)"

for wrong in "--links" "--links 1.5" "--skew 3" "--a 0.9" "--digits 3" "--smallest 9 --largest 8"; do
  # shellcheck disable=SC2086 # several words
  expect "refused: $wrong" 2 "$("$generator" $wrong >out.txt 2>message || echo $?)"
  expect "told: $wrong" 1 "$(wc -l <message)"
done
expect "help" 11 "$("$generator" --help | grep -c '^  --')"
expect "a full disk" 1 "$("$generator" --links 2000 --digits 9 2>/dev/null >/dev/full || echo $?)"
exit "$failures"
