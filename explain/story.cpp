#include "explain/story.h"

#include <algorithm>

#include "explain/listing.h"
#include "explain/sentence.h"
#include "explain/step_picture.h"

namespace tessel::explain {

namespace {

std::string Counted(std::size_t count, const std::string& word) {
  return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

std::size_t OpenCells(const grade::CandidateGrid& position) {
  return static_cast<std::size_t>(std::ranges::count(position.digits, 0));
}

// "40 naked single, 3 pointing": each kind as often as it is needed.
std::string StepsByKind(const Explanation& explanation) {
  std::vector<std::string> counts;
  for (const grade::StepKindFacts& facts : grade::kStepKinds) {
    const auto count = std::ranges::count(explanation.steps, facts.kind,
                                          [](const Taken& taken) { return taken.step.kind; });
    if (count > 0) counts.push_back(std::to_string(count) + " \u00d7 " + std::string(facts.name));
  }
  return Listed(counts);
}

paper::Panel PanelOf(const Explanation& explanation, std::size_t k) {
  return {NumberedHeading(explanation, k), ParagraphsOf(explanation, k),
          PictureBefore(explanation, k), PictureAfter(explanation, k)};
}

paper::BoardPicture WithCaptions(paper::BoardPicture picture) {
  picture.captions = true;
  return picture;
}

}  // namespace

std::vector<std::string> OpeningOf(const Explanation& explanation) {
  std::string open = Counted(OpenCells(explanation.Start()), "cell") + " to fill";
  if (explanation.steps.empty()) return {open + "."};
  return {open + ", in " + Counted(explanation.steps.size(), "step") + ".",
          StepsByKind(explanation) + "."};
}

std::vector<std::string> EndingOf(const Explanation& explanation) {
  if (explanation.end.Solved()) return {"The puzzle is solved."};
  return {"Here the ladder of steps ends: none of them finds anything more.",
          Counted(OpenCells(explanation.end), "cell") +
              " are left, with the candidates that are shown. The puzzle has one solution, but "
              "something beyond these steps is needed to reach it."};
}

std::vector<std::string> ParagraphsOf(const Explanation& explanation, std::size_t k) {
  const grade::Step& step = explanation.steps[k].step;
  return {SentenceOf(explanation.layout, step) + ".",
          ReasonOf(explanation.layout, step) + ": " + OutcomeOf(step) + "."};
}

std::string NumberedHeading(const Explanation& explanation, std::size_t k) {
  return std::to_string(k + 1) + ". " + HeadingOf(explanation.steps[k].step);
}

paper::Panel FirstPanelOf(const Explanation& explanation, const std::string& title) {
  paper::BoardPicture start = WithCaptions(PictureOf(explanation, explanation.Start()));
  if (explanation.Start().digits == explanation.givens) start.marks = {};
  return {title, OpeningOf(explanation), std::move(start), std::nullopt};
}

paper::Story StoryOf(const Explanation& explanation, const std::string& title) {
  paper::Story story{title, {}};
  story.panels.push_back(FirstPanelOf(explanation, title));
  for (std::size_t k = 0; k < explanation.steps.size(); ++k) {
    story.panels.push_back(PanelOf(explanation, k));
  }
  story.panels.push_back({explanation.end.Solved() ? "Solved" : "The ladder ends",
                          EndingOf(explanation),
                          WithCaptions(PictureOf(explanation, explanation.end)), std::nullopt});
  return story;
}

}  // namespace tessel::explain
