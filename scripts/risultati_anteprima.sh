#!/usr/bin/env bash
# Writes the figures of bench_anteprima (its JSON output) into RESULTS.md
# between the preview's two markers; the rest of the file is left alone.
#
#   scripts/risultati_anteprima.sh ANTEPRIMA.json RIPETIZIONI RESULTS.md
set -euo pipefail
json=$1
ripetizioni=$2
esiti=$3

mediana() {
  jq -r --arg n "$1" --arg k "$2" '[.benchmarks[] | select(.run_name == $n and .aggregate_name == "median")][0][$k]' "$json"
}
ms() { awk -v a="$1" 'BEGIN { printf "%.2f", a }'; }

cifre=$(mktemp)
{
  echo "Made by \`bench/bench_anteprima\` on $(date -u '+%Y-%m-%d %H:%M UTC'), commit $(git rev-parse --short HEAD 2>/dev/null || echo '?')$(git diff --quiet 2>/dev/null || echo ' with uncommitted changes'),"
  echo "$(nproc) cores, Release build, load average $(cut -d' ' -f1-3 /proc/loadavg); medians of $ripetizioni runs, QT_QPA_PLATFORM=offscreen."
  echo
  echo "| measure | wall ms | CPU ms | limit | ratio to limit |"
  echo "| --- | ---: | ---: | ---: | ---: |"
  p=pronta/lotto/10000
  echo "| 10,000-slip Lotto preview: from the run's end to the window shown with its first page drawn | $(ms "$(mediana $p real_time)") | $(ms "$(mediana $p cpu_time)") | 1000 | **$(awk -v a="$(mediana $p real_time)" 'BEGIN { printf "%.4f", a / 1000 }')** |"
  for gioco in lotto enalotto; do
    nome=Lotto
    [ "$gioco" = enalotto ] && nome="five-panel SuperEnalotto"
    for z in 50 100 200 400 intera_100; do
      p=pagina/$gioco/$z
      cosa="a $nome page, 900 × 900 view at ${z}%"
      [ "$z" = intera_100 ] && cosa="a whole $nome page at 100%"
      echo "| $cosa | $(ms "$(mediana $p real_time)") | $(ms "$(mediana $p cpu_time)") | 16 | **$(awk -v a="$(mediana $p real_time)" 'BEGIN { printf "%.3f", a / 16 }')** |"
    done
  done
  echo
  echo "| recording | slips | marks | bytes a mark (limit 50) | run into the recorder, CPU ms |"
  echo "| --- | ---: | ---: | ---: | ---: |"
  for p in registra/lotto/10000 registra/enalotto/50000; do
    echo "| $p | $(mediana $p schede | awk '{printf "%.0f", $1}') | $(mediana $p segni | awk '{printf "%.0f", $1}') | **$(mediana $p byte_per_segno | awk '{printf "%.1f", $1}')** | $(ms "$(mediana $p cpu_time)") |"
  done
  echo
  echo "(The Lotto slips carry 5 numbers and the text line, so the text weighs on each mark; a SuperEnalotto slip carries 30 marks.)"
} > "$cifre"

"$(dirname "$0")/sostituisci_sezione.sh" "$esiti" '<!-- bench_anteprima: inizio -->' '<!-- bench_anteprima: fine -->' \
  "$cifre" '\n## Print preview\n\n'
rm -f "$cifre"
