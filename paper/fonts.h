// The fonts of everything printed: Lato, from its files, so that the same text is the same picture
// on every machine whatever fonts it prefers.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

#include "paper/cairo_handles.h"

namespace tessel::paper {

enum class Face : std::uint8_t { kRegular, kBold, kItalic };
inline constexpr std::size_t kFaces = 3;

// A line of text as glyphs, in units of the font size, from (0, 0) on the baseline on.
struct GlyphRun {
  std::string text{};
  std::vector<cairo_glyph_t> glyphs{};
  std::vector<cairo_text_cluster_t> clusters{};
  double width = 0.0;
  bool complete = true;  // the font has every character
};

class Fonts {
 public:
  // Loads the fonts at the first call. The error names the file that cannot be read.
  static tl::expected<const Fonts*, std::string> Get();

  // `text` must be UTF-8; otherwise the run is empty and not complete.
  GlyphRun Shape(std::string_view text, Face face) const;
  void Select(cairo_t* context, Face face, double size) const;

  // Glyph of a digit 0..9, and the width that all digits have in common.
  unsigned long DigitGlyph(Face face, int digit) const { return faces_[Index(face)].digits[digit]; }
  double DigitWidth(Face face) const { return faces_[Index(face)].digitWidth; }
  // Of digits and capital letters, which stand equally high.
  double DigitHeight(Face face) const { return faces_[Index(face)].digitHeight; }

 private:
  struct LoadedFace {
    void* freetypeFace = nullptr;
    ScaledFont unit{};  // at size 1
    std::array<unsigned long, 10> digits{};
    double digitWidth = 0.0;
    double digitHeight = 0.0;
  };

  Fonts() = default;
  static tl::expected<const Fonts*, std::string> Load();
  static tl::expected<LoadedFace, std::string> LoadFace(void* library, const std::string& path);
  static std::size_t Index(Face face) { return static_cast<std::size_t>(face); }

  std::array<LoadedFace, kFaces> faces_;
};

// Fine enough for print, and free of what this machine's settings prefer.
void UseOutlinesAsTheyAre(cairo_t* context);

}  // namespace tessel::paper
