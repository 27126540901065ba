// The QR codes of a booklet, made while its pages are drawn.
#pragma once

#include <deque>
#include <future>

#include "paper/booklet_plan.h"
#include "paper/qr_code.h"

namespace tessel::paper {

// A code takes longer than the rest of a puzzle's place on its page: eight masks are tried on it.
// So the next ones are made on other threads, two for each processor at a time.
class CodesAhead {
 public:
  // Without links no code is made.
  explicit CodesAhead(const BookletView& booklet);
  CodesAhead(const CodesAhead&) = delete;
  CodesAhead& operator=(const CodesAhead&) = delete;

  // The code of the next puzzle, in the order in which they are printed; once for each. Throws what
  // the link throws.
  QrCode Next();

 private:
  void MakeOneMore();
  QrCode CodeOf(std::size_t position) const;

  BookletView booklet_;
  std::size_t begun_ = 0;
  std::deque<std::future<QrCode>> codes_;
};

}  // namespace tessel::paper
