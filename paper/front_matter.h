// The title page and the page of rules.
#pragma once

#include "paper/booklet_plan.h"
#include "paper/fonts.h"

namespace tessel::paper {

struct FrontMatter {
  cairo_t* context;
  const Fonts& fonts;
  const BookletOptions& options;
  std::span<const BookletPuzzle> puzzles;
  int firstSolutionPage = 0;  // 0: none
};

void DrawTitlePage(const FrontMatter& in, const Box& content);
void DrawRulesPage(const FrontMatter& in, const Box& content);

}  // namespace tessel::paper
