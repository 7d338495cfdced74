#pragma once
// A form: its caption, whether it is loaded and shown, its controls by
// design name and index, and the rules of its own events. Controls are made
// at each load in their design state; the form object itself, with its own
// fields, lives for the whole run.

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "controls/controlli.h"
#include "core/errore_runtime.h"

namespace schedine {

struct stato;
class insieme_moduli;

class modulo {
 public:
  modulo(std::string nome, stato& s, insieme_moduli& moduli) : nome_(std::move(nome)), s(s), moduli(moduli) {}
  virtual ~modulo() = default;
  modulo(const modulo&) = delete;
  modulo& operator=(const modulo&) = delete;

  const std::string& nome() const { return nome_; }
  std::string caption;
  bool visibile() const { return visibile_; }
  bool caricato() const { return caricato_; }

  // Load: the controls in their design state, then the form's load rule. Does nothing when loaded.
  void carica();
  // Show: load if needed, make visible, then the form's activate rule.
  void mostra();
  void nascondi() { visibile_ = false; }
  // Unload: the form's unload rule, then the controls go.
  void scarica();
  // The user closes the window.
  virtual void chiudi_utente() { scarica(); }

  // A control by name and index (-1 for a control that is no array element).
  // A control that doesn't exist is the run-time error 340.
  controllo& trova(const std::string& nome, int indice = -1);
  bool esiste(const std::string& nome, int indice = -1) const;
  template <class T>
  T& c(const std::string& nome, int indice = -1) {
    if (auto* tipizzato = dynamic_cast<T*>(&trova(nome, indice))) return *tipizzato;
    throw errore_runtime(codice::tipo_non_corrispondente, nome_ + "." + nome);
  }
  // All controls in the order they were made.
  const std::vector<std::unique_ptr<controllo>>& controlli() const { return controlli_; }

 protected:
  // Makes the controls in their design state.
  virtual void crea_controlli() {}
  virtual void al_caricamento() {}
  virtual void all_attivazione() {}
  virtual void allo_scaricamento() {}

  template <class T>
  T& aggiungi(const std::string& nome, int indice = -1, controllo* contenitore = nullptr) {
    auto nuovo = std::make_unique<T>(nome, indice);
    return registra(std::move(nuovo), contenitore);
  }
  // An option button joins the group of option buttons of its container.
  pulsante_opzione& aggiungi_opzione(const std::string& nome, int indice = -1, controllo* contenitore = nullptr);

  std::string nome_;
  stato& s;
  insieme_moduli& moduli;

 private:
  template <class T>
  T& registra(std::unique_ptr<T> nuovo, controllo* contenitore) {
    nuovo->contenitore = contenitore;
    T& riferimento = *nuovo;
    indice_[{nuovo->nome(), nuovo->indice()}] = nuovo.get();
    controlli_.push_back(std::move(nuovo));
    return riferimento;
  }

  std::vector<std::unique_ptr<controllo>> controlli_;
  std::map<std::pair<std::string, int>, controllo*> indice_;
  std::map<controllo*, std::unique_ptr<std::vector<pulsante_opzione*>>> gruppi_opzione_;
  bool caricato_ = false;
  bool visibile_ = false;
};

}  // namespace schedine
