#include "paper/codes_ahead.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace tessel::paper {

CodesAhead::CodesAhead(const BookletView& booklet) : booklet_(booklet) {
  if (!booklet.options.link) return;
  const unsigned ahead = 2 * std::max(1U, std::thread::hardware_concurrency());
  for (unsigned k = 0; k < ahead; ++k) MakeOneMore();
}

QrCode CodesAhead::Next() {
  std::future<QrCode> code = std::move(codes_.front());
  codes_.pop_front();
  MakeOneMore();
  return code.get();
}

void CodesAhead::MakeOneMore() {
  if (begun_ == booklet_.plan.order.size()) return;
  // Deferred: where no more threads can be had, the code is made when it is asked for.
  constexpr auto policy = std::launch::async | std::launch::deferred;
  codes_.push_back(std::async(policy, [this, position = begun_] { return CodeOf(position); }));
  ++begun_;
}

QrCode CodesAhead::CodeOf(std::size_t position) const {
  const auto index = static_cast<std::size_t>(booklet_.plan.order[position]);
  const int number = booklet_.options.numberFrom + static_cast<int>(position);
  return QrCodeOf(booklet_.options.link(booklet_.puzzles[index].puzzle, number));
}

}  // namespace tessel::paper
