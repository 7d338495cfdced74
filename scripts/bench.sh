#!/usr/bin/env bash
# Builds the benchmarks in Release (build-bench) and runs them all in one go:
# the print runs and their floors at two sizes, each benchmark in a process of
# its own (the peak memory is per process); the instruction counts of the PDF
# runs and their floors under callgrind; the catalogue and the start-up.
# The figures go into bench/RESULTS.md between its two markers (the rest of
# that file is left alone); the raw JSON stays in build-bench/risultati/.
#
#   scripts/bench.sh                    everything: about 20 minutes on 2 cores
#   SCHEDINE_BENCH_RIPETIZIONI=N        runs of each timed benchmark (default 5)
#   SCHEDINE_BENCH_CALLGRIND=0          no instruction counts
#
# The machine is shared: ratios use CPU time, and the instruction counts do not
# depend on the load at all. The load average is written beside the figures.
set -euo pipefail
cd "$(dirname "$0")/.."

ripetizioni=${SCHEDINE_BENCH_RIPETIZIONI:-5}
con_callgrind=${SCHEDINE_BENCH_CALLGRIND:-1}
cartella=build-bench
risultati=$cartella/risultati
esiti=bench/RESULTS.md

scripts/installa-dipendenze.sh
mancanti=()
for p in jq valgrind; do command -v "$p" > /dev/null || mancanti+=("$p"); done
if [ ${#mancanti[@]} -gt 0 ]; then
  sudo_cmd=""
  [ "$(id -u)" -ne 0 ] && sudo_cmd="sudo"
  $sudo_cmd apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo_cmd apt-get install -y -qq --no-install-recommends "${mancanti[@]}"
fi

cmake -S . -B "$cartella" -G Ninja -DCMAKE_BUILD_TYPE=Release -DSCHEDINE_SANITIZE=OFF \
  -DSCHEDINE_TESTS=OFF -DSCHEDINE_BENCH=ON -DSCHEDINE_QT=ON > /dev/null
cmake --build "$cartella" -j 2 --target bench_stampa bench_catalogo bench_anteprima

export QT_QPA_PLATFORM=offscreen
rm -rf "$risultati"
mkdir -p "$risultati"
comandi=$risultati/comandi.txt
carichi=$risultati/carichi.txt
: > "$comandi"
: > "$carichi"

# Runs one benchmark of a program in a process of its own, into NAME.json.
esegui() {
  local programma=$1 nome=$2
  local file=$risultati/${nome//\//_}.json
  local comando=("$cartella/bench/$programma" "--benchmark_filter=^$nome(/|\$)"
    "--benchmark_repetitions=$ripetizioni" "--benchmark_report_aggregates_only=true"
    "--benchmark_format=json" "--benchmark_out=$file")
  echo "${comando[*]}" >> "$comandi"
  cut -d' ' -f1 /proc/loadavg >> "$carichi"
  echo "== $nome" >&2
  "${comando[@]}" > /dev/null 2> "$risultati/${nome//\//_}.err"
}

# A field of the median of a benchmark run: cpu_time, real_time, a counter.
# With a single run there is no median: that run's own figure.
mediana() {
  jq -r --arg k "$2" '([.benchmarks[] | select(.aggregate_name == "median")]
    + [.benchmarks[] | select(.run_type == "iteration")])[0][$k]' "$risultati/${1//\//_}.json"
}

# Instructions of the timed print alone, one run.
istruzioni() {
  local nome=$1
  local uscita=$risultati/callgrind_${nome//\//_}.out
  local comando=(valgrind --tool=callgrind "--toggle-collect=*corsa_misurata*" "--callgrind-out-file=$uscita"
    "$cartella/bench/bench_stampa" "--benchmark_filter=^$nome/" "--benchmark_repetitions=1")
  echo "${comando[*]}" >> "$comandi"
  echo "== callgrind $nome" >&2
  "${comando[@]}" > /dev/null 2> "$risultati/callgrind_${nome//\//_}.err"
  awk '/^totals:/ {print $2}' "$uscita"
}

dividi() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }
intero() { awk -v a="$1" 'BEGIN { printf "%.0f", a }'; }
decimale() { awk -v a="$1" 'BEGIN { printf "%.1f", a }'; }

carico_inizio=$(cat /proc/loadavg)
giochi=(lotto enalotto)
misure=(giornale pavimento_giornale pdf pavimento_pdf)
dimensioni=(10000 100000)
for gioco in "${giochi[@]}"; do
  for misura in "${misure[@]}"; do
    for n in "${dimensioni[@]}"; do esegui bench_stampa "$gioco/$misura/$n"; done
  done
done
for nome in BM_elenco_5000_sistemi BM_scansione_5000_sistemi BM_avvio_fino_al_primo_elenco; do
  esegui bench_catalogo "$nome"
done
carico_fine=$(cat /proc/loadavg)

declare -A ir
if [ "$con_callgrind" = 1 ]; then
  for gioco in "${giochi[@]}"; do
    for misura in pdf pavimento_pdf; do ir[$gioco/$misura]=$(istruzioni "$gioco/$misura/10000"); done
  done
fi

# The report.
cifre=$risultati/cifre.md
{
  echo "Made by \`scripts/bench.sh\` (SCHEDINE_BENCH_RIPETIZIONI=$ripetizioni, SCHEDINE_BENCH_CALLGRIND=$con_callgrind)"
  echo "on $(date -u '+%Y-%m-%d %H:%M UTC'), commit $(git rev-parse --short HEAD 2>/dev/null || echo '?')$(git diff --quiet 2>/dev/null || echo ' with uncommitted changes'),"
  echo "$(nproc) cores ($(awk -F': ' '/model name/ {print $2; exit}' /proc/cpuinfo)), Release build."
  echo "Load average (1, 5, 15 min) at the start: $(cut -d' ' -f1-3 <<< "$carico_inizio"); at the end of the timed runs: $(cut -d' ' -f1-3 <<< "$carico_fine");"
  echo "1-minute load as each benchmark started: $(sort -n "$carichi" | head -1) to $(sort -n "$carichi" | tail -1)."
  echo "Each figure is the median of $ripetizioni runs in one process; CPU time is the benchmark thread's."
  echo
  echo "### Print runs"
  echo
  echo "| run | columns | slips | CPU ms | slips / CPU s | wall ms | floor | floor CPU ms | ratio to floor |"
  echo "| --- | ---: | ---: | ---: | ---: | ---: | --- | ---: | ---: |"
  for gioco in "${giochi[@]}"; do
    for coppia in giornale:pavimento_giornale pdf:pavimento_pdf; do
      corsa=${coppia%%:*}
      pavimento=${coppia#*:}
      for n in "${dimensioni[@]}"; do
        cpu=$(mediana "$gioco/$corsa/$n" cpu_time)
        cpu_p=$(mediana "$gioco/$pavimento/$n" cpu_time)
        schede=$(mediana "$gioco/$corsa/$n" schede)
        echo "| $gioco/$corsa | $n | $(intero "$schede") | $(intero "$cpu") | $(intero "$(mediana "$gioco/$corsa/$n" schede_al_s)") | $(intero "$(mediana "$gioco/$corsa/$n" real_time)") | $pavimento | $(intero "$cpu_p") | **$(dividi "$cpu" "$cpu_p")** |"
      done
    done
  done
  echo
  echo "### Peak resident memory (ru_maxrss), each size in a process of its own"
  echo
  echo "| run | KiB at 10,000 columns | KiB at 100,000 columns | growth KiB | bytes per extra slip |"
  echo "| --- | ---: | ---: | ---: | ---: |"
  for gioco in "${giochi[@]}"; do
    for misura in giornale pdf pavimento_pdf; do
      piccolo=$(mediana "$gioco/$misura/10000" picco_kib)
      grande=$(mediana "$gioco/$misura/100000" picco_kib)
      s_piccolo=$(mediana "$gioco/$misura/10000" schede)
      s_grande=$(mediana "$gioco/$misura/100000" schede)
      crescita=$(awk -v a="$grande" -v b="$piccolo" 'BEGIN { print a - b }')
      echo "| $gioco/$misura | $(intero "$piccolo") | $(intero "$grande") | $(intero "$crescita") | $(awk -v c="$crescita" -v a="$s_grande" -v b="$s_piccolo" 'BEGIN { printf "%.1f", c * 1024 / (a - b) }') |"
    done
  done
  echo
  echo "(The floors hold every mark of the run in memory before drawing: their peak is shown for the growth, not as a floor.)"
  if [ "$con_callgrind" = 1 ]; then
    echo
    echo "### Instructions of the print (callgrind, 10,000 columns, one run)"
    echo
    echo "| run | instructions | floor | floor instructions | ratio to floor |"
    echo "| --- | ---: | --- | ---: | ---: |"
    for gioco in "${giochi[@]}"; do
      echo "| $gioco/pdf | ${ir[$gioco/pdf]} | $gioco/pavimento_pdf | ${ir[$gioco/pavimento_pdf]} | **$(dividi "${ir[$gioco/pdf]}" "${ir[$gioco/pavimento_pdf]}")** |"
    done
  fi
  echo
  echo "### Catalogue of 5,000 systems"
  echo
  echo "| benchmark | CPU ms | wall ms | floor | floor CPU ms | ratio to floor |"
  echo "| --- | ---: | ---: | --- | ---: | ---: |"
  cpu_scan=$(mediana BM_scansione_5000_sistemi cpu_time)
  for nome in BM_elenco_5000_sistemi BM_avvio_fino_al_primo_elenco BM_scansione_5000_sistemi; do
    cpu=$(mediana "$nome" cpu_time)
    echo "| $nome | $(decimale "$cpu") | $(decimale "$(mediana "$nome" real_time)") | BM_scansione_5000_sistemi | $(decimale "$cpu_scan") | **$(dividi "$cpu" "$cpu_scan")** |"
  done
  echo
  echo "<details><summary>The commands, one process each</summary>"
  echo
  echo '```'
  echo "QT_QPA_PLATFORM=offscreen"
  cat "$comandi"
  echo '```'
  echo
  echo "</details>"
} > "$cifre"

scripts/sostituisci_sezione.sh "$esiti" '<!-- scripts/bench.sh: inizio -->' '<!-- scripts/bench.sh: fine -->' \
  "$cifre" '# Benchmark results\n\n'
cat "$cifre"

# The print preview, in a section of its own.
anteprima=$risultati/anteprima.json
"$cartella/bench/bench_anteprima" "--benchmark_repetitions=$ripetizioni" "--benchmark_report_aggregates_only=true" \
  "--benchmark_format=json" "--benchmark_out=$anteprima" > /dev/null 2> "$risultati/anteprima.err"
scripts/risultati_anteprima.sh "$anteprima" "$ripetizioni" "$esiti"
