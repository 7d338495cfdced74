#!/usr/bin/env bash
# Hostile input: builds the libFuzzer targets of fuzz/ with clang, with
# AddressSanitizer and UndefinedBehaviorSanitizer, in a build folder of their
# own, and runs each for a bounded time from its seed files in
# fuzz/corpus/<target>/. Fails on any crash, hang, leak, excess of memory or
# sanitizer report; the input that caused it is kept in
# build-fuzz/artefatti/<target>/.
#
#   scripts/fuzz.sh                 every target, SCHEDINE_FUZZ_SECONDI (15) each
#   scripts/fuzz.sh fuzz_tar_lotto  only the targets named
set -euo pipefail
cd "$(dirname "$0")/.."

secondi=${SCHEDINE_FUZZ_SECONDI:-15}
cartella=build-fuzz

cmake -S . -B "$cartella" -G Ninja -DCMAKE_BUILD_TYPE= -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS="-O1" \
  -DSCHEDINE_FUZZ=ON -DSCHEDINE_SANITIZE=OFF -DSCHEDINE_QT=OFF -DSCHEDINE_TESTS=OFF -DSCHEDINE_BENCH=OFF >/dev/null
cmake --build "$cartella" -j "$(nproc)" --target schedine_fuzz

if [ $# -gt 0 ]; then
  bersagli=("$@")
else
  bersagli=(fuzz_file_record fuzz_record_andata_ritorno
            fuzz_tar_lotto fuzz_tar_enalotto fuzz_tar_enalotto2 fuzz_tar_wforlife fuzz_tar_wforlife5
            fuzz_testata fuzz_colonne fuzz_scenario)
fi

export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:symbolize=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

falliti=()
for bersaglio in "${bersagli[@]}"; do
  nome=${bersaglio#fuzz_}
  semi=fuzz/corpus/$nome
  lavoro=$cartella/corpus/$nome        # what the run finds is kept here, not among the seeds
  artefatti=$cartella/artefatti/$nome
  registro=$cartella/registro_$nome.txt
  mkdir -p "$lavoro" "$artefatti"
  rm -f "$artefatti"/*
  echo "== $bersaglio (${secondi} s)"
  esito=0
  "$cartella/fuzz/$bersaglio" "$lavoro" "$semi" \
    -max_total_time="$secondi" -timeout=5 -rss_limit_mb=2048 -malloc_limit_mb=512 \
    -artifact_prefix="$artefatti/" -print_final_stats=1 >"$registro" 2>&1 || esito=$?
  # A sanitizer that reports without stopping the run is a fault too.
  if [ $esito -ne 0 ] || grep -qE 'ERROR: (AddressSanitizer|LeakSanitizer|libFuzzer)|runtime error:|SUMMARY: ' "$registro"; then
    echo "FAULT in $bersaglio (exit $esito): see $registro"
    grep -E 'ERROR|runtime error|SUMMARY|property broken|Test unit written' "$registro" | head -20 || true
    falliti+=("$bersaglio")
  else
    grep -E '^(stat::number_of_executed_units|stat::peak_rss_mb)' "$registro" | tr '\n' ' '
    echo
  fi
done

echo "fuzz: $(( ${#bersagli[@]} - ${#falliti[@]} )) passed, ${#falliti[@]} failed"
[ ${#falliti[@]} -eq 0 ]
