#include <gtest/gtest.h>

#include "core/errore_runtime.h"
#include "core/stato.h"

namespace schedine {
namespace {

TEST(Tabelle, AnIndexOutsideATableIsARunTimeErrorNotACrash) {
  stato s;
  s.tar_numeri(90, asse_y) = 79.64f;
  EXPECT_EQ(s.tar_numeri(90, 1), 79.64f);
  s.tab_coord(8, 105, asse_x) = 76.63f;
  EXPECT_EQ(s.tab_coord(8, 105, 0), 76.63f);
  for (auto accesso : std::vector<std::function<void()>>{
           [&] { s.tar_numeri(91, 0); }, [&] { s.tar_numeri(-1, 0); }, [&] { s.tar_numeri(1, 2); },
           [&] { s.tab_coord(9, 1, 0); }, [&] { s.tab_coord(1, 106, 0); }, [&] { s.sel_ruote(12); },
           [&] { s.numeri_superstar(13); }}) {
    try {
      accesso();
      ADD_FAILURE();
    } catch (const errore_runtime& e) {
      EXPECT_EQ(e.numero(), codice::indice_fuori_intervallo);
    }
  }
}

TEST(PassaOltre, DropsOnlyRunTimeErrors) {
  int eseguite = 0;
  EXPECT_FALSE(passa_oltre([&] { throw errore_runtime(codice::overflow); }));
  EXPECT_TRUE(passa_oltre([&] { ++eseguite; }));
  EXPECT_EQ(eseguite, 1);
  EXPECT_THROW(passa_oltre([] { throw std::logic_error("bug"); }), std::logic_error);
}

}  // namespace
}  // namespace schedine
