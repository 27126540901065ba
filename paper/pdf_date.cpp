#include "paper/pdf_date.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace tessel::paper {

std::string PdfDate(std::int64_t seconds) {
  using namespace std::chrono;
  const sys_seconds moment{std::chrono::seconds(seconds)};
  const sys_days day = floor<days>(moment);
  const year_month_day date(day);
  const hh_mm_ss time(moment - day);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
  return text.data();
}

}  // namespace tessel::paper
