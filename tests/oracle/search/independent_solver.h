// Another way to solve: exact cover of the 324 conditions "cell filled" and "digit in house" by
// dancing links, branching on the condition with the fewest ways left for the trouble
// it has made so far, which leads to short proofs that there is no solution.
#pragma once

#include <limits>
#include <optional>
#include <vector>

#include "tests/oracle/search/oracle_board.h"

namespace tessel::oracle {

class IndependentSolver {
 public:
  static constexpr long kNoBound = std::numeric_limits<long>::max();

  explicit IndependentSolver(const Layout& layout);

  // The completions of the givens, counted no further than `limit`; numbers up to 0 are empty
  // cells, clashing givens and numbers above 9 have none. Nothing when more than `nodes` placements
  // were tried.
  std::optional<int> CountSolutions(const Grid& givens, int limit, long nodes = kNoBound);
  // Whether the layout has a filling; nothing when that takes more than `nodes` placements.
  std::optional<bool> HasFilling(long nodes = kNoBound);
  // The completion found last.
  const Grid& Solution() const { return solution_; }

 private:
  struct Node {
    int left, right, up, down;
    int column;  // the header that the node hangs under
    int row;     // 9 * cell + digit - 1
  };

  std::optional<int> Count(const Grid& givens, int limit, long nodes);
  Grid HardestHouseInOrder() const;
  void Cover(int column);
  void Uncover(int column);
  void CoverOthers(int node);
  void UncoverOthers(int node);
  int HardestColumn();
  void Search();
  bool Done() const { return found_ >= limit_ || nodesLeft_ < 0; }

  std::vector<Node> nodes_;          // 0: root; 1..324: headers; then four nodes for each row
  std::array<int, 325> size_{};      // of each column
  std::array<long, 325> weight_{};   // dead ends in which the column had no row left, and 1
  std::array<bool, 325> covered_{};  // by a given
  Grid solution_{};
  Grid trail_{};
  int found_ = 0;
  int limit_ = 0;
  long nodesLeft_ = 0;
};

// Whether the grid is complete and keeps the rules of the layout.
bool IsFilling(const Layout& layout, const Grid& grid);

}  // namespace tessel::oracle
