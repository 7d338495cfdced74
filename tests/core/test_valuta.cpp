#include <gtest/gtest.h>

#include "core/errore_runtime.h"
#include "core/valuta.h"

namespace schedine {
namespace {

TEST(Valuta, RoundsHalfToEvenAtTheFourthDecimal) {
  EXPECT_EQ(valuta::da_double(0.00005).decimillesimi(), 0);
  EXPECT_EQ(valuta::da_double(0.000151).decimillesimi(), 2);
  EXPECT_EQ(valuta::da_double(-0.00005).decimillesimi(), 0);
  EXPECT_EQ(valuta::da_double(1.23456).decimillesimi(), 12346);
  EXPECT_EQ(valuta::da_double(-2.5).decimillesimi(), -25000);
}

TEST(Valuta, SumsAreExactWhereFloatsDrift) {
  valuta somma;
  for (int i = 0; i < 10; ++i) somma += valuta::da_double(0.1);
  EXPECT_EQ(somma, valuta::da_double(1.0));
  EXPECT_EQ((valuta::da_double(3) - valuta::da_double(0.5)).a_double(), 2.5);
  EXPECT_EQ((valuta::da_double(0.5) * 3).a_double(), 1.5);
  EXPECT_LT(valuta::da_double(0.5), valuta::da_double(1));
}

TEST(Valuta, OverflowIsARunTimeError) {
  EXPECT_THROW(valuta::da_double(1e15), errore_runtime);
  auto massimo = valuta::da_decimillesimi(INT64_MAX);
  EXPECT_THROW(massimo + valuta::da_decimillesimi(1), errore_runtime);
}

}  // namespace
}  // namespace schedine
