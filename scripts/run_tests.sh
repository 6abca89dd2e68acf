#!/usr/bin/env bash
# Runs a test program in shards, as many at a time as there are processors, and prints what the
# tests that did not pass had to say, then "count PASSED FAILED SKIPPED".
# Usage: scripts/run_tests.sh [--one-by-one] LOG_FOLDER PROGRAM [ARGUMENT...]
#   --one-by-one  for tests that share a screen or a clipboard
# A shard that crashes or hangs counts as one failed test and names the test that it was at.
set -euo pipefail
top=$(dirname -- "${BASH_SOURCE[0]}")
shards=8
if [[ $1 == --one-by-one ]]; then
  shards=1
  shift
fi
logs=$1
shift
secondsForAShard=900

RunShard() {
  local log=$1 shard=$2 ended=0
  shift 2
  GTEST_TOTAL_SHARDS=$shards GTEST_SHARD_INDEX=$shard \
    timeout --kill-after=10 "$secondsForAShard" "$@" </dev/null >"$log" 2>&1 || ended=$?
  # Behind output that broke off within a line, too.
  printf '\nshard ended %d\n' "$ended" >>"$log"
}
export -f RunShard
export shards secondsForAShard

rm -rf "$logs"
mkdir -p "$logs"
for ((shard = 0; shard < shards; ++shard)); do
  printf '%s\0' "$shard"
done | xargs -0 -P "$(nproc)" -I SHARD bash -c 'RunShard "$@"' _ "$logs/SHARD.log" SHARD "$@"
awk -f "$top/report_tests.awk" "$logs"/*.log
