// Sizes as people write them. Everything on paper is measured in points, 72 to the inch.
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace tessel::paper {

inline constexpr double kPointsPerInch = 72.0;
inline constexpr double kPointsPerMillimetre = kPointsPerInch / 25.4;

struct Size {
  double width = 0.0;
  double height = 0.0;

  friend bool operator==(const Size&, const Size&) = default;
};

struct Margins {
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
  double left = 0.0;

  friend bool operator==(const Margins&, const Margins&) = default;
};

inline constexpr Size kA4{210 * kPointsPerMillimetre, 297 * kPointsPerMillimetre};

// "15mm", "0.5in" or "36pt": at least 0. The error says what was expected.
tl::expected<double, std::string> ParseLength(std::string_view text);
// A name (A4, A5, Letter, Legal; case does not matter) or width x height: "6x9in", "210x297mm".
// Between 20 mm and 2 m each way.
tl::expected<Size, std::string> ParsePageSize(std::string_view text);
// One length for all sides; two for top and bottom, left and right; four for top, right, bottom and
// left. Commas between them.
tl::expected<Margins, std::string> ParseMargins(std::string_view text);

}  // namespace tessel::paper
