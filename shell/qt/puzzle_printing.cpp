// Printing, the one part of Qt that knows printers.
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>

#include "paper/booklet_pictures.h"
#include "shell/qt/background_work.h"
#include "shell/qt/puzzle_output.h"

namespace tessel {

namespace {

// Fine enough for digits and lines; a page takes 35 MB meanwhile.
constexpr double kPixelsPerInch = 300;

paper::Size PageOf(const QPrinter& printer) {
  const QSizeF size = printer.pageLayout().fullRect(QPageLayout::Point).size();
  return {size.width(), size.height()};
}

// The very file that an export writes, on the chosen paper.
Export PrintToPdf(const QString& path, std::span<const paper::BookletPuzzle> puzzles,
                  const paper::BookletOptions& options, const std::atomic<bool>& cancelled) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return tl::unexpected(file.errorString().toStdString());
  const auto pages =
      paper::WriteBooklet(puzzles, options, [&](std::span<const unsigned char> bytes) {
        const auto size = static_cast<qint64>(bytes.size());
        return !cancelled && file.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
      });
  if (!pages) return tl::unexpected(pages.error());
  if (!file.commit()) return tl::unexpected(file.errorString().toStdString());
  return {};
}

Export PrintPages(QPrinter& printer, std::span<const paper::BookletPuzzle> puzzles,
                  const paper::BookletOptions& options, const std::atomic<bool>& cancelled) {
  printer.setFullPage(true);
  QPainter painter;
  if (!painter.begin(&printer)) {
    return tl::unexpected<std::string>("the printer does not take the pages");
  }
  bool isFirst = true;
  const auto pages =
      paper::DrawBooklet(puzzles, options, kPixelsPerInch, [&](const paper::PagePixels& page) {
        if (!std::exchange(isFirst, false) && !printer.newPage()) return false;
        const QImage image(page.bytes, page.width, page.height, page.stride, QImage::Format_RGB32);
        painter.drawImage(printer.pageLayout().fullRectPixels(printer.resolution()), image);
        return !cancelled;
      });
  if (cancelled) printer.abort();
  return pages.map([](int) {});
}

}  // namespace

Outcome PrintWithDialog(QWidget* window, const std::vector<Puzzle>& puzzles) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, window);
  dialog.setObjectName("PrintDialog");
  dialog.setWindowTitle("Tessel Sudoku - Print");
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return {};
  const auto options = BookletFor(puzzles.size(), PageOf(printer));
  if (!options) return QString::fromStdString(options.error());
  const bool toFile = printer.outputFormat() == QPrinter::PdfFormat;
  const std::vector<paper::BookletPuzzle> booklet = BookletPuzzles(puzzles);
  bool calledOff = false;
  const Export printed =
      RunInBackground(window, "Printing…", [&](const std::atomic<bool>& cancelled) {
        Export result = toFile ? PrintToPdf(printer.outputFileName(), booklet, *options, cancelled)
                               : PrintPages(printer, booklet, *options, cancelled);
        calledOff = cancelled;
        return result;
      });
  if (calledOff) return {};
  if (!printed) return "Could not print: " + QString::fromStdString(printed.error());
  return toFile ? "Printed to " + printer.outputFileName() : QString("Sent to the printer");
}

}  // namespace tessel
