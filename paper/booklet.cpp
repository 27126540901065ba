#include "paper/booklet.h"

#include <cairo-pdf.h>

#include "paper/booklet_pages.h"
#include "paper/booklet_plan.h"
#include "paper/fonts.h"
#include "paper/pdf_date.h"
#include "paper/sink_stream.h"

namespace tessel::paper {

namespace {

void SetMetadata(cairo_surface_t* pdf, const BookletOptions& options) {
  const std::string title = options.title.empty() ? "Irregular Sudoku" : options.title;
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_TITLE, title.c_str());
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_CREATOR, "Tessel Sudoku");
  const std::string date = PdfDate(options.date);
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_CREATE_DATE, date.c_str());
  if (options.author.empty()) return;
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_AUTHOR, options.author.c_str());
}

std::string BookmarkOf(const PlannedPage& page) {
  switch (page.kind) {
    case PlannedPage::Kind::kTitle:
      return "Title";
    case PlannedPage::Kind::kRules:
      return "How to play";
    case PlannedPage::Kind::kPuzzles:
    case PlannedPage::Kind::kSolutions:
      return page.heading.empty() ? "Puzzles" : page.heading;
  }
  return {};
}

void AddBookmark(cairo_surface_t* pdf, const PlannedPage& page, std::size_t number) {
  const bool begins = page.opensSection || page.kind == PlannedPage::Kind::kTitle ||
                      page.kind == PlannedPage::Kind::kRules;
  if (!begins) return;
  const std::string at = "page=" + std::to_string(number) + " pos=[0 0]";
  cairo_pdf_surface_add_outline(pdf, CAIRO_PDF_OUTLINE_ROOT, BookmarkOf(page).c_str(), at.c_str(),
                                cairo_pdf_outline_flags_t{});
}

tl::expected<void, std::string> DrawPages(cairo_surface_t* pdf, const Fonts& fonts,
                                          const BookletView& booklet, const SinkStream& stream) {
  const Context context(cairo_create(pdf));
  CodesAhead codes(booklet);
  const std::vector<PlannedPage>& pages = booklet.plan.pages;
  for (std::size_t k = 0; k < pages.size(); ++k) {
    const auto drawn = DrawPage(context.get(), fonts, booklet, codes, static_cast<int>(k) + 1);
    if (!drawn) return drawn;
    AddBookmark(pdf, pages[k], k + 1);
    cairo_show_page(context.get());
    if (stream.Refused()) break;
  }
  return {};
}

bool IsText(const Fonts& fonts, const std::string& text) {
  return text.empty() || !fonts.Shape(text, Face::kRegular).glyphs.empty();
}

}  // namespace

bool CanBeSet(const std::string& text) {
  const auto fonts = Fonts::Get();
  return text.empty() || (fonts && (*fonts)->Shape(text, Face::kRegular).complete);
}

tl::expected<int, std::string> WriteBooklet(std::span<const BookletPuzzle> puzzles,
                                            const BookletOptions& options, const Sink& sink) {
  const auto fonts = Fonts::Get();
  if (!fonts) return tl::unexpected(fonts.error());
  if (!IsText(**fonts, options.title)) return tl::unexpected(std::string("the title is not UTF-8"));
  if (!IsText(**fonts, options.author))
    return tl::unexpected(std::string("the author is not UTF-8"));
  const auto plan = PlanBooklet(puzzles, options);
  if (!plan) return tl::unexpected(plan.error());

  SinkStream stream(sink);
  const Surface pdf(cairo_pdf_surface_create_for_stream(SinkStream::Write, &stream,
                                                        options.page.width, options.page.height));
  SetMetadata(pdf.get(), options);
  const auto drawn = DrawPages(pdf.get(), **fonts, {puzzles, options, *plan}, stream);
  cairo_surface_finish(pdf.get());
  if (!drawn) return tl::unexpected(drawn.error());
  const auto written = stream.Result(cairo_surface_status(pdf.get()));
  if (!written) return tl::unexpected(written.error());
  return static_cast<int>(plan->pages.size());
}

}  // namespace tessel::paper
