#include "controls/insieme_moduli.h"

namespace schedine {

modulo& insieme_moduli::operator()(const std::string& nome) {
  auto esistente = istanze_.find(nome);
  if (esistente != istanze_.end()) return *esistente->second;
  auto nuovo = fabbriche_.at(nome)(s_, *this);
  modulo& riferimento = *nuovo;
  istanze_[nome] = std::move(nuovo);
  ordine_.push_back(&riferimento);
  return riferimento;
}

std::vector<modulo*> insieme_moduli::creati() const { return ordine_; }

}  // namespace schedine
