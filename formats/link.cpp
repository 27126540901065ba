#include "formats/link.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "core/text_replacement.h"
#include "formats/cell_text.h"
#include "formats/lz_string.h"
#include "formats/unicode.h"

namespace tessel::formats {

namespace {

// The letters of a payload, and where each of them stands in the line.
struct Payload {
  std::string letters;
  std::vector<std::size_t> offsets;
  std::size_t end = 0;

  std::size_t OffsetOf(std::size_t letter) const {
    return letter < offsets.size() ? offsets[letter] : end;
  }
};

std::size_t BehindMarker(std::string_view line, std::span<const std::string_view> markers) {
  for (const std::string_view marker : markers) {
    const std::size_t start = line.find(marker);
    if (start != std::string_view::npos) return start + marker.size();
  }
  return line.size();
}

// '+', '/' or '=' where it is percent-encoded there; 0 otherwise.
char Decoded(std::string_view text) {
  if (text.size() < 3 || text[0] != '%') return 0;
  const std::string_view code = text.substr(1, 2);
  if (code == "2B" || code == "2b") return '+';
  if (code == "2F" || code == "2f") return '/';
  if (code == "3D" || code == "3d") return '=';
  return 0;
}

Payload PayloadFrom(std::string_view line, std::size_t start) {
  Payload payload;
  payload.end = line.find_last_not_of(" \t\r\n") + 1;
  for (std::size_t i = start; i < payload.end && line[i] != '&'; ++i) {
    const char decoded = Decoded(line.substr(i));
    payload.letters += decoded != 0 ? decoded : line[i] == ' ' ? '+' : line[i];
    payload.offsets.push_back(i);
    if (decoded != 0) i += 2;
  }
  return payload;
}

Fault PackingFault(std::string_view line, const Payload& payload, LzFault fault) {
  const std::size_t offset = payload.OffsetOf(fault.letter);
  switch (fault.kind) {
    case LzFault::Kind::kLetter:
      return {offset, "", "a letter of base64", ShownAt(line, offset)};
    case LzFault::Kind::kCut:
      return {offset, "", "more of the link", "its end: it was cut"};
    case LzFault::Kind::kCode:
      return {offset, "", "a code of lz-string", "one of no entry: the link is damaged"};
    case LzFault::Kind::kTooLong:
      return {offset, "", "at most " + std::to_string(kMaxJsonCharacters) + " characters of JSON",
              "more"};
  }
  return {};
}

struct TooDeep : std::exception {};

// At most so many bytes and "...", without half a character.
std::string Shortened(const std::string& text, std::size_t most) {
  if (text.size() <= most) return text;
  const auto goesOn = [&] { return (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80U; };
  while (most > 0 && goesOn()) --most;
  return text.substr(0, most) + "...";
}

bool SaysSomething(const Json& value) {
  if (value.is_boolean()) return value.get<bool>();
  return !value.is_null() && !value.empty();
}

// What base64 has of letters that mean something in an address.
constexpr std::array kInAddress{Replacement{'+', "%2B"}, Replacement{'/', "%2F"},
                                Replacement{'=', "%3D"}};

}  // namespace

bool HasMarker(std::string_view line, std::span<const std::string_view> markers) {
  return BehindMarker(line, markers) < line.size();
}

tl::expected<Json, std::string> JsonOf(const std::string& text) {
  const auto shallow = [](int depth, Json::parse_event_t, Json&) {
    if (depth > kMaxJsonDepth) throw TooDeep();
    return true;
  };
  try {
    return Json::parse(text, shallow);
  } catch (const Json::exception& error) {  // no JSON, or a number that no double can hold
    const std::string message = error.what();
    return tl::unexpected(Shortened(message.substr(message.find("] ") + 2), 200));
  } catch (const TooDeep&) {
    return tl::unexpected("lists more than " + std::to_string(kMaxJsonDepth) + " deep");
  }
}

tl::expected<Json, Fault> LinkedJson(std::string_view line,
                                     std::span<const std::string_view> markers) {
  const std::size_t start = BehindMarker(line, markers);
  const Payload payload = PayloadFrom(line, start);
  const auto units = LzDecompressed(payload.letters, kMaxJsonCharacters);
  if (!units) return tl::unexpected(PackingFault(line, payload, units.error()));
  const auto text = Utf8Of(*units);
  if (!text) return tl::unexpected(Fault{start, "in its JSON", "Unicode", "half a character"});
  auto json = JsonOf(*text);
  if (!json) return tl::unexpected(Fault{start, "in its JSON", "valid JSON", json.error()});
  return *std::move(json);
}

std::string LinkTo(std::string_view address, const OrderedJson& json) {
  const std::string text = json.dump(-1, ' ', true);
  const std::string packed = LzCompressed(std::u16string(text.begin(), text.end()));
  return std::string(address) + Replaced(packed, kInAddress) + "\n";
}

Fault JsonFault(const std::string& where, std::string expected, const Json* found) {
  const std::string shown =
      found == nullptr ? "nothing" : found->dump(-1, ' ', true, Json::error_handler_t::replace);
  return {0, "in its JSON, at " + (where.empty() ? "/" : where), std::move(expected),
          Shortened(shown, 40)};
}

std::string TextOf(const Json& object, const char* name) {
  if (!object.is_object()) return "";
  const auto found = object.find(name);
  return found != object.end() && found->is_string() ? found->get<std::string>() : "";
}

int DigitOf(const Json& value) {
  if (value.is_string()) {
    const auto& text = value.get_ref<const std::string&>();
    return text.size() == 1 && text[0] >= '1' && text[0] <= '9' ? text[0] - '0' : 0;
  }
  if (!value.is_number_integer()) return 0;
  const auto number = value.get<std::int64_t>();
  return number >= 1 && number <= kSide ? static_cast<int>(number) : 0;
}

std::optional<Grid> CompleteGrid(const Json& value) {
  Grid grid{};
  const bool isText = value.is_string();
  if (!isText && !value.is_array()) return std::nullopt;
  const std::string text = isText ? value.get<std::string>() : "";
  if ((isText ? text.size() : value.size()) != kCellCount) return std::nullopt;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int digit = DigitOf(isText ? Json(std::string(1, text[cell])) : value[cell]);
    if (digit == 0) return std::nullopt;
    grid[cell] = static_cast<std::uint8_t>(digit);
  }
  return grid;
}

std::optional<Fault> SolutionFault(const Puzzle& puzzle, const std::string& where) {
  if (!puzzle.solution) return std::nullopt;
  for (int cell = 0; cell < kCellCount; ++cell) {
    const int given = puzzle.givens[cell];
    const int digit = (*puzzle.solution)[cell];
    if (given == 0 || given == digit) continue;
    const Json found(digit);
    return JsonFault(where, "the given " + std::to_string(given) + " at " + CellName(cell), &found);
  }
  return std::nullopt;
}

std::optional<Fault> ForeignRule(const Json& root, std::span<const char* const> names) {
  for (const char* const name : names) {
    const auto found = root.find(name);
    if (found != root.end() && SaysSomething(*found)) {
      return JsonFault(std::string("/") + name, "no rule besides rows, columns and cages", &*found);
    }
  }
  return std::nullopt;
}

std::string TitleOf(const DescribedPuzzle& puzzle) {
  return puzzle.title.empty() ? "Tessel " + std::to_string(puzzle.index + 1) : puzzle.title;
}

std::string AuthorOf(const DescribedPuzzle& puzzle) {
  return puzzle.author.empty() ? "Tessel Sudoku" : puzzle.author;
}

}  // namespace tessel::formats
