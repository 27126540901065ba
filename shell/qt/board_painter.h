// Paints what a Form says about the board.
#pragma once

#include <QColor>
#include <QFont>
#include <QRegion>
#include <optional>

#include "core/colour.h"
#include "core/form.h"
#include "core/game_state.h"
#include "shell/qt/board_geometry.h"

class QPainter;

namespace tessel {

// A mark that a left click would place, and whether the button is down on it.
struct TargetMark {
  int cell = 0;
  int digit = 0;
  bool pressed = false;

  friend bool operator==(const TargetMark&, const TargetMark&) = default;
};

// What the player points at; cells are 0..80.
struct BoardHighlights {
  std::optional<int> active = {};         // outlined with its cage, row and column
  std::optional<int> focused = {};        // wears the keyboard's focus ring
  std::optional<TargetMark> target = {};  // wears a ring of its own
  // Ringed wherever it stands, in place of the row and the column.
  std::optional<int> digit = {};
  bool refused = false;              // the focus ring flashes
  std::optional<QColor> frame = {};  // round the board
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

  // The colours that cages are painted with; they need not differ. Those of the form at first.
  void SetCageColours(const CageColours& colours) { cageColours_ = colours; }

  // Paints the parts that meet `region`. The painter's coordinates are the geometry's. Highlights
  // are shown where clicks act.
  void Paint(QPainter& painter, const QRegion& region, const BoardHighlights& highlights) const;

  // Where the ink of a mark lies, whether or not it is shown.
  QRect MarkInk(int cell, int digit) const;

 private:
  // Between two cells of one cage, or between two cages and round the board.
  enum class Line { kThin, kBorder };

  void PaintCaptions(QPainter& painter) const;
  void PaintCaption(QPainter& painter, const QRect& place, QChar text, Rgb colour,
                    QPoint towardsLine) const;
  void PaintText(QPainter& painter, int cell) const;
  void PaintMarks(QPainter& painter, int cell) const;
  void PaintLines(QPainter& painter, const QRegion& region, Line line) const;
  void PaintEdges(QPainter& painter, int cell, Line line) const;
  QRegion RegionOf(const auto& contains) const;
  void PaintFrame(QPainter& painter, const QColor& colour) const;
  void PaintHighlights(QPainter& painter, const BoardHighlights& highlights) const;
  void PaintLinesOf(QPainter& painter, int active) const;
  void PaintCageOf(QPainter& painter, int active) const;
  void PaintSameDigits(QPainter& painter, int digit) const;
  void PaintTarget(QPainter& painter, const TargetMark& target) const;
  std::optional<int> HintedCell() const;
  // The cage that the cell is painted as, 0 for none.
  int CageOf(int cell) const;
  // What the window shows for a colour of the form.
  QColor Shown(Rgb colour) const;

  const Form& form_;
  const GameState& state_;
  const BoardGeometry& geometry_;
  CageColours cageColours_ = kCageColours;
  QFont digitFont_;
  QFont markFont_;
  QFont captionFont_;
};

}  // namespace tessel
