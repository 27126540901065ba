#include "shell/qt/puzzle_actions.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>

#include "shell/puzzle_check.h"
#include "shell/puzzle_export.h"
#include "shell/puzzle_listing.h"
#include "shell/qt/kept_wish.h"
#include "shell/qt/new_puzzle_dialog.h"
#include "shell/qt/puzzle_list_dialog.h"
#include "shell/qt/puzzle_output.h"
#include "shell/qt/screen_fit.h"
#include "shell/qt/small_board.h"
#include "shell/qt/view_actions.h"

namespace tessel {

namespace {

constexpr qsizetype kMaxPastedCharacters = 16'000'000;
constexpr int kRefusedBoardSide = 200;

// Paths are bytes; Qt's own form of them goes back unharmed.
std::string PathOf(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

// The entry's key would take the text out of the hands of a player who has selected some.
bool CopySelectedText() {
  const auto* const label = qobject_cast<QLabel*>(QApplication::focusWidget());
  if (label == nullptr || !label->hasSelectedText()) return false;
  QApplication::clipboard()->setText(label->selectedText());
  return true;
}

}  // namespace

PuzzleActions::PuzzleActions(MenuBar& menu, QWidget& window, Tessel_Main& logic,
                             Preferences& preferences, std::function<void()> show,
                             std::function<void()> play)
    : menu_(menu),
      window_(window),
      logic_(logic),
      preferences_(preferences),
      show_(std::move(show)),
      play_(std::move(play)) {
  ConnectIncoming();
  ConnectOutgoing();
}

void PuzzleActions::ConnectIncoming() {
  menu_.Connect(Entry::kNew, [this] { New(); });
  menu_.Connect(Entry::kOpen, [this] { Open(); });
  menu_.Connect(Entry::kMyPuzzles, [this] { OpenMyPuzzles(); });
  menu_.Connect(Entry::kPaste, [this] { Paste(); });
}

void PuzzleActions::ConnectOutgoing() {
  const auto connect = [this](Entry entry, std::function<void()> act) {
    menu_.Connect(entry, std::move(act), [this] { return logic_.HasPuzzleAtHand(); });
  };
  connect(Entry::kCopy, [this] {
    if (!CopySelectedText()) CopyLine("text", "puzzle");
  });
  connect(Entry::kCopyLink, [this] { CopyLine("sudokupad", "link"); });
  connect(Entry::kCopyPicture, [this] { CopyPicture(); });
  connect(Entry::kExport, [this] { Tell(ExportWithDialog(&window_, {AtHand()})); });
  connect(Entry::kPrint, [this] { Tell(PrintWithDialog(&window_, {AtHand()})); });
  connect(Entry::kExplainWay, [this] { Tell(ExplainWithDialog(&window_, AtHand())); });
}

void PuzzleActions::New() {
  NewPuzzleDialog dialog(KeptWish(preferences_), logic_.DrawSeed(), &window_);
  const bool isMade = dialog.exec() == QDialog::Accepted;
  KeepWish(preferences_, dialog.Wish());
  if (!isMade || !logic_.OpenPuzzle(*dialog.Made())) return;
  show_();
  play_();
}

void PuzzleActions::Open() {
  QFileDialog dialog(&window_, "Tessel Sudoku - Open");
  dialog.setObjectName("OpenDialog");
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.resize(kFileDialogSize);
  FitOnScreen(dialog);
  if (dialog.exec() != QDialog::Accepted) return;
  const QString path = dialog.selectedFiles().value(0);
  TakeFrom([&] { return FileSource(PathOf(path)); }, path);
}

void PuzzleActions::OpenMyPuzzles() {
  const std::string path = logic_.PuzzleFilePath();
  const QString where = QFile::decodeName(QByteArray::fromStdString(path));
  const bool isThere = QFileInfo::exists(where);
  auto source = isThere ? FileSource(path) : TextSource("");
  if (!source) return Refuse(QString::fromStdString(source.error()));
  ChooseFrom("My Puzzles", *std::move(source), where);
}

void PuzzleActions::Paste() {
  const QString text = QApplication::clipboard()->text();
  if (text.trimmed().isEmpty()) return Refuse("The clipboard holds no text.");
  if (text.size() > kMaxPastedCharacters) return Refuse("The clipboard holds too much text.");
  TakeFrom([&] { return TextSource(text.toStdString()); }, "clipboard");
}

void PuzzleActions::TakeFrom(const Source& source, const QString& where) {
  const auto first = source();
  if (!first) return Refuse(QString::fromStdString(first.error()));
  const FirstPuzzles found = ReadFirstPuzzles(*first, where.toStdString());
  if (found.puzzles.size() > 1) {
    auto all = source();
    if (all) ChooseFrom("Choose a Puzzle", *std::move(all), where);
    return;
  }
  const QString fault = QString::fromStdString(found.fault);
  if (found.puzzles.empty()) return Refuse(fault.isEmpty() ? "There is no puzzle." : fault);
  if (OpenChecked(found.puzzles.front())) Tell(fault);
}

void PuzzleActions::ChooseFrom(const QString& title, formats::ByteSource source,
                               const QString& where) {
  PuzzleListDialog dialog(title, std::move(source), where, ChosenColours(preferences_), &window_);
  QObject::connect(&dialog, &PuzzleListDialog::PrintWanted, &dialog,
                   [&] { Tell(PrintWithDialog(&dialog, dialog.Chosen())); });
  QObject::connect(&dialog, &PuzzleListDialog::ExportWanted, &dialog,
                   [&] { Tell(ExportWithDialog(&dialog, dialog.Chosen())); });
  if (dialog.exec() != QDialog::Accepted) return;
  const std::vector<Puzzle> chosen = dialog.Chosen();
  if (!chosen.empty()) OpenChecked(chosen.front());
}

bool PuzzleActions::OpenChecked(const Puzzle& puzzle) {
  const PuzzleCheck check = CheckPuzzle(puzzle);
  if (!check.puzzle) {
    ShowRefused(puzzle, check.verdict);
    return false;
  }
  if (!logic_.OpenPuzzle(*check.puzzle)) return false;
  show_();
  return true;
}

void PuzzleActions::ShowRefused(const Puzzle& puzzle, const std::string& verdict) {
  QMessageBox box(&window_);
  box.setObjectName("RefusedPuzzle");
  box.setWindowTitle("Tessel Sudoku");
  box.setTextFormat(Qt::PlainText);
  box.setText("The puzzle is not opened: it must have one solution.\n\nSolutions: " +
              QString::fromStdString(verdict));
  box.setIconPixmap(SmallBoard({puzzle.givens, {}, puzzle.layout.Cages()},
                               ChosenColours(preferences_), kRefusedBoardSide,
                               window_.devicePixelRatioF()));
  box.exec();
}

void PuzzleActions::CopyLine(const char* format, const QString& what) {
  const formats::Writing line = LineOf(AtHand(), format);
  if (!line) return Refuse(QString::fromStdString(line.error()));
  QApplication::clipboard()->setText(QString::fromStdString(*line));
  Tell("Copied the " + what);
}

void PuzzleActions::CopyPicture() {
  const auto kind = std::ranges::find(ExportKinds(), "png", &ExportKind::name);
  QByteArray bytes;
  const std::vector<Puzzle> puzzles{AtHand()};
  const Export drawn = ExportPuzzles(puzzles, *kind, [&bytes](std::span<const unsigned char> more) {
    bytes.append(reinterpret_cast<const char*>(more.data()), static_cast<qsizetype>(more.size()));
    return true;
  });
  if (!drawn) return Refuse(QString::fromStdString(drawn.error()));
  QApplication::clipboard()->setImage(QImage::fromData(bytes, "PNG"));
  Tell("Copied the picture");
}

void PuzzleActions::Refuse(const QString& why) {
  QMessageBox box(QMessageBox::Information, "Tessel Sudoku", why, QMessageBox::Ok, &window_);
  box.setObjectName("Refused");
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void PuzzleActions::Tell(const QString& outcome) {
  if (outcome.isEmpty()) return;
  logic_.Tell(outcome.toStdString());
  show_();
}

}  // namespace tessel
