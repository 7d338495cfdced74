#!/usr/bin/env bash
# Pictures of every window of the program (the main form, each slip form and
# each calibration form) under skin 1 and skin 4, taken on a virtual screen
# (Xvfb) from a demo program folder, into a folder: schermate/skin1/*.png and
# schermate/skin4/*.png, or the folder given. With --readme it also refreshes
# the pictures the README shows (docs/schermate/).
#
#   scripts/schermate.sh [--readme] [FOLDER]
#
# The pictures come from the window test, which judges each window as it
# takes it; a window that fails a check is still pictured, and the script
# then ends with the test's failure.
set -euo pipefail
cd "$(dirname "$0")/.."

readme=0
if [ "${1:-}" = "--readme" ]; then
  readme=1
  shift
fi
uscita="$(realpath -m "${1:-schermate}")"

scripts/installa-dipendenze.sh

costruzione="${SCHEDINE_COSTRUZIONE:-build-schermate}"
if [ ! -f "$costruzione/CMakeCache.txt" ]; then
  cmake -S . -B "$costruzione" -G Ninja -DCMAKE_BUILD_TYPE=Release -DSCHEDINE_BENCH=OFF
fi
cmake --build "$costruzione" -j "$(nproc)" --target test_schermata

rm -rf "$uscita/skin1" "$uscita/skin4"
mkdir -p "$uscita"
stato=0
# A build with sanitizers reports what the X11 libraries keep till the end.
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
SCHEDINE_SCHERMATE="$uscita" QT_QPA_PLATFORM=xcb \
  xvfb-run -a -s "-screen 0 1280x1024x24" \
  "$costruzione/tests/app/test_schermata" --gtest_filter='*_skin1:*_skin4:Anteprima.*' > "$uscita/esito.txt" 2>&1 || stato=$?
echo "Schermate in: $uscita/skin1 e $uscita/skin4 ($(ls "$uscita"/skin1/*.png "$uscita"/skin4/*.png | wc -l) finestre)"

if [ "$readme" = 1 ]; then
  # The main window and one slip form of each game, as the README shows them.
  mkdir -p docs/schermate
  for finestra in form1 Form_sched_lotto_ambetto Form_sched_enalotto_superstar Form_sched_wforlife5 tar_wforlife5; do
    cp "$uscita/skin1/$finestra.png" docs/schermate/
  done
  cp "$uscita/skin4/Form_sched_lotto_ambetto.png" docs/schermate/Form_sched_lotto_ambetto_notte.png
  cp "$uscita/skin1/anteprima_lotto.png" docs/schermate/
  echo "Figure del README aggiornate in docs/schermate/"
fi

if [ "$stato" != 0 ]; then
  echo "Il controllo delle finestre ha trovato difetti: vedi $uscita/esito.txt" >&2
fi
exit "$stato"
