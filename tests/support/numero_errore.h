#pragma once
// The run-time error number an action raises, or 0 when it runs through.

#include <functional>

#include "core/errore_runtime.h"

namespace schedine::test {

inline int numero_errore(const std::function<void()>& azione) {
  try {
    azione();
  } catch (const errore_runtime& e) {
    return e.numero();
  }
  return 0;
}

}  // namespace schedine::test
