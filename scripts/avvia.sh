#!/usr/bin/env bash
# Installs what is missing, builds the program, lays out a demo program folder
# and runs the program's start-up there, then shows what the start-up made.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/installa-dipendenze.sh

cartella=build-release
cmake -S . -B "$cartella" -G Ninja -DCMAKE_BUILD_TYPE=Release -DSCHEDINE_TESTS=OFF -DSCHEDINE_BENCH=OFF
cmake --build "$cartella" -j "$(nproc)"

demo="$PWD/demo-folder"
rm -rf "$demo"
mkdir -p "$demo/skin"
cp skin/*.skn "$demo/skin/"

scenario="$(mktemp)"
trap 'rm -f "$scenario"' EXIT
printf 'start\nexpect var tipo_gioco "superenalotto"\n' > "$scenario"

echo "Avvio del programma nella cartella $demo"
"$cartella/tools/scenario/schedine-scenario" --folder "$demo" "$scenario"
echo
echo "File creati dall'avvio:"
(cd "$demo" && find . -type f ! -name '*.skn' -printf '  %p  (%s byte)\n' | sort)
echo
echo "Prime righe della taratura Lotto (tarlo2):"
head -n 3 "$demo/tarlo2" | sed 's/\r$//; s/^/  /'
