#!/usr/bin/env bash
# Times a quick command against a slow one, turn about, and prints how many times as fast it is.
# Usage: compare_speed.sh COMMAND_A COMMAND_B     (each started directly: no quotes, no pipes)
# In each of ROUNDS rounds A runs RUNS_A times in a row, and B once; what they print is thrown away.
set -euo pipefail
read -r -a a <<<"$1"
read -r -a b <<<"$2"
rounds=${ROUNDS:-9}
runs=${RUNS_A:-20}

# Milliseconds for each of so many runs in a row.
Timed() {
  local count=$1 started ended i
  shift
  started=$(date +%s%N)
  for ((i = 0; i < count; ++i)); do "$@" >/dev/null; done
  ended=$(date +%s%N)
  awk -v ns=$((ended - started)) -v count="$count" 'BEGIN { printf "%.2f\n", ns / count / 1e6 }'
}

echo "A: $1"
echo "B: $2"
Timed 1 "${a[@]}" >/dev/null
Timed 1 "${b[@]}" >/dev/null
for ((round = 1; round <= rounds; ++round)); do
  echo "$(Timed "$runs" "${a[@]}") $(Timed 1 "${b[@]}")"
done | awk '
  function median(values, n,   i, j, t) {
    for (i = 2; i <= n; ++i)
      for (j = i; j > 1 && values[j] < values[j - 1]; --j) { t = values[j]; values[j] = values[j - 1]; values[j - 1] = t }
    return n % 2 ? values[(n + 1) / 2] : (values[n / 2] + values[n / 2 + 1]) / 2
  }
  { a[NR] = $1; b[NR] = $2; ratio[NR] = $2 / $1 }
  END { printf "A median %.2f ms, B median %.1f ms, B / A of each round, median %.1f\n", median(a, NR), median(b, NR), median(ratio, NR) }'
