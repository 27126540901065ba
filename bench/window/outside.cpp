#include "bench/window/outside.h"

#include <QFile>
#include <QThread>
#include <algorithm>
#include <stdexcept>

#include "bench/wall_time.h"
#include "core/colour.h"
#include "tests/e2e/eventually.h"

namespace tessel::bench {

namespace {

constexpr int kBoardPixels = 10'000;  // the board is far larger, and nothing else has its colour

double NumberAfter(const std::string& text, const std::string& label) {
  return std::stod(text.substr(text.find(label) + label.size()));
}

}  // namespace

OutsideWindow::OutsideWindow(Desktop& desktop, const std::filesystem::path& folder)
    : desktop_(desktop) {
  process_.setStandardErrorFile(QProcess::nullDevice());  // there is no sound server, it complains
  secondsToPainted_ = WallSecondsOf([&] {
    process_.start(QString::fromStdString((folder / "tessel-sudoku").string()), QStringList());
    while (!ShowsBoard()) QThread::msleep(1);
  });
  FindWindow();
}

OutsideWindow::~OutsideWindow() {
  process_.kill();
  process_.waitForFinished();
}

bool OutsideWindow::ShowsBoard() const {
  const QImage picture = desktop_.Screenshot({0, 0, Desktop::kWidth, Desktop::kHeight});
  const QRgb board = qRgb(kBoardColour.red, kBoardColour.green, kBoardColour.blue);
  int pixels = 0;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    pixels += static_cast<int>(std::count(line, line + picture.width(), board));
  }
  return pixels >= kBoardPixels;
}

void OutsideWindow::FindWindow() {
  id_ = desktop_.Xdo({"search", "--sync", "--onlyvisible", "--name", "^Tessel Sudoku"})
            .section('\n', 0, 0);
  const std::string told = desktop_.Run("xwininfo", {"-id", id_}).toStdString();
  const auto number = [&](const char* label) { return static_cast<int>(NumberAfter(told, label)); };
  corner_ = {number("Absolute upper-left X:"), number("Absolute upper-left Y:")};
  twin_.emplace(QSize(number("Width:"), number("Height:")));
}

double OutsideWindow::Memory() const {
  QFile status(QString("/proc/%1/status").arg(process_.processId()));
  if (!status.open(QIODevice::ReadOnly)) throw std::runtime_error("the program has ended");
  return NumberAfter(status.readAll().toStdString(), "VmRSS:") / 1024;
}

void OutsideWindow::Click(const char* button) {
  const QPoint place = corner_ + twin_->AreaOf(button).center();
  desktop_.Xdo({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "1"});
}

double OutsideWindow::Run(const char* button, const std::string& told) {
  Click(button);
  std::string caption;
  const auto tells = [&] {
    caption = desktop_.Xdo({"getwindowname", id_}).toStdString();
    return caption.find(told) != std::string::npos;
  };
  if (!Eventually(tells)) throw std::runtime_error(std::string(button) + " does not end");
  return NumberAfter(caption, told) / 1e3;
}

}  // namespace tessel::bench
