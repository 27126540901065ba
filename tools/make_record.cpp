#include "tools/make_record.h"

#include "core/random_stream.h"
#include "core/symmetry.h"
#include "tools/failure.h"

namespace tessel::tools {

namespace {

formats::Rating RatingOf(const grade::Grade& grade) {
  const std::string hardest(grade.hardest ? grade::FactsOf(*grade.hardest).name : "");
  return {static_cast<int>(grade.level), hardest, grade.score};
}

}  // namespace

MakeRecord MakeRecordOf(const maker::Made& made, const MakeOptions& options) {
  formats::DescribedPuzzle described{made.puzzle};
  described.index = made.index;
  if (made.grade) described.rating = RatingOf(*made.grade);
  const auto bytes = options.format.Write(described);
  if (!bytes) throw Failure(bytes.error());
  return {made.index, *bytes, options.unique ? FingerprintOf(made.puzzle) : 0, made.grade};
}

std::uint64_t FingerprintOf(const Puzzle& puzzle) {
  const CanonicalForm form = CanonicalFormOf(puzzle.layout, puzzle.givens);
  std::uint64_t hash = 0;
  for (int cell = 0; cell < kCellCount; ++cell) {
    hash = RandomStream(hash, form.cages[cell], form.givens[cell]).Next();
  }
  return hash;
}

}  // namespace tessel::tools
