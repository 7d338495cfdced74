#!/usr/bin/python3
"""The real desktop program under several system locales, driven through the
accessibility bus as a screen reader drives it and typed at as a person
types: the system is chosen with the arrow keys and opened with Enter, the
SuperEnalotto slip is switched to two panels and "N.Casuale" is ticked, and
the program is left with its "Esci" buttons. Every locale must give the same
texts in the windows, prices with a decimal comma, no fault, and a clean end
(status 0: with the sanitizers on, no report at exit).

Usage: stessi_numeri.py PROGRAM DEMO_MAKER   (inside dbus-run-session, under X)
"""
import os
import shutil
import subprocess
import sys
import tempfile
import time

import pyatspi

LOCALI = ["C.UTF-8", "en_US.UTF-8", "it_IT.UTF-8"]
ATTESA = 20.0


def aspetta(condizione, cosa):
    fine = time.monotonic() + ATTESA
    while time.monotonic() < fine:
        trovato = condizione()
        if trovato:
            return trovato
        time.sleep(0.1)
    raise AssertionError("non trovato: " + cosa)


def nodi(radice):
    """Every accessible under radice, depth first, the radice first."""
    pila = [radice]
    while pila:
        nodo = pila.pop()
        if nodo is None:
            continue
        yield nodo
        try:
            figli = [nodo.getChildAtIndex(i) for i in range(nodo.childCount)]
        except Exception:
            figli = []
        pila.extend(reversed(figli))


def applicazione(pid):
    for app in pyatspi.Registry.getDesktop(0):
        if app is not None and app.get_process_id() == pid:
            return app
    return None


def finestra(app, titolo_contiene):
    for f in app:
        if f is not None and titolo_contiene in (f.name or "") and f.getState().contains(pyatspi.STATE_SHOWING):
            return f
    return None


def primo(radice, condizione):
    return next((n for n in nodi(radice) if condizione(n)), None)


def cerca(radice, ruoli, nome):
    return primo(radice, lambda n: n.getRole() in ruoli and n.name == nome and n.getState().contains(pyatspi.STATE_SHOWING))


def premi(nodo):
    azioni = nodo.queryAction()
    nomi = [azioni.getName(i) for i in range(azioni.nActions)]
    assert "Press" in nomi, "%s '%s' non si può premere: %s" % (nodo.getRoleName(), nodo.name, nomi)
    try:
        azioni.doAction(nomi.index("Press"))
    except Exception as errore:
        raise AssertionError("'%s' premuto: il programma non risponde (%s)" % (nodo.name, errore)) from errore
    time.sleep(0.3)


