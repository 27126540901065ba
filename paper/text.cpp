#include "paper/text.h"

#include <algorithm>

namespace tessel::paper {

namespace {

bool ContinuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// The first `most` bytes and what belongs to their last character.
std::string_view Prefix(std::string_view text, std::size_t most) {
  while (most < text.size() && ContinuesCharacter(text[most])) ++most;
  return text.substr(0, most);
}

std::size_t FittingLength(const GlyphRun& run, double size, double width) {
  std::size_t length = 0;
  std::size_t glyph = 0;
  for (const cairo_text_cluster_t& cluster : run.clusters) {
    glyph += static_cast<std::size_t>(cluster.num_glyphs);
    const double end = glyph < run.glyphs.size() ? run.glyphs[glyph].x : run.width;
    if (length > 0 && end * size > width) break;
    length += static_cast<std::size_t>(cluster.num_bytes);
  }
  return length;
}

// The length of the longest beginning of whole characters that is no wider than `width`; at least
// one character. No more of the text is shaped than about twice of what fits, so that wrapping a
// long one takes time by its length, not by the square.
std::size_t FittingLength(const Fonts& fonts, std::string_view text, const TextStyle& style,
                          double width) {
  for (std::size_t most = 64;; most *= 2) {
    const std::string_view prefix = Prefix(text, most);
    const GlyphRun run = fonts.Shape(prefix, style.face);
    if (prefix.size() == text.size() || run.width * style.size > width) {
      return FittingLength(run, style.size, width);
    }
  }
}

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The length of the line that begins `text`.
std::size_t LineLength(const Fonts& fonts, std::string_view text, const TextStyle& style,
                       double width) {
  const std::size_t fits = FittingLength(fonts, text, style, width);
  if (fits >= text.size() || text[fits] == ' ') return fits;
  const std::size_t blank = text.substr(0, fits).rfind(' ');
  return blank == std::string_view::npos ? fits : blank;
}

}  // namespace

double WidthOf(const Fonts& fonts, std::string_view text, const TextStyle& style) {
  return fonts.Shape(text, style.face).width * style.size;
}

void DrawText(cairo_t* context, const Fonts& fonts, std::string_view text, const TextStyle& style,
              Point at, Align align) {
  GlyphRun run = fonts.Shape(text, style.face);
  if (run.glyphs.empty()) return;
  const double share = align == Align::kLeft ? 0.0 : align == Align::kCentre ? 0.5 : 1.0;
  const double left = at.x - share * run.width * style.size;
  for (cairo_glyph_t& glyph : run.glyphs) {
    glyph.x = left + glyph.x * style.size;
    glyph.y = at.y + glyph.y * style.size;
  }
  fonts.Select(context, style.face, style.size);
  cairo_set_source_rgb(context, style.grey, style.grey, style.grey);
  cairo_show_text_glyphs(context, run.text.data(), static_cast<int>(run.text.size()),
                         run.glyphs.data(), static_cast<int>(run.glyphs.size()),
                         run.clusters.data(), static_cast<int>(run.clusters.size()),
                         cairo_text_cluster_flags_t{});
}

std::vector<std::string> Wrapped(const Fonts& fonts, std::string_view text, const TextStyle& style,
                                 double width) {
  std::vector<std::string> lines;
  std::string_view rest = WithoutBlanks(text);
  while (!rest.empty()) {
    const std::size_t length = std::max<std::size_t>(1, LineLength(fonts, rest, style, width));
    lines.emplace_back(WithoutBlanks(rest.substr(0, length)));
    rest = WithoutBlanks(rest.substr(length));
  }
  return lines;
}

std::string Shortened(const Fonts& fonts, std::string_view text, const TextStyle& style,
                      double width) {
  if (WidthOf(fonts, text, style) <= width) return std::string(text);
  const std::string_view ellipsis = "\u2026";
  const double room = width - WidthOf(fonts, ellipsis, style);
  std::size_t length = FittingLength(fonts, text, style, room);
  while (length < text.size() && ContinuesCharacter(text[length])) ++length;
  return std::string(WithoutBlanks(text.substr(0, length))).append(ellipsis);
}

}  // namespace tessel::paper
