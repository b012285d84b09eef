#!/usr/bin/env bash
# Runs every fuzz target of a build for a fixed time, from the seed corpora.
# usage: fuzz/run.sh BUILD_DIR [SECONDS]
set -euo pipefail
build=$1
seconds=${2:-20}
corpus=$build/fuzz/corpus
rm -rf "$corpus" "$build/fuzz/artifacts"
mkdir -p "$build/fuzz/artifacts"
"$build/fuzz/qb_fuzz_seeds" "$corpus"
for target in fuzz_dict fuzz_typed; do
  log=$build/fuzz/$target.log
  status=0
  "$build/fuzz/$target" -max_total_time="$seconds" -max_len=65536 -timeout=10 -rss_limit_mb=4096 \
    -artifact_prefix="$build/fuzz/artifacts/$target-" -print_final_stats=1 "$corpus/$target" >"$log" 2>&1 ||
    status=$?
  runs=$(grep -m1 -oE "stat::number_of_executed_units: [0-9]+" "$log" || echo "no stats")
  echo "$target: ${seconds}s, $runs, exit $status"
  if [ "$status" -ne 0 ]; then
    grep -E "ERROR|SUMMARY|Test unit written" "$log" | head -20
    exit 1
  fi
done
