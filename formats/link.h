// Links that carry a puzzle as compressed JSON.
//
//   link    = address payload               address ends with the format's marker
//   payload = base64 of lz-string of JSON   '+', '/' and '=' as they are or as %2B %2F %3D;
//                                           a blank stands for '+'
//   JSON    = UTF-8, or the UTF-16 of JavaScript, told apart by their bytes
//
// Written with all characters beyond ASCII as \uXXXX, which both readings understand.
#pragma once

#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <string_view>

#include "formats/format.h"

namespace tessel::formats {

// Whole puzzles take a few thousand characters; with these bounds no link takes much memory.
inline constexpr std::size_t kMaxJsonCharacters = 1'000'000;
inline constexpr int kMaxJsonDepth = 32;

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

// Whether the line is a link that has one of the markers.
bool HasMarker(std::string_view line, std::span<const std::string_view> markers);
// The error says where and why the text is no JSON, or none that a link should have.
tl::expected<Json, std::string> JsonOf(const std::string& text);
// The JSON behind the marker.
tl::expected<Json, Fault> LinkedJson(std::string_view line,
                                     std::span<const std::string_view> markers);
// A line of `address` and the percent-encoded payload.
std::string LinkTo(std::string_view address, const OrderedJson& json);

// A fault at a place inside the JSON, as "/cells/0/3".
Fault JsonFault(const std::string& where, std::string expected, const Json* found);
// The text of that name; empty where there is none.
std::string TextOf(const Json& object, const char* name);
// A digit 1..9, as a number or as a text of one character; 0 for anything else.
int DigitOf(const Json& value);
// A whole grid of digits, from a text of 81 characters or a list of 81 values; nothing when it is
// incomplete.
std::optional<Grid> CompleteGrid(const Json& value);
// The fault, where a known solution contradicts a given.
std::optional<Fault> SolutionFault(const Puzzle& puzzle, const std::string& where);

// What only the window of the format's own program shows may stand in a link; what adds a rule
// makes another puzzle of it. Tells the first of these names that says something.
std::optional<Fault> ForeignRule(const Json& root, std::span<const char* const> names);

// The title to write: its own, or "Tessel 1" by its place.
std::string TitleOf(const DescribedPuzzle& puzzle);
std::string AuthorOf(const DescribedPuzzle& puzzle);
inline constexpr char kRules[] = "Normal irregular sudoku rules apply.";

}  // namespace tessel::formats
