#!/usr/bin/env bash
# Runs a command with a PDF printer of its own as its default printer.
#
#   con_cups.sh COMMAND [ARG...]
#
# The print scheduler is started here when it is not running, a cups-pdf
# queue is added for this run only, with its PDF files going to a folder of
# the run, and the command is told that folder in SCHEDINE_PDF_STAMPANTE.
# The queue becomes the default printer of the command: the machine's default
# when it has none (it goes with the queue), else through LPDEST, so that a
# default someone set is never touched. At the end, whatever the outcome,
# the queue and its configuration are removed and a scheduler started here is
# stopped. The machine's other printers are left alone, and so is the shared
# cups-pdf configuration: the queue's own file (cups-pdf-QUEUE.conf) holds
# its settings.
#
# Exit status: the command's; 2 when the printer cannot be set up (the reason
# is on stderr); 124 when the command ran out of time. Every wait is bounded.
# Runs on one machine are taken one at a time, since they share the scheduler.
# shellcheck disable=SC2317  # the clean-up functions run from the exit trap
set -uo pipefail

readonly ppd=/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd
readonly backend=/usr/lib/cups/backend/cups-pdf
readonly conf_cups=/etc/cups
readonly tempo_comando=${SCHEDINE_TEMPO_STAMPA:-240}  # seconds
readonly comune=${TMPDIR:-/tmp}/schedine-cups         # lock and stale-run records

coda=""
cupsd_pid=""
cupsd_nostro=0
lavoro=""
esito=0

guasto() {
  echo "con_cups.sh: $*" >&2
  exit 2
}

# The scheduler's tools, each given a bounded time to answer, in English,
# since their answers are read as text.
lpstat() { LC_ALL=C timeout 30 "$(type -P lpstat)" "$@"; }
lpadmin() { LC_ALL=C timeout 30 "$(type -P lpadmin)" "$@"; }

scheduler_attivo() { lpstat -r 2>/dev/null | grep -qx "scheduler is running"; }

# A process gone, or a zombie no one reaps yet.
processo_finito() {
  local pid stato
  { read -r pid _ stato _ <"/proc/$1/stat"; } 2>/dev/null || return 0
  [[ $stato == Z ]]
}

nome_processo() { cat "/proc/$1/comm" 2>/dev/null; }

ferma_cupsd() {
  kill -TERM "$cupsd_pid" 2>/dev/null
  local i
  for ((i = 0; i < 100; ++i)); do
    processo_finito "$cupsd_pid" && break
    sleep 0.1
  done
  if ! processo_finito "$cupsd_pid"; then
    echo "con_cups.sh: cupsd $cupsd_pid ignored TERM for 10 s; killing it" >&2
    kill -KILL "$cupsd_pid" 2>/dev/null
  fi
  # Our own child is reaped here; one left by an interrupted run is not ours to wait for.
  wait "$cupsd_pid" 2>/dev/null
  rm -f "$comune/cupsd.pid"
}

riordina() {
  if [[ -n $coda ]]; then
    lpadmin -x "$coda" 2>/dev/null || echo "con_cups.sh: could not remove the queue $coda" >&2
    rm -f "$conf_cups/cups-pdf-$coda.conf"
  fi
  [[ $cupsd_nostro == 1 ]] && ferma_cupsd
  if [[ -n $lavoro ]]; then
    if [[ $esito == 0 ]]; then
      rm -rf "$lavoro"
    else
      echo "con_cups.sh: the run's PDF files and logs are kept in $lavoro" >&2
    fi
  fi
}
trap 'esito=$?; riordina; exit $esito' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# What a run killed outright left behind: its queue and its configuration.
# Runs are taken one at a time, so any such queue is no other run's.
togli_resti() {
  local q
  for q in $(lpstat -p 2>/dev/null | awk '$1 == "printer" && $2 ~ /^schedine-prova-[0-9]+$/ {print $2}'); do
    lpadmin -x "$q" 2>/dev/null
  done
  rm -f "$conf_cups"/cups-pdf-schedine-prova-*.conf
}

avvia_cupsd() {
  local pid
  if [[ -f $comune/cupsd.pid ]]; then
    pid=$(<"$comune/cupsd.pid")
    if [[ $(nome_processo "$pid") == cupsd ]] && ! processo_finito "$pid"; then
      # Started by a run killed outright: this run stops it.
      cupsd_pid=$pid
      cupsd_nostro=1
    fi
  fi
  scheduler_attivo && return
  [[ -x /usr/sbin/cupsd ]] || guasto "cupsd is missing: install cups (scripts/installa-dipendenze.sh)"
  # Without the lock: a scheduler outliving a killed run must not hold it.
  /usr/sbin/cupsd -f >"$lavoro/cupsd.log" 2>&1 9>&- &
  cupsd_pid=$!
  cupsd_nostro=1
  echo "$cupsd_pid" >"$comune/cupsd.pid"
  local i
  for ((i = 0; i < 200; ++i)); do
    scheduler_attivo && return
    processo_finito "$cupsd_pid" && break
    sleep 0.05
  done
  guasto "the print scheduler did not start within 10 s; its output: $(cat "$lavoro/cupsd.log")"
}

aggiungi_coda() {
  coda=schedine-prova-$$
  printf 'Out %s\nLog %s\n' "$lavoro/pdf" "$lavoro" >"$conf_cups/cups-pdf-$coda.conf" ||
    guasto "cannot write $conf_cups/cups-pdf-$coda.conf"
  # pdftocairo keeps the text of the pages as text, so it can be read back.
  lpadmin -p "$coda" -v "cups-pdf:/$coda" -E -P "$ppd" -o pdftops-renderer-default=pdftocairo \
    >"$lavoro/lpadmin.log" 2>&1 || guasto "lpadmin could not add the queue: $(cat "$lavoro/lpadmin.log")"
}

# The default printer as the command will see it (LPDEST, then the user's
# choice, then the machine's).
predefinita() { lpstat -d 2>/dev/null | sed -n 's/^system default destination: //p'; }

rendi_predefinita() {
  if [[ -z $(predefinita) ]]; then
    lpadmin -d "$coda" >>"$lavoro/lpadmin.log" 2>&1
  fi
  [[ $(predefinita) == "$coda" ]] || export LPDEST=$coda
  [[ $(predefinita) == "$coda" ]] || guasto "the queue $coda could not be made the default printer"
}

[[ $# -gt 0 ]] || guasto "usage: con_cups.sh COMMAND [ARG...]"
[[ $(id -u) == 0 ]] || guasto "adding a printer queue needs root"
for p in lpstat lpadmin flock; do
  type -P "$p" >/dev/null || guasto "$p is missing: install cups (scripts/installa-dipendenze.sh)"
done
[[ -x $backend && -f $ppd ]] || guasto "cups-pdf is missing: install printer-driver-cups-pdf (scripts/installa-dipendenze.sh)"

mkdir -p "$comune"
exec 9>"$comune/lock"
flock -w 240 9 || guasto "another run held the printer for 4 minutes"

lavoro=$(mktemp -d "${TMPDIR:-/tmp}/schedine-stampa.XXXXXX") || guasto "cannot make a work folder"
mkdir "$lavoro/pdf"
avvia_cupsd
togli_resti
aggiungi_coda
rendi_predefinita
export SCHEDINE_PDF_STAMPANTE=$lavoro/pdf

timeout --kill-after=10 "$tempo_comando" "$@" 9>&-
esito=$?
[[ $esito == 124 ]] && echo "con_cups.sh: $1 did not end within $tempo_comando s" >&2
exit $esito
