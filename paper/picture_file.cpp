#include "paper/picture_file.h"

#include <cairo-svg.h>

#include <cmath>

#include "paper/board_drawing.h"
#include "paper/page_size.h"
#include "paper/sink_stream.h"

namespace tessel::paper {

namespace {

// Cairo names the group of everything by a count of the surfaces that the program has made: the
// same picture shall be the same bytes.
std::string WithoutSurfaceNumber(std::string svg) {
  constexpr std::string_view begin = "<g id=\"surface";
  const std::size_t at = svg.find(begin);
  if (at == std::string::npos) return svg;
  const std::size_t number = at + begin.size();
  svg.erase(number, svg.find('"', number) - number);
  return svg;
}

tl::expected<void, std::string> PassOn(const std::string& bytes, const Sink& sink) {
  SinkStream stream(sink);
  SinkStream::Write(&stream, reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<unsigned int>(bytes.size()));
  return stream.Result(CAIRO_STATUS_SUCCESS);
}

constexpr int kMaxPixels = 32767;  // a side of Cairo's images

std::string TooLarge(double pixels) {
  return "a picture of " + std::to_string(std::lround(pixels)) +
         " pixels a side is too large: " + std::to_string(kMaxPixels) + " at most";
}

}  // namespace

tl::expected<void, std::string> WriteSvg(const BoardPicture& picture, const BoardStyle& style,
                                         const Sink& sink) {
  const auto fonts = Fonts::Get();
  if (!fonts) return tl::unexpected(fonts.error());
  std::string bytes;
  const Sink collect = [&bytes](std::span<const unsigned char> more) {
    bytes.append(more.begin(), more.end());
    return true;
  };
  SinkStream stream(collect);
  const Surface svg(
      cairo_svg_surface_create_for_stream(SinkStream::Write, &stream, style.side, style.side));
  cairo_svg_surface_set_document_unit(svg.get(), CAIRO_SVG_UNIT_PT);
  DrawBoard(Context(cairo_create(svg.get())).get(), **fonts, picture, style, {});
  cairo_surface_finish(svg.get());
  auto result = stream.Result(cairo_surface_status(svg.get()));
  if (result) result = PassOn(WithoutSurfaceNumber(std::move(bytes)), sink);
  return result;
}

tl::expected<void, std::string> WritePng(const BoardPicture& picture, const BoardStyle& style,
                                         double pixelsPerInch, const Sink& sink) {
  const auto fonts = Fonts::Get();
  if (!fonts) return tl::unexpected(fonts.error());
  const double scale = pixelsPerInch / kPointsPerInch;
  const double pixels = std::ceil(style.side * scale);
  if (pixels > kMaxPixels) return tl::unexpected(TooLarge(pixels));
  const int side = static_cast<int>(pixels);
  const Surface image(cairo_image_surface_create(CAIRO_FORMAT_RGB24, side, side));
  const Context context(cairo_create(image.get()));
  cairo_set_source_rgb(context.get(), 1, 1, 1);
  cairo_paint(context.get());
  cairo_scale(context.get(), scale, scale);
  DrawBoard(context.get(), **fonts, picture, style, {});
  SinkStream stream(sink);
  return stream.Result(cairo_surface_write_to_png_stream(image.get(), SinkStream::Write, &stream));
}

}  // namespace tessel::paper
