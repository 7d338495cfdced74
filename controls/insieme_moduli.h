#pragma once
// The forms of the program, one instance each, created at first use and kept
// for the whole run. Forms reach one another by name through it, so that no
// form library needs another's headers.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "controls/modulo.h"

namespace schedine {

struct stato;

class insieme_moduli {
 public:
  using fabbrica = std::function<std::unique_ptr<modulo>(stato&, insieme_moduli&)>;

  explicit insieme_moduli(stato& s) : s_(s) {}

  void registra(const std::string& nome, fabbrica crea) { fabbriche_[nome] = std::move(crea); }
  bool conosce(const std::string& nome) const { return fabbriche_.count(nome) != 0; }
  // The form's one instance, created at first use (not loaded by this).
  // An unknown name is a programming fault: std::out_of_range.
  modulo& operator()(const std::string& nome);
  template <class T>
  T& di(const std::string& nome) {
    return dynamic_cast<T&>((*this)(nome));
  }
  // The forms made so far, in the order they were made.
  std::vector<modulo*> creati() const;

  // Set when the program ends (the main form unloads or its exit is pressed).
  bool programma_terminato = false;

 private:
  stato& s_;
  std::map<std::string, fabbrica> fabbriche_;
  std::map<std::string, std::unique_ptr<modulo>> istanze_;
  std::vector<modulo*> ordine_;
};

}  // namespace schedine
