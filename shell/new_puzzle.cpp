#include "shell/new_puzzle.h"

#include <utility>

#include "maker/batch.h"

namespace tessel {

namespace {

maker::Order OrderFor(const NewPuzzleWish& wish, std::uint64_t seed) {
  maker::Order order;
  order.recipe.layout = wish.layout;
  if (wish.symmetricGivens) order.recipe.conceal = solver::ConcealRule::kPairs;
  if (wish.level) order.wish.easiest = order.wish.hardest = *wish.level;
  order.seed = seed;
  return order;
}

}  // namespace

NewPuzzleMaking::NewPuzzleMaking(const NewPuzzleWish& wish, std::uint64_t seed,
                                 std::function<void(const Puzzle&)> made)
    : thread_([this, order = OrderFor(wish, seed),
               made = std::move(made)](const std::stop_token& stop) {
        maker::BatchMaker maker(order);
        for (std::uint64_t index = 0; !stop.stop_requested(); ++index) {
          const auto wanted = maker.Make(index, 1);
          if (!wanted.empty()) return made(wanted.front().puzzle);
          ++refused_;
        }
      }) {}

}  // namespace tessel
