#include "maker/seen.h"

#include <gtest/gtest.h>

#include <set>

#include "core/random_stream.h"

namespace tessel::maker {
namespace {

TEST(Seen, KnowsWhatWasAdded) {
  Seen seen;
  std::set<std::uint64_t> oracle;
  RandomStream random(1);
  for (int i = 0; i < 20'000; ++i) {
    const std::uint64_t fingerprint = random.Below(10'000);
    EXPECT_EQ(seen.Add(fingerprint), oracle.insert(std::max<std::uint64_t>(1, fingerprint)).second);
  }
  EXPECT_EQ(seen.Size(), oracle.size());
}

TEST(Seen, FingerprintsWithTheSameLowBitsAreTellableApart) {
  Seen seen;
  for (std::uint64_t high = 1; high <= 5'000; ++high) EXPECT_TRUE(seen.Add(high << 40));
  for (std::uint64_t high = 1; high <= 5'000; ++high) EXPECT_FALSE(seen.Add(high << 40));
}

}  // namespace
}  // namespace tessel::maker
