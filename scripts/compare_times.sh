#!/usr/bin/env bash
# Times two commands turn about and prints each run, the medians and their ratio, and the first
# command's peak memory against a file's size.
# Usage: compare_times.sh FILE_SIZE_IN_BYTES COMMAND_A COMMAND_B
set -euo pipefail
size=$1 a=$2 b=$3
rounds=${ROUNDS:-9}
times=$(mktemp)
trap 'rm -f "$times"' EXIT

# Seconds from start to end and peak kilobytes of one run; what it prints is thrown away.
timed() {
  local started ended
  started=$(date +%s%N)
  /usr/bin/time --format='%M' --output="$times" bash -c "exec $1 >/dev/null"
  ended=$(date +%s%N)
  awk -v ns=$((ended - started)) '{ printf "%.3f %d\n", ns / 1e9, $1 }' "$times"
}

echo "A: $a"
echo "B: $b"
timed "$a" >/dev/null
timed "$b" >/dev/null
for ((round = 1; round <= rounds; ++round)); do
  echo "$(timed "$a") $(timed "$b")"
done | tee /dev/stderr | awk -v size="$size" '
  function median(values, n,   i, j, t) {
    for (i = 2; i <= n; ++i)
      for (j = i; j > 1 && values[j] < values[j - 1]; --j) { t = values[j]; values[j] = values[j - 1]; values[j - 1] = t }
    return n % 2 ? values[(n + 1) / 2] : (values[n / 2] + values[n / 2 + 1]) / 2
  }
  { a[NR] = $1; b[NR] = $3; ratio[NR] = $1 / $3; if ($2 > peak) peak = $2 }
  END {
    printf "A median %.3f s, B median %.3f s, ratio of each round, median %.2f\n", median(a, NR), median(b, NR), median(ratio, NR)
    printf "A peak %.1f MB, %.2f times the file of %.1f MB\n", peak * 1024 / 1e6, peak * 1024 / size, size / 1e6
  }'
