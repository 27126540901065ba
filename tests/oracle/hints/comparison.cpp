#include "tests/oracle/hints/comparison.h"

#include <iomanip>

namespace tessel::literal {

namespace {
constexpr int kScenesOfEach = 250;
}  // namespace

HintFields FieldsOf(const LiteralHints& hints) {
  return {hints.HintKind,  hints.HintCell,  hints.HintDigit,
          hints.HintUnit1, hints.HintUnit2, hints.HintUnit3};
}

HintFields RandomFields(RandomSource& random) {
  HintFields fields;
  fields.kind = DrawIndex(random, 18);
  fields.cell = DrawIndex(random, 81);
  fields.digit = DrawIndex(random, 17);
  fields.unit1 = DrawIndex(random, 10);
  fields.unit2 = DrawIndex(random, 10);
  fields.unit3 = DrawIndex(random, 10);
  return fields;
}

std::ostream& operator<<(std::ostream& out, const Scene& scene) {
  out << "\ncages    ";
  for (const int cage : scene.cages) out << cage;
  out << "\nsolution ";
  for (const int digit : scene.solution) out << digit;
  out << "\nboard    ";
  for (const int digit : scene.board) out << digit;
  out << "\nmarks    " << std::hex << std::setfill('0');
  for (const int mask : scene.marks) out << std::setw(3) << mask;
  return out << std::dec << std::setfill(' ') << '\n';
}

MaskBoard MasksOf(const Board81& marks) {
  MaskBoard masks;
  for (int cell = 0; cell < 81; ++cell) masks[cell] = static_cast<Mask>(marks[cell]);
  return masks;
}

const SolvedLayout& SceneSource::Layout() {
  if (taken_++ % kScenesOfEach == 0)
    solved_ = regular_ ? RegularSolved(random) : IrregularSolved(random);
  return solved_;
}

}  // namespace tessel::literal
