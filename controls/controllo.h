#pragma once
// Models of the ordinary controls of a form. A control keeps the state the
// user sees (caption or text, tick, enabled and visible flags, position) and
// the rules the form attaches to its events. Setting a value from code runs
// the click rule at once when the value really changes, nested in the rule
// that set it, as the forms' rules expect.

#include <functional>
#include <string>

namespace schedine {

class controllo {
 public:
  controllo(std::string nome, int indice) : nome_(std::move(nome)), indice_(indice) {}
  virtual ~controllo() = default;
  controllo(const controllo&) = delete;
  controllo& operator=(const controllo&) = delete;

  const std::string& nome() const { return nome_; }
  // The index inside a control array, or -1 for a control that is no array element.
  int indice() const { return indice_; }
  // "Option1(3)" or "cmdok".
  std::string nome_completo() const;

  bool abilitato = true;
  bool visibile = true;
  // Position and size in twips inside the container.
  float sinistra = 0, alto = 0, larghezza = 0, altezza = 0;
  std::string tag;
  // The text shown while the mouse rests on the control; none when empty.
  std::string suggerimento;
  // The frame or picture box that holds the control; a disabled or hidden
  // container makes the control unreachable for the user.
  controllo* contenitore = nullptr;

  // The user's click on the control: each kind does what a click does to it.
  virtual void clic_utente() { esegui_click(); }

  // Text of the control as the runner's `text` check reads it; empty where it has none.
  virtual std::string testo_visibile() const { return {}; }

  // The rule of the click event. It runs for the user's click and where a
  // value set from code changes.
  std::function<void()> al_click;

  // True when the user can reach the control: it and all its containers are enabled and visible.
  bool raggiungibile() const;

 protected:
  void esegui_click() {
    if (al_click) al_click();
  }

 private:
  std::string nome_;
  int indice_;
};

}  // namespace schedine
