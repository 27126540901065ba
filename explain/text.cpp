#include "explain/text.h"

#include "explain/story.h"
#include "explain/text_board.h"

namespace tessel::explain {

namespace {

constexpr std::size_t kWidth = 80;

// Counts bytes; the signs of two bytes only make a line a little shorter.
std::string Wrapped(std::string_view text) {
  std::string lines;
  while (text.size() > kWidth) {
    const std::size_t blank = text.rfind(' ', kWidth);
    if (blank == std::string_view::npos) break;
    lines.append(text.substr(0, blank)).append("\n");
    text.remove_prefix(blank + 1);
  }
  return lines.append(text).append("\n");
}

std::string Paragraphs(const std::vector<std::string>& paragraphs) {
  std::string text;
  for (const std::string& paragraph : paragraphs) text += Wrapped(paragraph);
  return text + "\n";
}

}  // namespace

std::string TextOf(const Explanation& explanation, const std::string& title) {
  const Layout& layout = explanation.layout;
  std::string text = title + "\n\n" + Paragraphs(OpeningOf(explanation)) +
                     Drawn(layout, DigitTexts(explanation.Start().digits)) + "\n";
  for (std::size_t k = 0; k < explanation.steps.size(); ++k) {
    text += NumberedHeading(explanation, k) + "\n" + Paragraphs(ParagraphsOf(explanation, k)) +
            Drawn(layout, StepTexts(explanation, k)) + "\n";
  }
  text += Paragraphs(EndingOf(explanation));
  if (!explanation.end.Solved()) text += CandidateTable(explanation.end) + "\n";
  return text;
}

}  // namespace tessel::explain
