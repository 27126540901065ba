// Paints what a Form says about the board.
#pragma once

#include <QFont>
#include <QRegion>
#include <optional>

#include "core/form.h"
#include "core/game_state.h"
#include "shell/qt/board_geometry.h"

class QPainter;

namespace tessel {

// Cells that the player points at, each 0..80 if there is one.
struct BoardHighlights {
  std::optional<int> active;   // outlined with its cage, row and column
  std::optional<int> focused;  // wears the keyboard's focus ring
};

// Whether the digit shown in the cell was put there by the player and not by the puzzle.
bool IsEntry(const Form& form, const GameState& state, int cell);

// Whether the mark can be seen: a mark in the colour of its ground hides in it.
bool IsMarkShown(const Form& form, int cell, int digit);

class BoardPainter {
 public:
  // `font` gives the family; sizes and weights follow the geometry.
  BoardPainter(const Form& form, const GameState& state, const BoardGeometry& geometry,
               const QFont& font);

  // Paints the parts that meet `region`. The painter's coordinates are the geometry's.
  void Paint(QPainter& painter, const QRegion& region, const BoardHighlights& highlights) const;

 private:
  // Between two cells of one ground, or between two grounds and round the board.
  enum class Line { kThin, kBorder };

  void PaintCaptions(QPainter& painter) const;
  void PaintCaption(QPainter& painter, const QRect& place, QChar text, Rgb colour,
                    QPoint towardsLine) const;
  void PaintText(QPainter& painter, int cell) const;
  void PaintMarks(QPainter& painter, int cell) const;
  void PaintLines(QPainter& painter, const QRegion& region, Line line) const;
  void PaintEdges(QPainter& painter, int cell, Line line) const;
  QRegion RegionOf(const auto& contains) const;
  void PaintHighlights(QPainter& painter, const BoardHighlights& highlights) const;

  const Form& form_;
  const GameState& state_;
  const BoardGeometry& geometry_;
  QFont digitFont_;
  QFont markFont_;
  QFont captionFont_;
};

}  // namespace tessel
