// Tests that run on every path that the machine has.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/solver/samples.h"

namespace tessel::solver {

// Skips the test where the machine cannot run the path.
class OnEveryPath : public testing::TestWithParam<Path> {
 protected:
  void SetUp() override {
    if (!IsAvailable(GetParam())) GTEST_SKIP();
  }
};

inline std::string NameOf(const testing::TestParamInfo<Path>& path) {
  constexpr const char* names[] = {"Plain", "Avx2", "Avx512"};
  return names[static_cast<int>(path.param)];
}

#define TESSEL_ON_EVERY_PATH(Suite) \
  INSTANTIATE_TEST_SUITE_P(, Suite, testing::ValuesIn(kPaths), NameOf)

}  // namespace tessel::solver
