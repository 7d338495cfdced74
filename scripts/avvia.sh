#!/usr/bin/env bash
# Installs what is missing, builds the program, installs it into a program
# folder, makes a demo folder beside it with sample systems of every game,
# and starts the desktop program there. On a machine without a display it
# prints a sample system of each game to PDF with the scenario runner instead,
# and says where the files are.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/installa-dipendenze.sh

costruzione=build-release
cmake -S . -B "$costruzione" -G Ninja -DCMAKE_BUILD_TYPE=Release -DSCHEDINE_TESTS=OFF -DSCHEDINE_BENCH=OFF
cmake --build "$costruzione" -j "$(nproc)"

radice="$PWD/demo-folder"
programma="$radice/programma"   # the installed program folder, as shipped
demo="$radice/demo"             # the same program with sample systems beside it
rm -rf "$programma" "$demo"
cmake --install "$costruzione" --prefix "$programma" > /dev/null
cp -a "$programma" "$demo"
"$costruzione/tools/demo/schedine-demo" "$demo" > /dev/null
echo "Programma installato in: $programma"
echo "Cartella di prova con sistemi di esempio: $demo"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "Avvio di Stampa Schedine nella cartella di prova."
  exec "$demo/stampa-schedine"
fi

# No display: one sample system of each game printed to PDF by the runner,
# through the same forms a user would click.
echo "Nessuno schermo disponibile: stampo un sistema di esempio per gioco in PDF."
runner="$demo/schedine-scenario"
if [ ! -x "$runner" ]; then
  echo "Il programma di scenari non è stato costruito: nessuna stampa."
  exit 0
fi
uscita="$demo/stampe"
lavoro="$(mktemp -d)"
trap 'rm -rf "$lavoro"' EXIT
mkdir -p "$uscita"

scenario_lotto='start
click Form1.Option1(1)
select Form1.List1 0
click Form1.cmdok
click Form_sched_lotto_ambetto.ChRuote(0)
click Form_sched_lotto_ambetto.ChTerno(8)
click Form_sched_lotto_ambetto.cmdstampa(1)
end'
scenario_10elotto='start
click Form1.Option1(8)
select Form1.List1 0
show Form_sched_10elotto
click Form_sched_10elotto.chk10elottoImporto(1)
click Form_sched_10elotto.cmdstampa(1)
end'
scenario_superenalotto='start
click Form1.Option1(4)
select Form1.List1 0
click Form1.cmdok
click Form_sched_enalotto.cmdstampa(1)
end'
scenario_wforlife='start
click Form1.Option1(9)
select Form1.List1 0
click Form1.cmdok
click Form_sched_wforlife5.cmdstampa(1)
end'

stampati=0
for gioco in lotto 10elotto superenalotto wforlife; do
  variabile="scenario_$gioco"
  printf '%s\n' "${!variabile}" > "$lavoro/$gioco.txt"
  pdf="$uscita/$gioco.pdf"
  rm -f "$pdf"
  esito=0
  "$runner" --folder "$demo" --journal "$lavoro/$gioco.giornale" --pdf "$pdf" "$lavoro/$gioco.txt" \
    2> "$lavoro/$gioco.errori" || esito=$?
  if [ "$esito" -eq 0 ] && [ -s "$pdf" ]; then
    echo "  $gioco: $pdf"
    stampati=$((stampati + 1))
  else
    motivo="$(grep -v '^QStandardPaths' "$lavoro/$gioco.errori" | tail -n 1 || true)"
    [ -n "$motivo" ] || motivo="nessuna pagina stampata"
    echo "  $gioco: stampa non ancora disponibile ($motivo)"
    rm -f "$pdf"
  fi
done
echo "Schede stampate in PDF: $stampati di 4, nella cartella $uscita"
