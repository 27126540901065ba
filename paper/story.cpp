#include "paper/story.h"

#include <cairo-pdf.h>

#include "paper/pdf_date.h"
#include "paper/sink_stream.h"
#include "paper/story_page.h"

namespace tessel::paper {

namespace {

void SetMetadata(cairo_surface_t* pdf, const std::string& title, std::int64_t date) {
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_TITLE, title.c_str());
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_CREATOR, "Tessel Sudoku");
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_CREATE_DATE, PdfDate(date).c_str());
}

class Pages {
 public:
  Pages(cairo_surface_t* pdf, const Fonts& fonts, const StoryGrid& grid, const std::string& legend)
      : pdf_(pdf), context_(cairo_create(pdf)), fonts_(fonts), grid_(grid), legend_(legend) {}

  void Draw(const Story& story) {
    AddBookmark(story.title);
    DrawLegend(context_.get(), fonts_, legend_, grid_);
    int place = 0;
    for (const Panel& panel : story.panels) {
      if (place == grid_.perPage) {
        Turn(story.title);
        place = 0;
      }
      DrawPanel(context_.get(), fonts_, panel, grid_, place++);
    }
    Turn(story.title);
  }
  int Count() const { return page_ - 1; }

 private:
  void AddBookmark(const std::string& title) {
    const std::string at = "page=" + std::to_string(page_) + " pos=[0 0]";
    cairo_pdf_surface_add_outline(pdf_, CAIRO_PDF_OUTLINE_ROOT, title.c_str(), at.c_str(),
                                  cairo_pdf_outline_flags_t{});
  }
  void Turn(const std::string& title) {
    DrawFooter(context_.get(), fonts_, title, page_++, grid_);
    cairo_show_page(context_.get());
  }

  cairo_surface_t* pdf_;
  Context context_;
  const Fonts& fonts_;
  const StoryGrid& grid_;
  const std::string& legend_;
  int page_ = 1;
};

tl::expected<void, std::string> CheckText(const Fonts& fonts, std::span<const Story> stories) {
  for (const Story& story : stories) {
    if (story.title.empty() || !fonts.Shape(story.title, Face::kRegular).glyphs.empty()) continue;
    return tl::unexpected(std::string("the title is not UTF-8"));
  }
  return {};
}

}  // namespace

tl::expected<int, std::string> WriteStories(std::span<const Story> stories,
                                            const StoryOptions& options, const Sink& sink) {
  if (stories.empty()) return tl::unexpected(std::string("there is nothing to print"));
  const auto fonts = Fonts::Get();
  if (!fonts) return tl::unexpected(fonts.error());
  const auto text = CheckText(**fonts, stories);
  if (!text) return tl::unexpected(text.error());
  const auto grid = FitPanels(options);
  if (!grid) return tl::unexpected(grid.error());

  SinkStream stream(sink);
  const Surface pdf(cairo_pdf_surface_create_for_stream(SinkStream::Write, &stream,
                                                        options.page.width, options.page.height));
  SetMetadata(pdf.get(), stories.front().title, options.date);
  Pages pages(pdf.get(), **fonts, *grid, options.legend);
  for (const Story& story : stories) {
    pages.Draw(story);
    if (stream.Refused()) break;
  }
  cairo_surface_finish(pdf.get());
  const auto written = stream.Result(cairo_surface_status(pdf.get()));
  if (!written) return tl::unexpected(written.error());
  return pages.Count();
}

}  // namespace tessel::paper
