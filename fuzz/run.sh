#!/usr/bin/env bash
# Runs every fuzz target built in BUILD for SECONDS, JOBS targets at a time,
# then merges the new inputs into the minimised corpus under fuzz/corpus.
# Usage: fuzz/run.sh BUILD SECONDS [JOBS] [TARGET...]
# Limits: 512 MB of memory, 1 s per input; crashes land in fuzz/artifacts/.
# Seeds: the corpus, fuzz/regressions/TARGET (inputs that once found a fault)
# and fuzz/seeds/TARGET (hand-made inputs, such as scripts large enough to
# make the line buffer grow).
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1 seconds=$2 jobs=${3:-1}
shift $(( $# < 3 ? $# : 3 ))
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
  for bin in "$build"/fuzz/fuzz_*; do targets+=("$(basename "$bin" | sed 's/^fuzz_//')"); done
fi
mkdir -p fuzz/artifacts "$build/fuzz-logs"

run_one() {
  local t=$1 bin="$build/fuzz/fuzz_$1" work="$build/fuzz-corpus/$1"
  export ASAN_OPTIONS=${ASAN_OPTIONS:-quarantine_size_mb=64}
  local dict=() ; [ -f "fuzz/dict/$t.dict" ] && dict=(-dict="fuzz/dict/$t.dict")
  local seeds=("fuzz/corpus/$t") dir
  for dir in fuzz/regressions/$t fuzz/seeds/$t; do [ -d "$dir" ] && seeds+=("$dir"); done
  # Flags of the target's own (fuzz/flags/TARGET), such as a larger -max_len.
  # The script target reads inputs up to 64 KiB, so that the line buffer
  # grows, and a script may include itself until 256 files are read: such an
  # input is 16 MiB of reading, a few seconds under the sanitizers, so it has
  # a longer time limit per input (a later -timeout wins).
  local flags=() ; [ -f "fuzz/flags/$t" ] && read -r -a flags < "fuzz/flags/$t"
  mkdir -p "$work" "fuzz/corpus/$t"
  local status=0
  "$bin" "${dict[@]}" -max_total_time="$seconds" -rss_limit_mb=512 -timeout=1 "${flags[@]}" -print_final_stats=1 \
    -artifact_prefix="fuzz/artifacts/$t-" "$work" "${seeds[@]}" > "$build/fuzz-logs/$t.log" 2>&1 || status=$?
  # Keep the checked-in corpus small: only inputs that add an edge (hit
  # counts are not kept apart, or every loop length would be kept).
  local merged; merged=$(mktemp -d)
  "$bin" -merge=1 -use_counters=0 -rss_limit_mb=512 -timeout=1 "${flags[@]}" "$merged" "fuzz/corpus/$t" "$work" > "$build/fuzz-logs/$t.merge.log" 2>&1 || true
  rm -rf "fuzz/corpus/$t" && mv "$merged" "fuzz/corpus/$t" && chmod 755 "fuzz/corpus/$t"
  local stats
  stats=$(grep -E '^stat::(number_of_executed_units|average_exec_per_sec|peak_rss_mb)' "$build/fuzz-logs/$t.log" | tr '\n' ' ')
  local cov; cov=$(grep -oE 'cov: [0-9]+ ft: [0-9]+' "$build/fuzz-logs/$t.log" | tail -1)
  echo "$t: status $status, $cov, corpus $(ls "fuzz/corpus/$t" | wc -l) files, $stats"
  return $status
}

failed=0
running=0
for t in "${targets[@]}"; do
  run_one "$t" &
  running=$((running + 1))
  if [ "$running" -ge "$jobs" ]; then wait -n || failed=1; running=$((running - 1)); fi
done
while [ "$running" -gt 0 ]; do wait -n || failed=1; running=$((running - 1)); done
exit $failed
