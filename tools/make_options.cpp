#include "tools/make_options.h"

#include <limits>

namespace tessel::tools {

namespace {

// count * number / of, without overflow.
std::uint64_t Slice(std::uint64_t count, std::uint64_t number, std::uint64_t of) {
  __extension__ using Wide = unsigned __int128;
  return static_cast<std::uint64_t>(Wide{count} * number / of);
}

}  // namespace

Range MakeOptions::Indices() const {
  if (want) return {first, std::numeric_limits<std::uint64_t>::max()};
  if (!shard) return {first, first + tries};
  return {first + Slice(tries, shard->number, shard->count),
          first + Slice(tries, shard->number + 1, shard->count)};
}

bool MakeOptions::IsFiltered() const {
  return unique || order.wish != maker::Wish{};
}

}  // namespace tessel::tools
