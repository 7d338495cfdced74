#pragma once
// How a field of `stato` becomes a readable variable: one overload of `di`
// for each shape of field (plain value, one-index table, row-and-axis table,
// the panel slips' three-index table).

#include <string>
#include <type_traits>

#include "tools/scenario/variabili.h"

namespace schedine::scenario::accesso {

template <class T>
valore_letto come_valore(const T& v) {
  if constexpr (std::is_same_v<T, std::string>) {
    return valore_letto::di_testo(v);
  } else if constexpr (std::is_same_v<T, bool>) {
    return valore_letto::di_booleano(v);
  } else if constexpr (std::is_floating_point_v<T>) {
    return valore_letto::di_single(static_cast<float>(v));
  } else {
    static_assert(std::is_integral_v<T>, "a variable is a text, a Boolean, a number or a table of them");
    return valore_letto::di_intero(static_cast<int64_t>(v));
  }
}

template <class T>
variabile di(T stato::*campo) {
  return {0, [campo](const stato& s, const std::vector<int>&) { return come_valore(s.*campo); }};
}

template <class T, int N>
variabile di(vettore<T, N> stato::*campo) {
  return {1, [campo](const stato& s, const std::vector<int>& i) { return come_valore((s.*campo)(i[0])); }};
}

template <int R>
variabile di(tabella_xy<R> stato::*campo) {
  return {2, [campo](const stato& s, const std::vector<int>& i) { return come_valore((s.*campo)(i[0], i[1])); }};
}

inline variabile di(tabella_coord stato::*campo) {
  return {3, [campo](const stato& s, const std::vector<int>& i) { return come_valore((s.*campo)(i[0], i[1], i[2])); }};
}

}  // namespace schedine::scenario::accesso
