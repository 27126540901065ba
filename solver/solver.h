// The fast engine: exact answers about any layout and any givens, for all that nobody watches.
// docs/solver.md tells how it works.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "core/board.h"
#include "core/layout.h"
#include "core/random_stream.h"
#include "solver/path.h"

namespace tessel::solver {

struct Tables;
struct Workspace;
struct Givens;
struct Kernel;

// Whether a layout has a filling. kUnknown: not found out within the nodes allowed.
enum class Answer : std::uint8_t { kYes, kNo, kUnknown };

struct Filling {
  Answer answer = Answer::kUnknown;
  Grid grid{};              // complete for kYes, empty otherwise
  std::uint64_t nodes = 0;  // that were tried
};

// Answers questions about one layout at a time; not to be shared by threads. Takes about 75 KB,
// which go on being used when a layout follows another. Answers depend on the arguments alone: not
// on the machine, nor on what was asked before.
class Solver {
 public:
  explicit Solver(const Layout& layout, Path path = BestPath());
  ~Solver();
  Solver(Solver&&) noexcept;
  Solver& operator=(Solver&&) noexcept;

  // The layout that all later questions are about.
  void Use(const Layout& layout);

  // The completions of the givens, `most` of them at most: 1 or 2. Any numbers are allowed:
  // clashing givens and numbers above 9 have no completion.
  std::vector<Grid> Completions(const Grid& givens, int most = 2);
  // The same, or nothing when that takes more than `mostNodes` nodes: a few givens of a layout
  // without a filling may. DecideCompletions ends for those, too.
  std::optional<std::vector<Grid>> CompletionsWithin(const Grid& givens, int most,
                                                     std::uint64_t mostNodes);
  bool HasUniqueCompletion(const Grid& givens) { return Completions(givens).size() == 1; }

  // A filling of the empty layout, drawn from the stream, unless more than `mostNodes` nodes would
  // be tried. Every filling can come out; docs/decisions tells how evenly they do.
  Filling Fill(RandomStream& random, std::uint64_t mostNodes);
  // Fill with a stream of its own: whether the layout can be filled.
  Filling FillWithin(std::uint64_t mostNodes);

  // Makes all digits of a complete solution of the layout givens. The next three work on them.
  void GiveAll(const Grid& solution);
  // Whether the givens without that of `cell` have a completion with another digit there. Where
  // they have none, taking it out leaves the solution as unique as it was.
  bool HasOtherCompletion(int cell) const;
  // Takes the given of `cell` out; it must be one.
  void TakeOut(int cell);
  // Undoes TakeOut.
  void PutBack(int cell);

 private:
  // Makes the givens the first level. False when they clash.
  bool Place(const Grid& givens);

  const Kernel* kernel_;
  std::unique_ptr<Tables> tables_;
  std::unique_ptr<Workspace> work_;
  std::unique_ptr<Givens> givens_;
};

// The nodes that CanBeFilled allows. Of 20,000 layouts with a filling they miss one, if any.
inline constexpr std::uint64_t kSawnNodes = 1'000;

// Whether a filling is found within kSawnNodes: half a millisecond at most. True only for layouts
// that have one; DecideFillable is exact for the rest, too. Depends on the layout alone.
bool CanBeFilled(const Layout& layout);

}  // namespace tessel::solver
