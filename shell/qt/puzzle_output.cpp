#include "shell/qt/puzzle_output.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <functional>

#include "shell/explaining.h"
#include "shell/qt/background_work.h"
#include "shell/qt/screen_fit.h"

namespace tessel {

namespace {

using Writer = std::function<Export(const ExportKind& kind, const paper::Sink& sink)>;

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// "pdf: pages to print, with solutions (*.pdf)"
QString FilterOf(const ExportKind& kind) {
  return QString("%1: %2 (*.%3)")
      .arg(Text(kind.name), Text(kind.summary).remove('('), Text(kind.suffix));
}

struct Choice {
  QString path;
  ExportKind kind;
};

class SaveDialog {
 public:
  SaveDialog(QWidget* window, const QString& title, std::vector<ExportKind> kinds)
      : kinds_(std::move(kinds)), dialog_(window, title) {
    dialog_.setObjectName("SaveDialog");
    dialog_.setAcceptMode(QFileDialog::AcceptSave);
    dialog_.setOption(QFileDialog::DontUseNativeDialog);
    QStringList filters;
    for (const ExportKind& kind : kinds_) filters << FilterOf(kind);
    dialog_.setNameFilters(filters);
    const auto useSuffix = [this] { dialog_.setDefaultSuffix(Text(Kind().suffix)); };
    QObject::connect(&dialog_, &QFileDialog::filterSelected, useSuffix);
    useSuffix();
    dialog_.selectFile("puzzle");
    dialog_.resize(kFileDialogSize);
    FitOnScreen(dialog_);
  }

  std::optional<Choice> Ask() {
    if (dialog_.exec() != QDialog::Accepted) return std::nullopt;
    const QString path = dialog_.selectedFiles().value(0);
    return Choice{path, KindFor(QFileInfo(path).suffix())};
  }

 private:
  const ExportKind& Kind() const {
    const auto at = dialog_.nameFilters().indexOf(dialog_.selectedNameFilter());
    return kinds_[static_cast<std::size_t>(std::max<qsizetype>(at, 0))];
  }
  // The chosen kind, unless the name that was typed says another.
  const ExportKind& KindFor(const QString& suffix) const {
    if (Text(Kind().suffix) == suffix) return Kind();
    for (const ExportKind& kind : kinds_) {
      if (Text(kind.suffix) == suffix) return kind;
    }
    return Kind();
  }

  std::vector<ExportKind> kinds_;
  QFileDialog dialog_;
};

Export WriteFile(const Choice& choice, const Writer& write, const std::atomic<bool>& cancelled) {
  QSaveFile file(choice.path);
  if (!file.open(QIODevice::WriteOnly)) return tl::unexpected(file.errorString().toStdString());
  const auto written = write(choice.kind, [&](std::span<const unsigned char> bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    return !cancelled && file.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
  });
  if (!written) return written;
  if (!file.commit()) return tl::unexpected(file.errorString().toStdString());
  return {};
}

Outcome Save(QWidget* window, const QString& done, const Choice& choice, const Writer& write) {
  bool calledOff = false;
  const Export written = RunInBackground(window, "Writing " + choice.path + "…",
                                         [&](const std::atomic<bool>& cancelled) {
                                           Export result = WriteFile(choice, write, cancelled);
                                           calledOff = cancelled;
                                           return result;
                                         });
  if (written) return done + " to " + choice.path;
  if (calledOff) return {};
  return "Could not write " + choice.path + ": " + Text(written.error());
}

std::vector<ExportKind> KindsFor(std::size_t puzzles) {
  std::vector<ExportKind> kinds = ExportKinds();
  if (puzzles > 1) std::erase_if(kinds, std::mem_fn(&ExportKind::onePuzzleAFile));
  return kinds;
}

}  // namespace

Outcome ExportWithDialog(QWidget* window, const std::vector<Puzzle>& puzzles) {
  const auto choice = SaveDialog(window, "Tessel Sudoku - Export", KindsFor(puzzles.size())).Ask();
  if (!choice) return {};
  const QString done = puzzles.size() == 1 ? QString("Exported")
                                           : QString("Exported %1 puzzles").arg(puzzles.size());
  return Save(window, done, *choice, [&](const ExportKind& kind, const paper::Sink& sink) {
    return ExportPuzzles(puzzles, kind, sink);
  });
}

Outcome ExplainWithDialog(QWidget* window, const Puzzle& puzzle) {
  const auto choice = SaveDialog(window, "Tessel Sudoku - Explain Way", ExplanationKinds()).Ask();
  if (!choice) return {};
  return Save(window, "Explained the way", *choice,
              [&](const ExportKind& kind, const paper::Sink& sink) {
                return WriteExplanation(puzzle, kind, sink);
              });
}

}  // namespace tessel
