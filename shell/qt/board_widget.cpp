#include "shell/qt/board_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>
#include <algorithm>

#include "shell/board_clicks.h"
#include "shell/qt/board_accessible.h"

namespace tessel {

namespace {

constexpr int kMinBoard = 240;
constexpr int kDefaultBoard = 560;
constexpr int kFlashes = 2;
constexpr std::chrono::milliseconds kFlashTime{60};

std::optional<MouseButton> ButtonOf(Qt::MouseButton pressed) {
  if (pressed == Qt::LeftButton) return MouseButton::kLeft;
  if (pressed == Qt::RightButton) return MouseButton::kRight;
  if (pressed == Qt::MiddleButton) return MouseButton::kMiddle;
  return std::nullopt;
}

}  // namespace

BoardWidget::BoardWidget(QWidget* parent) : QWidget(parent) {
  BoardAccessible::Install();  // before anything that lets Qt ask for the interface
  setObjectName("Board");
  setAccessibleName(tr("Board"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  connect(&flashTimer_, &QTimer::timeout, this, [this] {
    if (--flashesLeft_ <= 0) flashTimer_.stop();
    UpdateArea(focusedCell_);
  });
}

BoardWidget::~BoardWidget() = default;

QSize BoardWidget::sizeHint() const {
  return {kDefaultBoard, kDefaultBoard};
}

QSize BoardWidget::minimumSizeHint() const {
  return {kMinBoard, kMinBoard};
}

void BoardWidget::SetSource(const Form& form, const GameState& state) {
  form_ = &form;
  state_ = &state;
  update();
}

BoardGeometry BoardWidget::Geometry() const {
  const double scale = devicePixelRatioF();
  return {QSize(qFloor(width() * scale), qFloor(height() * scale)), scale,
          logicalDpiY() * scale / 72.0};
}

// At fractional scales the widget's corner may lie inside a device pixel; the board starts at the
// next whole one.
QPointF BoardWidget::PixelShift() const {
  const QPointF corner = QPointF(mapTo(window(), QPoint(0, 0))) * devicePixelRatioF();
  return {qCeil(corner.x()) - corner.x(), qCeil(corner.y()) - corner.y()};
}

QRectF BoardWidget::CellRect(int cell) const {
  const QRectF place = QRectF(Geometry().CellRect(cell)).translated(PixelShift());
  const double scale = devicePixelRatioF();
  return {place.topLeft() / scale, place.size() / scale};
}

std::optional<CellPoint> BoardWidget::PointAt(QPointF position) const {
  return Geometry().At(position * devicePixelRatioF() - PixelShift());
}

void BoardWidget::UpdateCell(int cell) {
  UpdateArea(cell);
  BoardAccessible::NotifyCell(*this, cell);
}

void BoardWidget::UpdateArea(int cell) {
  const int border = qCeil(Geometry().BorderWidth() / devicePixelRatioF());
  update(CellRect(cell).toAlignedRect().adjusted(-border, -border, border, border));
}

void BoardWidget::UpdateCaptions() {
  update();
}

void BoardWidget::paintEvent(QPaintEvent* event) {
  if (form_ == nullptr) return;
  QPainter painter(this);
  const double scale = devicePixelRatioF();
  const QPointF corner = painter.deviceTransform().map(QPointF(0, 0));
  painter.translate((qCeil(corner.x()) - corner.x()) / scale,
                    (qCeil(corner.y()) - corner.y()) / scale);
  painter.scale(1 / scale, 1 / scale);
  QRegion region;
  for (const QRect& part : event->region()) {
    region += QRectF(QPointF(part.topLeft()) * scale, QSizeF(part.size()) * scale).toAlignedRect();
  }
  BoardHighlights highlights = Highlights();
  const BoardGeometry geometry = Geometry();
  BoardPainter board(*form_, *state_, geometry, font());
  board.SetCageColours(cageColours_);
  board.Paint(painter, region, highlights);
}

BoardHighlights BoardWidget::Highlights() const {
  BoardHighlights highlights{.target = target_, .digit = RingedDigit()};
  if (hasFocus()) highlights.active = highlights.focused = focusedCell_;
  if (hoveredCell_) highlights.active = hoveredCell_;
  highlights.refused = flashesLeft_ % 2 == 1;
  if (finished_) highlights.frame = palette().color(QPalette::Highlight);
  return highlights;
}

void BoardWidget::Refuse() {
  flashesLeft_ = 2 * kFlashes - 1;
  flashTimer_.start(kFlashTime);
  UpdateArea(focusedCell_);
}

void BoardWidget::ShowFinished(bool finished) {
  if (finished == finished_) return;
  finished_ = finished;
  update();
}

void BoardWidget::mousePressEvent(QMouseEvent* event) {
  FollowMouse(*event);
  if (!ButtonOf(event->button())) return;
  if (const auto point = PointAt(event->position())) FocusCell(point->cell);
}

// The place of the release alone says which cell is meant, and which digit. Letting go beside the
// board takes the press back.
void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
  FollowMouse(*event);
  const auto button = ButtonOf(event->button());
  const auto point = PointAt(event->position());
  if (!button || !point) return;
  FocusCell(point->cell);
  emit CellReleased(point->cell, *button, point->x, point->y);
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
  FollowMouse(*event);
  SetHoveredCell(mouse_ ? std::optional(mouse_->cell) : std::nullopt);
}

void BoardWidget::leaveEvent(QEvent*) {
  SetHoveredCell(std::nullopt);
  mouse_.reset();
  UpdateTarget();
}

void BoardWidget::FollowMouse(const QMouseEvent& event) {
  const auto ringed = RingedDigit();
  mouse_ = PointAt(event.position());
  if (RingedDigit() != ringed) update();
  leftDown_ = event.buttons().testFlag(Qt::LeftButton);
  UpdateTarget();
}

std::optional<TargetMark> BoardWidget::TargetUnderMouse() const {
  if (!mouse_ || form_ == nullptr) return std::nullopt;
  const CellPosition at{mouse_->x, mouse_->y};
  if (!MoveOf(*form_, *state_, mouse_->cell, MouseButton::kLeft, at)) return std::nullopt;
  return TargetMark{mouse_->cell, DigitAt(at).value(), leftDown_};
}

void BoardWidget::UpdateTarget() {
  const auto target = TargetUnderMouse();
  if (target == target_) return;
  for (const auto& changed : {target_, target}) {
    if (changed) update(CellRect(changed->cell).toAlignedRect());
  }
  target_ = target;
  target_ ? setCursor(Qt::PointingHandCursor) : unsetCursor();
}

void BoardWidget::SetCageColours(const CageColours& colours) {
  cageColours_ = colours;
  update();
}

void BoardWidget::RingSameDigits(bool on) {
  ringsSameDigits_ = on;
  update();
}

void BoardWidget::RingDigit(std::optional<int> digit) {
  chosenDigit_ = digit;
  update();
}

std::optional<int> BoardWidget::RingedDigit() const {
  if (chosenDigit_ || !ringsSameDigits_ || form_ == nullptr) return chosenDigit_;
  const std::optional<int> cell = hoveredCell_ || !hasFocus() ? hoveredCell_ : focusedCell_;
  if (!cell) return std::nullopt;
  if (const int digit = form_->Cell(*cell).text; digit != 0) return digit;
  if (!hoveredCell_ || !mouse_) return std::nullopt;
  const std::optional<int> mark = DigitAt({mouse_->x, mouse_->y});
  return mark && IsMarkShown(*form_, *cell, *mark) ? mark : std::nullopt;
}

void BoardWidget::focusInEvent(QFocusEvent*) {
  update();
  BoardAccessible::NotifyFocus(*this);
}

void BoardWidget::focusOutEvent(QFocusEvent*) {
  update();
}

void BoardWidget::SetHoveredCell(std::optional<int> cell) {
  if (cell == hoveredCell_) return;
  hoveredCell_ = cell;
  update();
}

void BoardWidget::FocusCell(int cell) {
  if (cell == focusedCell_) return;
  focusedCell_ = cell;
  update();
  if (hasFocus()) BoardAccessible::NotifyFocus(*this);
}

}  // namespace tessel
