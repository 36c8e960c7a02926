#!/usr/bin/env bash
# Builds the fuzz targets and runs them.
#   fuzz/run.sh              each target for 60 seconds (or $FUZZ_SECONDS), from its kept corpus
#   fuzz/run.sh --replay     each target over the corpus that make_corpus writes, and what was kept,
#                            then 10,000 inputs grown from it with a fixed seed; what CI runs
# A finding stops it with an exit code other than 0; the input is kept in build/fuzz/findings.
set -euo pipefail
cd "$(dirname "$0")/.."

# Fed with files, and with frames of one encoding each.
files=(fuzz_walk fuzz_values fuzz_pixelmap fuzz_directory fuzz_video fuzz_display fuzz_overlays)
streams=(fuzz_jpeg fuzz_jpegls fuzz_jpeg2000 fuzz_jpegxl fuzz_rle fuzz_deflated)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target make_corpus make_clips make_streams "${files[@]}" "${streams[@]}"
corpus=build/fuzz/corpus findings=build/fuzz/findings
mkdir -p "$corpus/seeds" "$findings"
build/fuzz/bin/make_corpus "$corpus/seeds"
build/fuzz/bin/make_clips "$corpus/seeds"
build/fuzz/bin/make_streams "$corpus/streams"

limits=(-rss_limit_mb=2048 -timeout=20 -max_len=16384 "-artifact_prefix=$findings/")
for target in "${files[@]}" "${streams[@]}"; do
    seeds=$corpus/seeds
    [ ! -d "$corpus/streams/$target" ] || seeds=$corpus/streams/$target
    mkdir -p "$corpus/$target"
    if [ "${1:-}" = --replay ]; then
        echo "replaying $target"
        "build/fuzz/bin/$target" "${limits[@]}" -runs=0 "$seeds" "$corpus/$target" \
            2>&1 | tail -n 1
        "build/fuzz/bin/$target" "${limits[@]}" -runs=10000 -seed=1 "$seeds" \
            2>&1 | tail -n 1
    else
        "build/fuzz/bin/$target" "${limits[@]}" "-max_total_time=${FUZZ_SECONDS:-60}" \
            "$corpus/$target" "$seeds"
    fi
done
