// Each pass of the search against a twin that works cell by cell.
#include "tests/solver/cellwise_passes.h"
#include "tests/solver/solver_rig.h"

namespace tessel::solver {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::uint64_t kPositions = 100;
#else
constexpr std::uint64_t kPositions = 200;
#endif

class Passes : public OnEveryPath {
 protected:
  // Some givens of a solution, one of them perhaps wrong, and some candidates taken out.
  bool Draw(std::uint64_t seed) {
    RandomStream random(seed);
    layout = SampleLayout(seed % 30);
    const Grid solution = Solver(layout).Fill(random, 1000).grid;
    if (solution == Grid{}) return false;
    tables = Tables(layout);
    position.candidates.fill(kAllCandidates);
    position.filled.fill(false);
    twin = std::make_unique<Twin>(layout, position);
    kernel.clear(tables, level);
    for (auto givens = random.Below(40); givens > 0; --givens) {
      const int cell = static_cast<int>(random.Below(kCellCount));
      const int digit = givens == 1 ? 1 + static_cast<int>(random.Below(9)) : solution[cell];
      if (kernel.place(tables, level, cell, digit - 1)) twin->Place(cell, digit);
    }
    for (auto removals = random.Below(60); removals > 0; --removals) {
      const int cell = static_cast<int>(random.Below(kCellCount));
      const int digit = 1 + static_cast<int>(random.Below(9));
      if (digit == solution[cell]) continue;
      position.candidates[cell] &= ~BitOf(digit);
      for (int lane = 0; lane < kLaneCount; ++lane) {
        level.places[digit - 1].lane[lane] &=
            static_cast<std::uint16_t>(~tables.only[cell].lane[lane]);
      }
    }
    return true;
  }

  // The level as a position; the views from rows, columns and cages have to agree.
  Position PositionOfLevel() const {
    Position result;
    for (int house = 0; house < kHouseCount; ++house) {
      for (int bit = 0; bit < kSide; ++bit) {
        const int cell = tables.cellAt[house][bit];
        const bool open = (level.open.lane[house] >> bit & 1) != 0;
        int candidates = 0;
        for (int digit = 0; digit < kSide && open; ++digit) {
          candidates |= (level.places[digit].lane[house] >> bit & 1) << digit;
        }
        if (house < kSide) {
          result.candidates[cell] = candidates;
          result.filled[cell] = !open;
        }
        EXPECT_EQ(result.candidates[cell], candidates);
        EXPECT_EQ(result.filled[cell], !open);
      }
    }
    return result;
  }

  const Kernel& kernel = KernelOf(IsAvailable(GetParam()) ? GetParam() : Path::kPlain);
  Layout layout = Layout::Regular();
  Tables tables{layout};
  std::unique_ptr<Workspace> work = std::make_unique<Workspace>();
  Level& level = work->levels[0];
  Position position;
  std::unique_ptr<Twin> twin;
};
TESSEL_ON_EVERY_PATH(Passes);

TEST_P(Passes, SinglesEndAsInTheTwin) {
  std::array<int, 3> ends{};
  for (std::uint64_t seed = 0; seed < kPositions; ++seed) {
    if (!Draw(seed)) continue;
    const Standing standing = kernel.placeSingles(tables, *work, level);
    ASSERT_EQ(standing, twin->PlaceSingles()) << seed;
    ++ends[static_cast<int>(standing)];
    if (standing == Standing::kContradiction) continue;
    EXPECT_EQ(PositionOfLevel(), position) << seed;
  }
  for (const int end : ends) EXPECT_GT(end, static_cast<int>(kPositions) / 40);
}

TEST_P(Passes, LockedCandidatesGoAsInTheTwin) {
  int found = 0;
  for (std::uint64_t seed = 0; seed < kPositions; ++seed) {
    if (!Draw(seed) || twin->PlaceSingles() != Standing::kOpen) continue;
    kernel.placeSingles(tables, *work, level);
    bool any = false;
    while (kernel.removeLocked(tables, *work, level)) any = true;
    bool twinAny = false;
    while (twin->RemoveLocked()) twinAny = true;
    ASSERT_EQ(any, twinAny) << seed;
    found += any ? 1 : 0;
    const Position ofLevel = PositionOfLevel();
    const Position ofTwin = position;
    // What else goes once a house has no place left depends on the order.
    const Standing standing = kernel.placeSingles(tables, *work, level);
    EXPECT_EQ(standing, twin->PlaceSingles());
    EXPECT_TRUE(standing == Standing::kContradiction || ofLevel == ofTwin) << seed;
  }
  EXPECT_GT(found, static_cast<int>(kPositions) / 20);
}

TEST(SolverTables, TellEveryCellFromItsThreeHouses) {
  RandomStream random(1);
  const Layout layout = Torn(Layout::Regular(), 20, random);
  const Tables tables(layout);
  for (int cell = 0; cell < kCellCount; ++cell) {
    for (int house = 0; house < kHouseCount; ++house) {
      const auto& cells = layout.AllHouses()[static_cast<std::size_t>(house)].cells;
      for (int bit = 0; bit < kSide; ++bit) {
        const int other = cells[static_cast<std::size_t>(bit)];
        const bool peer = other == cell || layout.PeersOf(cell).Contains(other);
        EXPECT_EQ(tables.withPeers[cell].lane[house] >> bit & 1, peer ? 1 : 0);
        EXPECT_EQ(tables.only[cell].lane[house] >> bit & 1, other == cell ? 1 : 0);
        EXPECT_EQ(tables.cellAt[house][bit], other);
      }
      const bool inside = std::ranges::find(cells, cell) != cells.end();
      EXPECT_EQ(tables.housesOf[cell] >> house & 1U, inside ? 1U : 0U);
    }
  }
}

TEST(SolverMemory, IsAtMost64KilobytesBesideTheTables) {
  EXPECT_LE(sizeof(Workspace) + sizeof(Givens), 64U * 1024U);
}

}  // namespace
}  // namespace tessel::solver
