#!/usr/bin/env bash
# The runner's command line: options, where the journal and the PDF go, and
# the exit statuses of a run that cannot begin.
#
#   prova_riga_di_comando.sh RUNNER SKIN_FOLDER
set -u

runner=$(realpath "$1")
skin=$2
lavoro=$(mktemp -d "${TMPDIR:-/tmp}/schedine-riga.XXXXXX")
trap 'rm -rf "$lavoro"' EXIT
cartella=$lavoro/cartella
mkdir -p "$cartella/skin"
cp "$skin"/*.skn "$cartella/skin/"

fallito=0
errore() {
  echo "FAILED: $*"
  fallito=1
}
# atteso STATUS COMMAND...: runs the runner and checks its exit status.
atteso() {
  local stato=$1
  shift
  "$runner" "$@" > "$lavoro/uscita" 2> "$lavoro/errori"
  local avuto=$?
  if [[ $avuto != "$stato" ]]; then
    errore "$* exited $avuto, expected $stato"
    cat "$lavoro/errori"
  fi
}

printf 'start\nexpect file sch exists\nend\n' > "$lavoro/buono.txt"
printf 'start\n\nexpect Form1 text "Marendolia - Stampa Schedine"\nclick Form1.Command3\nexpect var tipo_gioco "ambo"\nend\n' > "$lavoro/fallisce.txt"

atteso 2
atteso 2 --folder
atteso 2 --bogus "$lavoro/buono.txt"
atteso 2 "$lavoro/buono.txt" "$lavoro/buono.txt"
atteso 2 "$lavoro/nessuno.txt"
atteso 2 --folder "$lavoro/nessuna" "$lavoro/buono.txt"

# The folder is the program's folder; without --folder it is the current one.
atteso 0 --folder "$cartella" "$lavoro/buono.txt"
(cd "$cartella" && atteso 0 "$lavoro/buono.txt")
atteso 0 --folder="$cartella" --locale en_US "$lavoro/buono.txt"

# Journal to standard output, or to a file; stderr names the failing line.
atteso 1 --folder "$cartella" "$lavoro/fallisce.txt"
[[ $(cat "$lavoro/uscita") == "ignorato Form1.Command3" ]] || errore "journal on stdout: $(cat "$lavoro/uscita")"
grep -q 'fallisce.txt:5:.*expected "ambo", actual "superenalotto"' "$lavoro/errori" || errore "stderr: $(cat "$lavoro/errori")"
atteso 1 --folder "$cartella" --journal "$lavoro/giornale" "$lavoro/fallisce.txt"
[[ ! -s $lavoro/uscita ]] || errore "journal written to stdout with --journal"
[[ $(cat "$lavoro/giornale") == "ignorato Form1.Command3" ]] || errore "journal file: $(cat "$lavoro/giornale")"

# --pdf and --anteprima work where the build has Qt, alone or together, and
# say they are unavailable otherwise.
for uscite in "--pdf $lavoro/run.pdf" "--anteprima $lavoro/anteprima.pdf" \
              "--pdf $lavoro/run.pdf --anteprima $lavoro/anteprima.pdf"; do
  # shellcheck disable=SC2086
  "$runner" --folder "$cartella" $uscite "$lavoro/buono.txt" > /dev/null 2> "$lavoro/errori"
  stato=$?
  if [[ $stato == 2 ]]; then
    grep -q 'not available' "$lavoro/errori" || errore "$uscite refused without saying why: $(cat "$lavoro/errori")"
  elif [[ $stato != 0 ]]; then
    errore "$uscite run exited $stato"
    cat "$lavoro/errori"
  fi
done

# A PDF that can't be written whole fails the run, told before it begins
# when it can be, and names the file and why.
printf 'start\nclick Form1.Command2\nclick tar_enalotto.cmdstampa\nend\n' > "$lavoro/prova.txt"
if [[ $stato != 2 ]]; then
  atteso 4 --folder "$cartella" --pdf "$lavoro/nessuna/run.pdf" "$lavoro/prova.txt"
  grep -q "nessuna/run.pdf: cannot write the PDF: no such folder" "$lavoro/errori" || errore "no folder: $(cat "$lavoro/errori")"
  [[ ! -s $lavoro/uscita ]] || errore "the run went on without its PDF"
  atteso 4 --folder "$cartella" --anteprima /dev/full "$lavoro/prova.txt"
  grep -q "/dev/full: the PDF could not be written whole (.*/dev/full: Disco pieno)" "$lavoro/errori" || errore "full disk: $(cat "$lavoro/errori")"
  atteso 0 --folder "$cartella" --pdf "$lavoro/prova.pdf" "$lavoro/prova.txt"
fi

exit $fallito
