// The board: one painted widget with 81 cells.
#pragma once

#include <QTimer>
#include <QWidget>
#include <optional>

#include "core/cell_click.h"
#include "core/form.h"
#include "core/game_state.h"
#include "shell/qt/board_geometry.h"
#include "shell/qt/board_painter.h"

namespace tessel {

class BoardWidget final : public QWidget {
  Q_OBJECT

 public:
  explicit BoardWidget(QWidget* parent = nullptr);
  ~BoardWidget() override;

  // What to paint; both must live as long as the widget. Blank before.
  void SetSource(const Form& form, const GameState& state);
  const Form* Source() const { return form_; }
  const GameState* State() const { return state_; }

  void UpdateCell(int cell);
  void UpdateCaptions();
  // Call it when anything has changed that decides what a click does.
  void UpdateTarget();

  void SetCageColours(const CageColours& colours);
  // Whether pointing at a digit or a mark, or focusing a digit, rings all of its kind.
  void RingSameDigits(bool on);
  // Rings that digit wherever the player points.
  void RingDigit(std::optional<int> digit);

  BoardGeometry Geometry() const;
  // Where the cell lies, in the widget's own coordinates.
  QRectF CellRect(int cell) const;

  // The focus ring flashes twice: what was asked for was refused.
  void Refuse();
  // A game that is over has a frame of its own round the board.
  void ShowFinished(bool finished);

  int FocusedCell() const { return focusedCell_; }
  void FocusCell(int cell);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A mouse button released over the cell, wherever it was pressed, or a key that stands for it;
  // (x, y) in units from the cell's corner.
  void CellReleased(int cell, tessel::MouseButton button, double x, double y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  std::optional<CellPoint> PointAt(QPointF position) const;
  QPointF PixelShift() const;
  void UpdateArea(int cell);
  BoardHighlights Highlights() const;
  void SetHoveredCell(std::optional<int> cell);
  void FollowMouse(const QMouseEvent& event);
  std::optional<TargetMark> TargetUnderMouse() const;
  std::optional<int> RingedDigit() const;
  bool MoveFocus(int key);
  bool ActOnKey(const QKeyEvent& event);
  void ReleaseOnMark(int digit, MouseButton button);

  const Form* form_ = nullptr;
  const GameState* state_ = nullptr;
  int focusedCell_ = kCentreCell;
  std::optional<CellPoint> mouse_;  // where it is on the board
  bool leftDown_ = false;
  std::optional<TargetMark> target_;
  CageColours cageColours_ = kCageColours;
  bool ringsSameDigits_ = false;
  std::optional<int> chosenDigit_;
  bool finished_ = false;
  int flashesLeft_ = 0;  // changes between the ring and its flash
  QTimer flashTimer_;
  std::optional<int> hoveredCell_;  // by the mouse, until a key moves the focus
};

}  // namespace tessel