def clic(nodo):
    riquadro = nodo.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    pyatspi.Registry.generateMouseEvent(riquadro.x + riquadro.width // 2, riquadro.y + riquadro.height // 2, "b1c")
    time.sleep(0.3)


def tasto(nome):
    codice = {"Down": 0xFF54, "Return": 0xFF0D}[nome]
    pyatspi.Registry.generateKeyboardEvent(codice, None, pyatspi.KEY_SYM)
    time.sleep(0.3)


def testi(radice):
    """What a screen reader reads of a window: role, name and text of each part that shows."""
    righe = []
    for n in nodi(radice):
        if not n.getState().contains(pyatspi.STATE_SHOWING):
            continue
        testo = ""
        try:
            t = n.queryText()
            testo = t.getText(0, t.characterCount)
        except NotImplementedError:
            pass
        if n.name or testo:
            righe.append("%s|%s|%s" % (n.getRoleName(), n.name, testo))
    return righe


def esci_dal_programma(app, processo, locale):
    """Esci on the slip, then Esci on the main window: the program ends as a
    person ends it, and with the sanitizers on its end must report nothing."""
    premi(aspetta(lambda: primo(app, lambda n: n.getRole() == pyatspi.ROLE_PUSH_BUTTON and n.name == "Esci"
                                and n.getState().contains(pyatspi.STATE_SHOWING)), "Esci della scheda"))
    form1 = aspetta(lambda: finestra(app, "Stampa Schedine"), "la finestra principale di nuovo")
    premi(aspetta(lambda: cerca(form1, (pyatspi.ROLE_PUSH_BUTTON,), "Esci"), "Esci"))
    try:
        esito = processo.wait(timeout=ATTESA)
    except subprocess.TimeoutExpired:
        raise AssertionError("%s: il programma non finisce con Esci" % locale)
    if esito != 0:
        raise AssertionError("%s: il programma è finito con lo stato %s" % (locale, esito))


def una_sessione(programma, locale):
    ambiente = dict(os.environ, LANG=locale, LC_ALL=locale, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                    QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="1")
    processo = subprocess.Popen([programma], env=ambiente)
    try:
        app = aspetta(lambda: applicazione(processo.pid), "il programma sul bus")
        form1 = aspetta(lambda: finestra(app, "Stampa Schedine"), "la finestra principale")
        premi(aspetta(lambda: cerca(form1, (pyatspi.ROLE_RADIO_BUTTON,), "SuperEnalotto"), "SuperEnalotto"))
        elenco = aspetta(lambda: primo(form1, lambda n: n.getRole() == pyatspi.ROLE_LIST and n.childCount > 1),
                         "List1")
        # The mouse on the first system, then the keyboard: the second, and Enter.
        clic(elenco.getChildAtIndex(0))
        tasto("Down")
        tasto("Return")
        scheda = aspetta(lambda: cerca(app, (pyatspi.ROLE_RADIO_BUTTON,), "Scheda a 2 Pannelli"), "la scheda SuperEnalotto")
        lette = testi(aspetta(lambda: finestra(app, ""), "la finestra della scheda"))
        premi(scheda)
        # N.Casuale's box is known by its hover text, which the bus gives as its description.
        casuale = aspetta(lambda: primo(app, lambda n: n.getRole() == pyatspi.ROLE_CHECK_BOX
                                        and n.getState().contains(pyatspi.STATE_SHOWING)
                                        and "ricevitoria" in (n.description or "")), "N.Casuale")
        premi(casuale)
        time.sleep(1.0)
        if processo.poll() is not None:
            raise AssertionError("%s: il programma è finito (%s) con N.Casuale" % (locale, processo.returncode))
        for f in app:
            if f is not None and f.getState().contains(pyatspi.STATE_SHOWING):
                lette += testi(f)
        esci_dal_programma(app, processo, locale)
        return lette
    finally:
        if processo.poll() is None:
            processo.kill()
        processo.wait()


def main():
    programma_costruito, fa_demo = sys.argv[1], sys.argv[2]
    cartella = tempfile.mkdtemp(prefix="stessi-numeri-")
    try:
        programma = os.path.join(cartella, "stampa-schedine")
        shutil.copy2(programma_costruito, programma)
        subprocess.run([fa_demo, cartella], check=True, stdout=subprocess.DEVNULL)
        viste = {}
        for locale in LOCALI:
            viste[locale] = una_sessione(programma, locale)
        riferimento = viste[LOCALI[0]]
        prezzi = [r for r in riferimento if "€" in r]
        assert prezzi, "nessun prezzo letto nelle finestre"
        assert all("," in r.split("€", 1)[1] for r in prezzi), "prezzi senza virgola: %s" % prezzi
        for locale in LOCALI[1:]:
            if viste[locale] != riferimento:
                diversi = sorted(set(viste[locale]) ^ set(riferimento))
                raise AssertionError("%s mostra altro che %s: %s" % (locale, LOCALI[0], diversi[:10]))
        print("stessi testi in %s: %d righe, prezzi %s" % (", ".join(LOCALI), len(riferimento), prezzi[:3]))
    finally:
        shutil.rmtree(cartella, ignore_errors=True)


if __name__ == "__main__":
    try:
        main()
    except AssertionError as errore:
        print("FALLITO:", errore, file=sys.stderr)
        sys.exit(1)
