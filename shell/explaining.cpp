#include "shell/explaining.h"

#include "explain/page.h"
#include "explain/page_parts.h"
#include "explain/story.h"
#include "explain/text.h"
#include "paper/pdf_date.h"

namespace tessel {

namespace {

constexpr char kTitle[] = "Puzzle 1";

Export Write(const tl::expected<std::string, std::string>& text, const paper::Sink& sink) {
  if (!text) return tl::unexpected(text.error());
  if (sink({reinterpret_cast<const unsigned char*>(text->data()), text->size()})) return {};
  return tl::unexpected<std::string>("the output cannot be written");
}

Export WritePages(const std::vector<paper::Story>& stories, const paper::Sink& sink) {
  const auto date = paper::DateOfDocument();
  if (!date) return tl::unexpected(date.error());
  const paper::StoryOptions pages{.legend = std::string(explain::kLegend), .date = *date};
  return paper::WriteStories(stories, pages, sink).map([](int) {});
}

}  // namespace

const std::vector<ExportKind>& ExplanationKinds() {
  static const std::vector<ExportKind> kinds{{"html", "a page for the browser", "html", true},
                                             {"pdf", "pages to print", "pdf", true},
                                             {"txt", "text", "txt", true}};
  return kinds;
}

Export WriteExplanation(const Puzzle& puzzle, const ExportKind& kind, const paper::Sink& sink) {
  const explain::Explanation explanation = explain::Explain(puzzle);
  if (kind.name == "txt") return Write(explain::TextOf(explanation, kTitle), sink);
  const std::vector<paper::Story> stories{explain::StoryOf(explanation, kTitle)};
  if (kind.name == "pdf") return WritePages(stories, sink);
  return Write(explain::PageOf(stories), sink);
}

}  // namespace tessel
