#include "tests/signature/signature.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

TEST(Fingerprint, IsFnv1aOf64Bits) {
  EXPECT_EQ(Fingerprint().Value(), 0xCBF29CE484222325u);
  Fingerprint a;
  a.Add("a");
  EXPECT_EQ(a.Value(), 0xAF63DC4C8601EC8Cu);
  Fingerprint word;
  word.Add("foobar");
  EXPECT_EQ(word.Value(), 0x85944171F73967E8u);
}

// A speed-up that changes a result shows here, and the first number that differs shows where.
TEST(Signature, IsTheRecordedOne) {
  const Signature signature = SignatureOf(kSignatureSeeds);
  EXPECT_EQ(HexOf(signature.layouts), HexOf(kRecordedSignature.layouts));
  EXPECT_EQ(HexOf(signature.fills), HexOf(kRecordedSignature.fills));
  EXPECT_EQ(HexOf(signature.puzzles), HexOf(kRecordedSignature.puzzles));
  EXPECT_EQ(HexOf(signature.hints), HexOf(kRecordedSignature.hints));
}

TEST(Signature, DependsOnEveryStage) {
  const Signature one = SignatureOf(1);
  const Signature two = SignatureOf(2);
  EXPECT_NE(one.layouts, two.layouts);
  EXPECT_NE(one.fills, two.fills);
  EXPECT_NE(one.puzzles, two.puzzles);
  EXPECT_NE(one.hints, two.hints);
}

}  // namespace
}  // namespace tessel
