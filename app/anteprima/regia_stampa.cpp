#include "app/anteprima/regia_stampa.h"

namespace schedine {

regia_stampa::regia_stampa(servizi_piattaforma& base)
    : base_(base), interruttore_([this]() -> dispositivo_stampa& { return deviato_ ? *deviato_ : base_.stampante(); }) {}

void regia_stampa::esegui_eventi_in_attesa() {
  if (interruttore_.scarta()) return;
  base_.esegui_eventi_in_attesa();
}

int regia_stampa::messaggio(const std::string& testo, int stile, const std::string& titolo) {
  return base_.messaggio(testo, stile, titolo);
}

void regia_stampa::avvia_programma(const std::string& percorso) { base_.avvia_programma(percorso); }

void regia_stampa::carica_skin(const std::string& percorso) { base_.carica_skin(percorso); }

void regia_stampa::fine_evento() {
  if (!interruttore_.interruzione_chiesta()) return;
  const int schede = interruttore_.schede_inviate();
  interruttore_.fine_corsa();
  base_.messaggio(testo_interruzione(schede, in_anteprima()), stile_messaggio::informazione, "");
}

schedina regia_stampa::schedina_del_modulo(const std::string& nome_modulo) const {
  return stato_ == nullptr ? schedina::nessuna : schedine::schedina_del_modulo(*stato_, nome_modulo);
}

std::string testo_interruzione(int schede, bool anteprima) {
  const std::string quante = std::to_string(schede) + (schede == 1 ? " scheda" : " schede");
  if (anteprima) return "Anteprima interrotta: " + quante + " nell'anteprima.";
  return "Stampa interrotta: " + quante + (schede == 1 ? " inviata" : " inviate") + " alla stampante.";
}

}  // namespace schedine
