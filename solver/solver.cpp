#include "solver/solver.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <numeric>

#include "solver/kernel.h"

namespace tessel::solver {

namespace {

// An attempt at a filling is given up after this many nodes, and another begins in another house.
// When every house has had its turn, attempts become longer.
constexpr std::uint64_t kFirstPatience = 50;
constexpr std::uint64_t kMorePatience = 4;

// Completions are searched within so many nodes before the choices are drawn anew.
constexpr std::uint64_t kFirstSearch = 200;
constexpr std::uint64_t kLayoutSearch = 5'000;

std::array<std::uint8_t, kSide> DrawDigits(RandomStream& random) {
  std::array<std::uint8_t, kSide> digits;
  std::iota(digits.begin(), digits.end(), std::uint8_t{1});
  for (std::uint32_t left = kSide; left > 1; --left) {
    std::swap(digits[left - 1], digits[random.Below(left)]);
  }
  return digits;
}

std::array<std::uint8_t, kHouseCount> DrawHouses(RandomStream& random) {
  std::array<std::uint8_t, kHouseCount> houses;
  std::iota(houses.begin(), houses.end(), std::uint8_t{0});
  for (std::uint32_t left = kHouseCount; left > 1; --left) {
    std::swap(houses[left - 1], houses[random.Below(left)]);
  }
  return houses;
}

Grid GridOf(const std::uint8_t (&digits)[kCellCount]) {
  Grid grid;
  std::ranges::copy(digits, grid.begin());
  return grid;
}

[[maybe_unused]] bool IsGiven(const Givens& givens, int cell) {
  return (givens.level.open.lane[RowOf(cell)] >> ColumnOf(cell) & 1U) == 0;
}

}  // namespace

Solver::Solver(const Layout& layout, Path path)
    : kernel_(&KernelOf(path)),
      tables_(std::make_unique<Tables>(layout)),
      work_(std::make_unique<Workspace>()),
      givens_(std::make_unique<Givens>()) {}

Solver::~Solver() = default;
Solver::Solver(Solver&&) noexcept = default;
Solver& Solver::operator=(Solver&&) noexcept = default;

void Solver::Use(const Layout& layout) {
  std::construct_at(tables_.get(), layout);
  std::ranges::fill(work_->unlocked, Places{});  // which says nothing about another layout
}

bool Solver::Place(const Grid& givens) {
  Level& level = work_->levels[0];
  kernel_->clear(*tables_, level);
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = givens[cell];
    if (given == 0) continue;
    if (given > kSide || !kernel_->place(*tables_, level, cell, given - 1)) return false;
    work_->digits[cell] = givens[cell];
  }
  return true;
}

// A search that takes long has mostly begun with choices that lead nowhere, or the layout has no
// filling at all, which shows sooner without the givens. After that choices are drawn, from a fixed
// seed, in cells where others have failed, and the search may take longer each time.
std::optional<std::vector<Grid>> Solver::CompletionsWithin(const Grid& givens, int most,
                                                           std::uint64_t mostNodes) {
  assert(most == 1 || most == 2);
  std::vector<Grid> completions;
  RandomStream random(0);
  PerCell<std::uint64_t> failures;
  failures.fill(1);
  Request request;
  request.solutions = most;
  for (std::uint64_t patience = kFirstSearch; Place(givens); patience *= 2) {
    request.nodes = std::min(patience, mostNodes);
    const Result result = kernel_->search(*tables_, *work_, request);
    mostNodes -= result.nodes;
    if (result.complete) completions.clear();
    for (int i = 0; i < result.solutions; ++i) {
      const Grid grid = GridOf(work_->found[i]);
      if (std::ranges::find(completions, grid) == completions.end()) completions.push_back(grid);
    }
    if (result.complete || std::ssize(completions) == most) return completions;
    if (mostNodes == 0) return std::nullopt;
    const bool first = request.random == nullptr;
    if (first && FillWithin(kLayoutSearch).answer == Answer::kNo) return completions;
    request.random = &random;
    request.failures = failures.data();
  }
  return completions;
}

std::vector<Grid> Solver::Completions(const Grid& givens, int most) {
  return *CompletionsWithin(givens, most, std::numeric_limits<std::uint64_t>::max());
}

Filling Solver::FillWithin(std::uint64_t mostNodes) {
  RandomStream random(0);
  return Fill(random, mostNodes);
}

Filling Solver::Fill(RandomStream& random, std::uint64_t mostNodes) {
  const auto digits = DrawDigits(random);
  const auto houses = DrawHouses(random);
  std::uint64_t nodes = 0;
  PerCell<std::uint64_t> failures;
  failures.fill(1);
  Request request;
  request.random = &random;
  for (std::uint64_t patience = kFirstPatience;; patience *= kMorePatience) {
    for (const int house : houses) {
      Grid givens{};
      for (int i = 0; i < kSide; ++i) givens[tables_->cellAt[house][i]] = digits[i];
      Place(givens);
      if (patience != kFirstPatience) request.failures = failures.data();
      request.nodes = std::min(patience, mostNodes - nodes);
      const Result result = kernel_->search(*tables_, *work_, request);
      nodes += result.nodes;
      if (result.solutions != 0) return {Answer::kYes, GridOf(work_->found[0]), nodes};
      if (result.complete) return {Answer::kNo, {}, nodes};
      if (nodes == mostNodes) return {Answer::kUnknown, {}, nodes};
    }
  }
}

bool CanBeFilled(const Layout& layout) {
  return Solver(layout).FillWithin(kSawnNodes).answer == Answer::kYes;
}

void Solver::GiveAll(const Grid& solution) {
  assert(std::ranges::all_of(solution, [](int digit) { return digit >= 1 && digit <= kSide; }));
  kernel_->give(*tables_, solution.data(), *givens_);
}
bool Solver::HasOtherCompletion(int cell) const {
  assert(IsGiven(*givens_, cell));
  return kernel_->hasOther(*tables_, *work_, *givens_, cell);
}
void Solver::TakeOut(int cell) {
  assert(IsGiven(*givens_, cell));
  kernel_->take(*tables_, *givens_, cell);
}
void Solver::PutBack(int cell) {
  assert(!IsGiven(*givens_, cell));
  kernel_->putBack(*tables_, *givens_, cell);
}

}  // namespace tessel::solver
