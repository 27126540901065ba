// The QR codes of a booklet, made while its pages are drawn.
#pragma once

#include <deque>
#include <future>

#include "paper/booklet_plan.h"
#include "paper/qr_code.h"

namespace tessel::paper {

// A code takes longer than all else on a page: eight masks are tried on it. So the next ones are
// made on other threads, a few at a time, whatever the length of the booklet.
class CodesAhead {
 public:
  // Without links no code is made.
  explicit CodesAhead(const BookletView& booklet);

  // The code of the next puzzle, in the order in which they are printed. Throws what the link
  // throws.
  QrCode Next();

 private:
  void MakeOneMore();
  QrCode CodeOf(std::size_t position) const;

  BookletView booklet_;
  std::size_t begun_ = 0;
  std::deque<std::future<QrCode>> codes_;
};

}  // namespace tessel::paper
