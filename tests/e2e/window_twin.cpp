#include "tests/e2e/window_twin.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <stdexcept>

namespace tessel {
namespace {

QImage Plain(const QPixmap& pixmap) {
  return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
}

bool IsFullBoardOfAGame(const Form& form) {
  for (int cell = 0; cell < kCellCount; ++cell) {
    if (form.Cell(cell).text == 0) return false;
  }
  return form.SolveButtonsVisible();
}

}  // namespace

WindowTwin::WindowTwin(QSize size)
    : logic_(window_, player_, clock_, random_, folder_.Path().string()) {
  window_.setAttribute(Qt::WA_DontShowOnScreen);
  window_.Attach(logic_);
  logic_.Form_Load();
  // The frame of the solving mode has its place even while it is hidden; its parts get theirs once
  // it is shown.
  Find<QWidget>("SolveButtons").show();
  Resize(size);
  Find<MenuBar>("MenuBar").Update();
  Find<MenuBar>("MenuBar").Of(Entry::kDigitBar)->trigger();
}

void WindowTwin::Resize(QSize size) {
  window_.resize(size);
  QCoreApplication::processEvents();
}

template <typename Widget>
Widget& WindowTwin::Find(const char* control) const {
  auto* const found = window_.findChild<Widget*>(control);
  if (found == nullptr) throw std::runtime_error(std::string("no control named ") + control);
  return *found;
}

BoardWidget& WindowTwin::BoardOf() const {
  return Find<BoardWidget>("Board");
}

QRect WindowTwin::AreaOf(const char* control) const {
  const auto& widget = Find<QWidget>(control);
  return {widget.mapTo(&window_, QPoint(0, 0)), widget.size()};
}

QPoint WindowTwin::MarkPlace(int cell, int digit) const {
  const QRect mark = BoardOf().Geometry().MarkRect(cell, digit);
  return AreaOfBoard().topLeft() + mark.center();
}

QPoint WindowTwin::MenuTitlePlace(Entry entry) const {
  const auto& bar = Find<MenuBar>("MenuBar");
  QAction* const title = bar.actions()[static_cast<int>(TraitsOf(entry).menu)];
  return AreaOf("MenuBar").topLeft() + bar.actionGeometry(title).center();
}

QRect WindowTwin::EntryArea(Entry entry) const {
  const auto& bar = Find<MenuBar>("MenuBar");
  QAction* const title = bar.actions()[static_cast<int>(TraitsOf(entry).menu)];
  const QPoint corner = AreaOf("MenuBar").topLeft() + bar.actionGeometry(title).bottomLeft();
  QMenu& menu = *title->menu();
  menu.ensurePolished();
  menu.resize(menu.sizeHint());
  return menu.actionGeometry(bar.Of(entry)).translated(corner + QPoint(0, 1));
}

QString WindowTwin::ShortcutOf(const char* control) const {
  return Find<QWidget>(control).whatsThis().section('\n', -1);
}

QImage WindowTwin::Board(const ExpectedBoard& board, const BoardHighlights& highlights,
                         const CageColours& colours) const {
  QImage image(BoardOf().size(), QImage::Format_RGB32);
  image.fill(window_.palette().color(QPalette::Window));
  QPainter painter(&image);
  const BoardGeometry geometry = BoardOf().Geometry();
  BoardPainter painted(board.Display(), board.State(), geometry, BoardOf().font());
  painted.SetCageColours(colours);
  BoardHighlights shown = highlights;
  if (IsFullBoardOfAGame(board.Display())) {
    shown.frame = BoardOf().palette().color(QPalette::Highlight);
  }
  painted.Paint(painter, image.rect(), shown);
  return image;
}

QImage WindowTwin::Button(const char* button, const char* caption, bool enabled, Accent accent) {
  auto& widget = Find<QPushButton>(button);
  widget.setPalette(AccentPalette(accent, window_.palette()));
  widget.setText(caption);
  widget.setEnabled(enabled);
  return Plain(widget.grab());
}

QImage WindowTwin::RunningButton(tessel::Button button, const char* caption) {
  auto& panel = *window_.findChild<ControlPanel*>();
  RecordingView view;
  Form form(view);
  form.SetButtonCaption(button, caption);
  form.ShowSolveButtons(true);
  form.SetRunning(button);
  panel.Show(form);
  const QImage picture = Plain(panel.Of(button)->grab());
  form.SetRunning(std::nullopt);
  panel.Show(form);
  return picture;
}

QImage WindowTwin::LeftText(const char* label, const std::string& text) {
  const int width =
      Find<QLabel>(label).fontMetrics().horizontalAdvance(QString::fromStdString(text));
  const QImage whole = Text(label, text);
  return whole.copy(0, 0, width, whole.height());
}

// Put back at once, before the layout hears of it: no text may move anything else in the window.
QImage WindowTwin::Text(const char* label, const std::string& text) {
  auto& widget = Find<QLabel>(label);
  const QString before = widget.text();
  widget.setText(QString::fromStdString(text));
  const QImage picture = Plain(widget.grab());
  widget.setText(before);
  return picture;
}

}  // namespace tessel
