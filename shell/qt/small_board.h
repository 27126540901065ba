// A puzzle as a small picture.
#pragma once

#include <QPixmap>
#include <QRect>

#include "core/colour.h"
#include "core/puzzle_record.h"

class QPainter;

namespace tessel {

// Cages in these colours with black borders, and the givens; `place` is a square. The record must
// hold cages.
void PaintSmallBoard(QPainter& painter, const QRect& place, const PuzzleRecord& puzzle,
                     const CageColours& colours);

// `side` in pixels of the screen's own size.
QPixmap SmallBoard(const PuzzleRecord& puzzle, const CageColours& colours, int side,
                   qreal pixelRatio);

}  // namespace tessel
