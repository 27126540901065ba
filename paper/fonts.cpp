#include "paper/fonts.h"

#include <cairo-ft.h>

#include <algorithm>
#include <memory>

namespace tessel::paper {

namespace {

constexpr std::array<const char*, kFaces> kFiles{"Lato-Regular.ttf", "Lato-Bold.ttf",
                                                 "Lato-Italic.ttf"};
constexpr char kDigits[] = "0123456789";

struct OptionsRelease {
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
using Options = std::unique_ptr<cairo_font_options_t, OptionsRelease>;

Options UnhintedOptions() {
  Options options(cairo_font_options_create());
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  return options;
}

ScaledFont AtSizeOne(FT_Face face) {
  cairo_font_face_t* const fontFace =
      cairo_ft_font_face_create_for_ft_face(face, FT_LOAD_NO_HINTING);
  cairo_matrix_t identity;
  cairo_matrix_init_identity(&identity);
  const Options options = UnhintedOptions();
  ScaledFont font(cairo_scaled_font_create(fontFace, &identity, &identity, options.get()));
  cairo_font_face_destroy(fontFace);
  return font;
}

// What the font moves the second glyph by, in units of the font size.
double Kerning(FT_Face face, const cairo_glyph_t& first, const cairo_glyph_t& second) {
  FT_Vector by{};
  FT_Get_Kerning(face, static_cast<FT_UInt>(first.index), static_cast<FT_UInt>(second.index),
                 FT_KERNING_UNSCALED, &by);
  return static_cast<double>(by.x) / face->units_per_EM;
}

void Kern(FT_Face face, GlyphRun& run) {
  double shift = 0.0;
  for (std::size_t i = 1; i < run.glyphs.size(); ++i) {
    shift += Kerning(face, run.glyphs[i - 1], run.glyphs[i]);
    run.glyphs[i].x += shift;
  }
  run.width += shift;
}

}  // namespace

// Cairo keeps scaled fonts in a cache of its own for as long as the process lives: so must these.
tl::expected<const Fonts*, std::string> Fonts::Get() {
  static const tl::expected<const Fonts*, std::string> loaded = Load();
  return loaded;
}

tl::expected<const Fonts*, std::string> Fonts::Load() {
  FT_Library library = nullptr;
  if (FT_Init_FreeType(&library) != 0)
    return tl::unexpected(std::string("the font library does not start"));
  std::unique_ptr<Fonts> fonts(new Fonts);
  for (std::size_t i = 0; i < kFaces; ++i) {
    auto face = LoadFace(library, std::string(TESSEL_FONT_FOLDER "/") + kFiles[i]);
    if (!face) return tl::unexpected(face.error());
    fonts->faces_[i] = *std::move(face);
  }
  return fonts.release();
}

tl::expected<Fonts::LoadedFace, std::string> Fonts::LoadFace(void* library,
                                                             const std::string& path) {
  FT_Face face = nullptr;
  if (FT_New_Face(static_cast<FT_Library>(library), path.c_str(), 0, &face) != 0) {
    return tl::unexpected("cannot read the font " + path + " (Debian: package fonts-lato)");
  }
  LoadedFace loaded{.freetypeFace = face, .unit = AtSizeOne(face)};
  std::ranges::transform(std::string_view(kDigits), loaded.digits.begin(), [face](char digit) {
    return FT_Get_Char_Index(face, static_cast<FT_ULong>(digit));
  });
  // The digit 1 ends level at the top and at the bottom: round ones reach a little further.
  cairo_text_extents_t extents;
  cairo_scaled_font_text_extents(loaded.unit.get(), "1", &extents);
  loaded.digitWidth = extents.x_advance;
  loaded.digitHeight = -extents.y_bearing;
  return loaded;
}

GlyphRun Fonts::Shape(std::string_view text, Face face) const {
  const LoadedFace& loaded = faces_[Index(face)];
  GlyphRun run{.text = std::string(text)};
  cairo_glyph_t* glyphs = nullptr;
  cairo_text_cluster_t* clusters = nullptr;
  int glyphCount = 0;
  int clusterCount = 0;
  cairo_text_cluster_flags_t flags{};
  const cairo_status_t status = cairo_scaled_font_text_to_glyphs(
      loaded.unit.get(), 0, 0, text.data(), static_cast<int>(text.size()), &glyphs, &glyphCount,
      &clusters, &clusterCount, &flags);
  if (status != CAIRO_STATUS_SUCCESS) return GlyphRun{.complete = false};
  run.glyphs.assign(glyphs, glyphs + glyphCount);
  run.clusters.assign(clusters, clusters + clusterCount);
  cairo_glyph_free(glyphs);
  cairo_text_cluster_free(clusters);

  cairo_text_extents_t extents;
  cairo_scaled_font_glyph_extents(loaded.unit.get(), run.glyphs.data(), glyphCount, &extents);
  run.width = extents.x_advance;
  run.complete =
      std::ranges::all_of(run.glyphs, [](const auto& glyph) { return glyph.index != 0; });
  Kern(static_cast<FT_Face>(loaded.freetypeFace), run);
  return run;
}

void Fonts::Select(cairo_t* context, Face face, double size) const {
  cairo_set_font_face(context, cairo_scaled_font_get_font_face(faces_[Index(face)].unit.get()));
  cairo_set_font_size(context, size);
}

void UseOutlinesAsTheyAre(cairo_t* context) {
  cairo_set_font_options(context, UnhintedOptions().get());
}

}  // namespace tessel::paper
