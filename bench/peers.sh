# Puzzles a second against other generators from Debian, in turns on one core. To be sourced.

# processor_seconds COMMAND...: of the whole run, its output thrown away.
processor_seconds() {
  local TIMEFORMAT='%U %S'
  { time "$@" >/dev/null 2>&1; } 2>&1 | awk '{ print $1 + $2 }'
}

# compare NAME TO_REACH OURS_COUNT PEER_COUNT OURS... -- PEER...: SEED is another number each turn.
compare() {
  local name=$1 to_reach=$2 ours_count=$3 peer_count=$4
  shift 4
  local our_command=()
  while [[ $1 != -- ]]; do our_command+=("$1") && shift; done
  shift
  local turn ours peer
  for turn in 1 2 3 4 5 6 7; do
    ours=$(processor_seconds taskset -c 0 "${our_command[@]//SEED/$((turn * 100000))}")
    peer=$(processor_seconds taskset -c 0 "${@//SEED/$((turn * 100000))}")
    awk -v o="$ours" -v p="$peer" -v n="$ours_count" -v m="$peer_count" \
      'BEGIN { print (n / o) / (m / p), n / o, m / p }'
  done | sort -g | awk -v name="$name" -v to="$to_reach" '
    { ratio[NR] = $1; ours[NR] = $2; peer[NR] = $3 }
    END {
      middle = (NR + 1) / 2
      printf "%-34s %7.1f %7.1f ..%6.1f %9g %12.0f %12.0f\n", name, ratio[middle], ratio[1],
        ratio[NR], to, ours[middle], peer[middle]
    }'
}

print_peers() {
  need_packages sgt-puzzles qqwing
  local PATH=$PATH:/usr/games  # where Debian puts them
  local puzzles=$programs/bench_puzzles
  local make=("$programs/../tools/tessel" make --quiet --jobs 1 --seed SEED)
  printf '\nPuzzles a second against peers, 7 turns each on one core, processor time\n'
  printf '%-34s %7s %16s %9s %12s %12s\n' '' median 'least .. most' 'to reach' program/s peer/s
  compare 'irregular: sgt-solo 9jdb' 4 500 100 "$puzzles" 500 irregular SEED \
    -- sgt-solo --generate 100 9jdb
  compare 'regular: qqwing' 20 3000 200 "$puzzles" 3000 regular SEED -- qqwing --generate 200
  compare 'make, irregular: the window'\''s way' 40 20000 500 "${make[@]}" --tries 20000 --format sds \
    -- "$puzzles" 500 irregular SEED
  compare 'make, graded: sgt-solo 9jdb' 80 10000 100 "${make[@]}" --tries 10000 --grade --format csv \
    -- sgt-solo --generate 100 9jdb
  compare 'make, regular: qqwing' 60 20000 200 "${make[@]}" --tries 20000 --layout regular \
    -- qqwing --generate 200
}
