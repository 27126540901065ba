#include "paper/booklet_pictures.h"

#include <cmath>

#include "paper/booklet_pages.h"
#include "paper/cairo_handles.h"

namespace tessel::paper {

namespace {

tl::expected<Surface, std::string> BlankPage(Size page, double scale) {
  const auto pixels = [scale](double points) {
    return static_cast<int>(std::lround(points * scale));
  };
  Surface image(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels(page.width), pixels(page.height)));
  const cairo_status_t status = cairo_surface_status(image.get());
  if (status != CAIRO_STATUS_SUCCESS) {
    return tl::unexpected(std::string(cairo_status_to_string(status)));
  }
  return image;
}

PagePixels PixelsOf(cairo_surface_t* image) {
  cairo_surface_flush(image);
  return {cairo_image_surface_get_width(image), cairo_image_surface_get_height(image),
          cairo_image_surface_get_stride(image), cairo_image_surface_get_data(image)};
}

}  // namespace

tl::expected<int, std::string> DrawBooklet(std::span<const BookletPuzzle> puzzles,
                                           const BookletOptions& options, double pixelsPerInch,
                                           const PageTaker& take) {
  const auto fonts = Fonts::Get();
  if (!fonts) return tl::unexpected(fonts.error());
  const auto plan = PlanBooklet(puzzles, options);
  if (!plan) return tl::unexpected(plan.error());
  const double scale = pixelsPerInch / kPointsPerInch;
  const int pages = static_cast<int>(plan->pages.size());
  const BookletView booklet{puzzles, options, *plan};
  CodesAhead codes(booklet);
  for (int page = 1; page <= pages; ++page) {
    const auto image = BlankPage(options.page, scale);
    if (!image) return tl::unexpected(image.error());
    const Context context(cairo_create(image->get()));
    cairo_set_source_rgb(context.get(), 1, 1, 1);
    cairo_paint(context.get());
    cairo_scale(context.get(), scale, scale);
    const auto drawn = DrawPage(context.get(), **fonts, booklet, codes, page);
    if (!drawn) return tl::unexpected(drawn.error());
    if (!take(PixelsOf(image->get()))) return page;
  }
  return pages;
}

}  // namespace tessel::paper
