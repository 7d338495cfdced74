#!/usr/bin/env bash
# Runs one scenario test: tests/scenarios/NAME.txt on a fresh program folder.
#
#   esegui_scenario.sh RUNNER SKIN_FOLDER SCENARIO
#
# The program folder gets the shipped skin files in skin/ (unless the fixture
# holds a file named .senza-skin), then the fixture folder NAME/ beside the
# scenario, if there is one. The runner runs inside the folder with
# --folder ., so paths in the journal don't depend on where the folder is.
# The journal must equal NAME.giornale when that file exists, the exit
# status must equal the number in NAME.esito (0 when there is none), and each
# file under NAME.dopo/ must stand in the program folder after the run with
# exactly its bytes.
set -u

runner=$(realpath "$1")
skin=$2
scenario=$(realpath "$3")
base=${scenario%.txt}
fixture=$base

lavoro=$(mktemp -d "${TMPDIR:-/tmp}/schedine-scenario.XXXXXX")
trap 'chmod -R u+w "$lavoro" 2>/dev/null; rm -rf "$lavoro"' EXIT
cartella=$lavoro/cartella
mkdir "$cartella"

if [[ ! -e $fixture/.senza-skin ]]; then
  mkdir "$cartella/skin"
  cp "$skin"/*.skn "$cartella/skin/"
fi
if [[ -d $fixture ]]; then
  cp -R "$fixture/." "$cartella/"
  rm -f "$cartella/.senza-skin"
fi

atteso=0
if [[ -f $base.esito ]]; then
  atteso=$(tr -d '[:space:]' < "$base.esito")
fi

(cd "$cartella" && "$runner" --folder . --journal "$lavoro/giornale" "$scenario" 2> "$lavoro/errori")
stato=$?

fallito=0
if [[ $stato != "$atteso" ]]; then
  echo "exit status $stato, expected $atteso"
  fallito=1
fi
if [[ -f $base.giornale ]] && ! diff -u "$base.giornale" "$lavoro/giornale"; then
  echo "the journal differs from $(basename "$base").giornale (--- expected, +++ actual)"
  fallito=1
fi
if [[ -d $base.dopo ]]; then
  while IFS= read -r -d '' dopo; do
    nome=${dopo#"$base.dopo/"}
    if ! cmp -s "$dopo" "$cartella/$nome"; then
      echo "after the run, $nome differs from $(basename "$base").dopo/$nome (or is missing)"
      fallito=1
    fi
  done < <(find "$base.dopo" -type f -print0)
fi
if [[ $fallito != 0 ]]; then
  echo "--- runner's messages:"
  cat "$lavoro/errori"
  echo "--- journal:"
  cat "$lavoro/giornale" 2>/dev/null
fi
exit $fallito
