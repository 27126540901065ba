#include "paper/pdf_date.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>

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

tl::expected<std::int64_t, std::string> DateOfDocument() {
  const char* const given = std::getenv("SOURCE_DATE_EPOCH");
  if (given == nullptr || *given == '\0') return std::time(nullptr);
  const std::string_view text(given);
  std::int64_t seconds = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  constexpr std::int64_t endOfYear9999 = 253402300799;
  if (error != std::errc() || end != text.data() + text.size() || seconds < 0 ||
      seconds > endOfYear9999) {
    return tl::unexpected("SOURCE_DATE_EPOCH is no number of seconds since 1970: " +
                          std::string(text));
  }
  return seconds;
}

}  // namespace tessel::paper
