#!/usr/bin/env bash
# Builds the fuzz targets with clang in build-fuzz and runs each for a bounded
# time from a copy of its seeds (tests/data/corpus/<target>; the seeds are never
# written to). Seconds per target: the first argument, else
# $PURRLODGE_FUZZ_SECONDS, else 15; the seed is fixed (see below). Prints how many inputs each target ran and
# exits non-zero when any target found a fault; the input that found it is kept
# in build-fuzz/findings.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-${PURRLODGE_FUZZ_SECONDS:-15}}
# A fixed seed makes a run repeat the inputs of the last: the tests stay
# repeatable, and a longer local run covers what a shorter one tries.
# PURRLODGE_FUZZ_SEED=0 lets libFuzzer choose a seed of its own.
seed=${PURRLODGE_FUZZ_SEED:-1}
targets=(index client_record stay_and_rates cattery_files other_cats settings dates client_form account_book)

scripts/setup.sh
CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DPURRLODGE_FUZZ=ON
cmake --build build-fuzz -j "$(nproc)"

# The targets' data folders live here (tmpfs when there is one: every save is
# flushed to disc) and go when the script ends, even after a crash.
scratch=$(mktemp -d /dev/shm/purrlodge-fuzz.XXXXXX 2>/dev/null || mktemp -d)
trap 'rm -rf "$scratch"' EXIT
findings=build-fuzz/findings
rm -rf "$findings" && mkdir -p "$findings"

failed=()
for target in "${targets[@]}"; do
  corpus="$scratch/corpus/$target"
  mkdir -p "$corpus"
  cp tests/data/corpus/"$target"/* "$corpus"/
  log="$scratch/$target.log"
  if TMPDIR="$scratch" build-fuzz/tests/fuzz/fuzz_"$target" -max_total_time="$seconds" -seed="$seed" \
      -timeout=20 -artifact_prefix="$findings/$target-" "$corpus" >"$log" 2>&1; then
    echo "$target: $(grep -E '^Done [0-9]+ runs' "$log" || echo 'no final count')"
  else
    echo "$target: FAILED"
    grep -E 'ERROR|runtime error|SUMMARY|Settings file|artifact|Test unit written' "$log" || tail -n 20 "$log"
    failed+=("$target")
  fi
done

# The closing line: each target that found nothing counts as a test passed.
echo "fuzz: $(( ${#targets[@]} - ${#failed[@]} )) passed, ${#failed[@]} failed"
if [ ${#failed[@]} -gt 0 ]; then
  echo "Fuzzing found faults in: ${failed[*]} (inputs in $findings)"
  exit 1
fi
