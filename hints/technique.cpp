#include "hints/technique.h"

#include <utility>

namespace tessel {

std::optional<Hint> FirstHint(const Technique& technique, const MarkedBoard& board) {
  std::optional<Hint> first;
  technique.search(board, [&first](Hint hint) {
    first = std::move(hint);
    return false;
  });
  return first;
}

std::vector<Hint> AllHints(const Technique& technique, const MarkedBoard& board) {
  std::vector<Hint> hints;
  technique.search(board, [&hints](Hint hint) {
    hints.push_back(std::move(hint));
    return true;
  });
  return hints;
}

}  // namespace tessel
