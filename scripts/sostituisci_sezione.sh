#!/usr/bin/env bash
# Puts the lines of NUOVE between the two marker lines of DOVE, in place of
# what stood there. A file without the markers gets them at its end, after
# INTESTAZIONE (escapes such as \n are read).
#
#   scripts/sostituisci_sezione.sh DOVE INIZIO FINE NUOVE [INTESTAZIONE]
set -euo pipefail
dove=$1 inizio=$2 fine=$3 nuove=$4 intestazione=${5:-}

if [ ! -f "$dove" ] || ! grep -qF "$inizio" "$dove"; then
  printf '%b%s\n%s\n' "$intestazione" "$inizio" "$fine" >> "$dove"
fi
awk -v inizio="$inizio" -v fine="$fine" -v nuove="$nuove" '
  $0 == inizio { print; while ((getline riga < nuove) > 0) print riga; salta = 1; next }
  $0 == fine { salta = 0 }
  !salta { print }
' "$dove" > "$dove.nuovo"
mv "$dove.nuovo" "$dove"
