#!/usr/bin/env bash
# Every arrow points down: the libraries below the forms include nothing of
# the forms, the desktop program or the tools.
set -u
cd "$(dirname "$0")/.."
fallito=0
for cartella in core calibration controls printing systems; do
  trovati=$(grep -rnE '#include "(forms|app|tools)/' "$cartella" || true)
  if [ -n "$trovati" ]; then
    echo "$cartella/ includes from a layer above it:"
    echo "$trovati"
    fallito=1
  fi
done
trovati=$(grep -rnE '#include "(calibration|controls|printing|systems|forms|app|tools)/' core || true)
if [ -n "$trovati" ]; then
  echo "core/ includes from a layer above it:"
  echo "$trovati"
  fallito=1
fi
exit $fallito
