#include "paper/page_size.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <vector>

namespace tessel::paper {

namespace {

constexpr double kMinSide = 20 * kPointsPerMillimetre;
constexpr double kMaxSide = 2000 * kPointsPerMillimetre;

struct Unit {
  std::string_view name;
  double points;
};
constexpr std::array kUnits{Unit{"mm", kPointsPerMillimetre}, Unit{"in", kPointsPerInch},
                            Unit{"pt", 1.0}};

struct NamedSize {
  std::string_view name;
  Size size;
};
constexpr std::array kNamedSizes{
    NamedSize{"a4", kA4}, NamedSize{"a5", {148 * kPointsPerMillimetre, 210 * kPointsPerMillimetre}},
    NamedSize{"letter", {8.5 * kPointsPerInch, 11 * kPointsPerInch}},
    NamedSize{"legal", {8.5 * kPointsPerInch, 14 * kPointsPerInch}}};

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lower;
}

std::string Quoted(std::string_view text) {
  return std::string(1, '"').append(text).append(1, '"');
}

// The points of the unit at the end of `text`, which loses it.
std::optional<double> TakeUnit(std::string_view& text) {
  for (const Unit& unit : kUnits) {
    if (!text.ends_with(unit.name)) continue;
    text.remove_suffix(unit.name.size());
    return unit.points;
  }
  return std::nullopt;
}

std::optional<double> NumberIn(std::string_view text) {
  double number = 0.0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, std::chars_format::fixed);
  if (error != std::errc() || stop != end || !(number >= 0.0)) return std::nullopt;
  return number;
}

std::vector<std::string_view> Parts(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  while (true) {
    const std::size_t at = text.find(separator);
    parts.push_back(text.substr(0, at));
    if (at == std::string_view::npos) return parts;
    text.remove_prefix(at + 1);
  }
}

std::optional<Size> MeasuredSize(std::string_view text) {
  const std::optional<double> unit = TakeUnit(text);
  const std::vector<std::string_view> sides = Parts(text, 'x');
  if (!unit || sides.size() != 2) return std::nullopt;
  const std::optional<double> width = NumberIn(sides[0]);
  const std::optional<double> height = NumberIn(sides[1]);
  if (!width || !height) return std::nullopt;
  return Size{*width * *unit, *height * *unit};
}

}  // namespace

tl::expected<double, std::string> ParseLength(std::string_view text) {
  std::string_view number = text;
  const std::optional<double> unit = TakeUnit(number);
  const std::optional<double> value = NumberIn(number);
  if (!unit || !value) {
    return tl::unexpected(Quoted(text) + " is no length: write it like 15mm, 0.5in or 36pt");
  }
  return *value * *unit;
}

tl::expected<Size, std::string> ParsePageSize(std::string_view text) {
  const std::string lower = Lower(text);
  for (const NamedSize& named : kNamedSizes) {
    if (named.name == lower) return named.size;
  }
  const std::optional<Size> size = MeasuredSize(lower);
  if (!size) {
    return tl::unexpected(Quoted(text) +
                          " is no page size: A4, A5, Letter, Legal, or like 6x9in, 210x297mm");
  }
  const auto [least, most] = std::minmax(size->width, size->height);
  if (least < kMinSide || most > kMaxSide) {
    return tl::unexpected("a page of " + std::string(text) +
                          " is out of range: 20 mm to 2 m each way");
  }
  return *size;
}

tl::expected<Margins, std::string> ParseMargins(std::string_view text) {
  std::vector<double> lengths;
  for (const std::string_view part : Parts(text, ',')) {
    const auto length = ParseLength(part);
    if (!length) return tl::unexpected(length.error());
    lengths.push_back(*length);
  }
  switch (lengths.size()) {
    case 1:
      return Margins{lengths[0], lengths[0], lengths[0], lengths[0]};
    case 2:
      return Margins{lengths[0], lengths[1], lengths[0], lengths[1]};
    case 4:
      return Margins{lengths[0], lengths[1], lengths[2], lengths[3]};
    default:
      return tl::unexpected(
          std::string("margins are one length, two or four, with commas between them"));
  }
}

}  // namespace tessel::paper
