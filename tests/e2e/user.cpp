#include "tests/e2e/user.h"

#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <regex>

#include "tests/e2e/desktop.h"
#include "tests/e2e/entry_keys.h"
#include "tests/e2e/eventually.h"

namespace tessel {
namespace {

QImage Plain(const QPixmap& pixmap) {
  return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
}

// How much two pictures differ: the sum over all pixels and colours.
long Distance(const QImage& one, const QImage& other) {
  long distance = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor a = one.pixelColor(x, y);
      const QColor b = other.pixelColor(x, y);
      distance += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                  std::abs(a.blue() - b.blue());
    }
  }
  return distance;
}

// Keeps both pictures for the reader of a failed test, and tells where.
testing::AssertionResult Differs(const QImage& expected, const QImage& seen) {
  const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
  QString name = QString("%1.%2").arg(test->test_suite_name(), test->name()).replace('/', '.');
  const QDir folder(TESSEL_BINARY_DIR "/pictures");
  folder.mkpath(".");
  name = folder.filePath(name);
  expected.save(name + "-expected.png");
  seen.save(name + "-seen.png");
  return testing::AssertionFailure() << "see " << name.toStdString() << "-{expected,seen}.png";
}

}  // namespace

User::User(const std::filesystem::path& folder, const Launch& launch)
    : program_(folder, launch), twin_(program_.Window().Area().size()) {}

testing::AssertionResult User::ResizesWindow(QSize size) {
  const QSize reached = program_.Window().Resize(size);
  twin_.Resize(reached);
  if (reached == size) return testing::AssertionSuccess();
  return testing::AssertionFailure() << reached.width() << " x " << reached.height();
}

void User::Press(const char* control) const {
  program_.Window().Click(twin_.AreaOf(control).center());
}

void User::Choose(Entry entry) const {
  const QRect place = twin_.EntryArea(entry);
  const QRect area = place.translated(program_.Window().Area().topLeft());
  const QImage before = TheDesktop().Screenshot(area);
  program_.Window().Click(twin_.MenuTitlePlace(entry));
  Eventually([&] { return TheDesktop().Screenshot(area) != before; });
  program_.Window().Click(place.center());
}

void User::ChooseByKeys(Entry entry) const {
  program_.Window().PressKeys(LettersOf(entry));
}

void User::ClickMark(int cell, int digit, MouseKey button) {
  program_.Window().Click(twin_.MarkPlace(cell, digit), button);
  focusedCell_ = cell;
}

void User::PressShortcut(const char* control) const {
  program_.Window().PressKeys({twin_.ShortcutOf(control).toLower()});
}

void User::PressOnCell(int cell, const QString& key) {
  QStringList keys;
  const auto move = [&keys](int distance, const char* back, const char* forth) {
    for (int i = 0; i < std::abs(distance); ++i) keys << (distance < 0 ? back : forth);
  };
  move(RowOf(cell) - RowOf(focusedCell_), "Up", "Down");
  move(ColumnOf(cell) - ColumnOf(focusedCell_), "Left", "Right");
  program_.Window().PressKeys(keys << key);
  focusedCell_ = cell;
}

testing::AssertionResult User::Answers(const char* title, const char* question, bool yes,
                                       By by) const {
  QMessageBox twin(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No);
  twin.setAttribute(Qt::WA_DontShowOnScreen);
  twin.show();
  QCoreApplication::processEvents();
  auto& label = *twin.findChild<QLabel*>("qt_msgbox_label");
  const QImage expected = Plain(label.grab());

  const DesktopWindow asked = program_.Question();
  if (asked.Caption() != title) return testing::AssertionFailure() << asked.Caption();
  QImage seen;
  const auto readsSo = [&] {
    seen = asked.Screenshot().copy(label.geometry());
    return seen == expected;
  };
  if (!Eventually(readsSo)) return Differs(expected, seen);
  if (by == By::kKeyboard) {
    asked.PressKeys({yes ? "alt+y" : "alt+n"});
  } else {
    const auto& button = *twin.button(yes ? QMessageBox::Yes : QMessageBox::No);
    asked.Click(button.mapTo(&twin, button.rect().center()));
  }
  const bool closes = Eventually([&] { return !program_.Asks(); });
  return closes ? testing::AssertionSuccess() : testing::AssertionFailure() << "still asks";
}

testing::AssertionResult User::RunsCommand(const Generation& command) {
  Press(command.button);
  return SeesTime(command.done);
}

testing::AssertionResult User::MakesPuzzle() {
  for (const Generation& command : {kSaw, kFill, kConceal}) {
    if (const auto result = RunsCommand(command); !result) return result;
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult User::SeesTime(const std::string& done) const {
  return SeesCaption("Tessel Sudoku - " + done + R"( in [0-9]+\.[0-9]{2} ms)");
}

testing::AssertionResult User::SeesCaption(const std::string& pattern) const {
  std::string caption;
  const auto fits = [&] {
    caption = program_.Window().Caption();
    return std::regex_match(caption, std::regex(pattern));
  };
  if (Eventually(fits)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the caption is " << caption;
}

testing::AssertionResult User::SeesStage(Stage stage) {
  const std::tuple<const char*, const char*, bool> expected[] = {
      {"CommandSaw", "Saw", true},
      {"CommandGo", "Fill", stage >= Stage::kLayoutMade},
      {"CommandConceal", "Conceal", stage >= Stage::kGridFilled},
      {"CommandSolve", "Solve", stage >= Stage::kPuzzleConcealed},
      {"CommandExit", "Exit", true},
  };
  for (const auto& [button, caption, enabled] : expected) {
    if (const auto result = SeesButton(button, caption, enabled); !result) return result;
  }
  return testing::AssertionSuccess();
}

testing::AssertionResult User::SeesButton(const char* button, const char* caption, bool enabled) {
  if (Eventually([&] { return LooksEnabled(button, caption) == enabled; })) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << button << " does not look as if enabled=" << enabled;
}

bool User::LooksEnabled(const char* button, const char* caption) {
  const QImage seen = LooksAt(twin_.AreaOf(button));
  const long toEnabled =
      std::min(Distance(seen, twin_.Button(button, caption, true)),
               Distance(seen, twin_.Button(button, caption, true, Accent::kNext)));
  return toEnabled < Distance(seen, twin_.Button(button, caption, false));
}

bool User::LooksAsIfFilling() {
  const QImage seen = LooksAt(twin_.AreaOf("CommandGo"));
  const long distance = Distance(seen, twin_.RunningButton(Button::CommandGo, "Stop"));
  return distance < Distance(seen, twin_.RunningButton(Button::CommandGo, "Fill")) &&
         distance < Distance(seen, twin_.Button("CommandGo", "Fill", true)) &&
         distance < Distance(seen, twin_.Button("CommandGo", "Fill", true, Accent::kNext));
}

testing::AssertionResult User::SeesNews(const std::string& text) {
  const QImage expected = twin_.LeftText("Notice", text);
  QImage seen;
  const auto readsSo = [&] {
    seen = LooksAt({twin_.AreaOf("Notice").topLeft(), expected.size()});
    return seen == expected;
  };
  return Eventually(readsSo) ? testing::AssertionSuccess() : Differs(expected, seen);
}

testing::AssertionResult User::SeesText(const char* label, const std::string& text) {
  const QImage expected = twin_.Text(label, text);
  QImage seen;
  const auto readsSo = [&] {
    seen = LooksAt(twin_.AreaOf(label));
    return seen == expected;
  };
  return Eventually(readsSo) ? testing::AssertionSuccess() : Differs(expected, seen);
}

testing::AssertionResult User::SeesSolveButtons(bool visible) const {
  return SeesSomethingIn(twin_.AreaOf("SolveButtons"), visible);
}

testing::AssertionResult User::SeesDigitBar(bool visible) const {
  return SeesSomethingIn(twin_.AreaOf("DigitBar"), visible);
}

testing::AssertionResult User::SeesSomethingIn(const QRect& area, bool visible) const {
  const auto looksSo = [&] {
    const QImage seen = LooksAt(area);
    QImage blank(seen.size(), seen.format());
    blank.fill(seen.pixel(0, 0));
    return (seen != blank) == visible;
  };
  return Eventually(looksSo) ? testing::AssertionSuccess()
                             : testing::AssertionFailure() << "visible=" << !visible;
}

testing::AssertionResult User::SeesBoard(const ExpectedBoard& board) const {
  QImage seen;
  const auto looksSo = [&] {
    seen = LooksAtBoard();
    return Recognises(seen, board);
  };
  return Eventually(looksSo) ? testing::AssertionSuccess()
                             : Differs(twin_.Board(board, Focus()), seen);
}

// The pointer would outline what it points at.
QImage User::LooksAtBoard() const {
  TheDesktop().Xdo(
      {"mousemove", QString::number(Desktop::kWidth - 1), QString::number(Desktop::kHeight - 1)});
  return LooksAt(twin_.AreaOfBoard());
}

bool User::Recognises(const QImage& picture, const ExpectedBoard& board) const {
  return picture == twin_.Board(board, {}) || picture == twin_.Board(board, Focus());
}

BoardHighlights User::Focus() const {
  return {.active = focusedCell_, .focused = focusedCell_};
}

void User::PointAt(int cell, int digit) const {
  program_.Window().PointAt(twin_.MarkPlace(cell, digit));
}

testing::AssertionResult User::SeesTarget(const ExpectedBoard& board, const TargetMark& target) {
  program_.Window().PointAt(twin_.MarkPlace(target.cell, target.digit), target.pressed);
  if (target.pressed) focusedCell_ = target.cell;
  BoardHighlights highlights = Focus();
  highlights.active = target.cell;
  highlights.target = target;
  return SeesHighlights(board, highlights);
}

testing::AssertionResult User::SeesNoTarget(const ExpectedBoard& board, int cell, int digit) {
  program_.Window().PointAt(twin_.MarkPlace(cell, digit));
  BoardHighlights highlights = Focus();
  highlights.active = cell;
  return SeesHighlights(board, highlights);
}

testing::AssertionResult User::SeesHighlights(const ExpectedBoard& board,
                                              const BoardHighlights& highlights,
                                              const CageColours& colours) const {
  return SeesOnBoard(twin_.Board(board, highlights, colours), [] {});
}

testing::AssertionResult User::SeesPointed(const ExpectedBoard& board,
                                           const BoardHighlights& highlights,
                                           const CageColours& colours) const {
  return SeesOnBoard(twin_.Board(board, highlights, colours), [&] {
    PointAt(highlights.active.value(), 1);
    PointAt(highlights.active.value(), 5);
  });
}

testing::AssertionResult User::SeesOnBoard(const QImage& expected,
                                           const std::function<void()>& prepare) const {
  QImage seen;
  const auto looksSo = [&] {
    prepare();
    seen = LooksAt(twin_.AreaOfBoard());
    return seen == expected;
  };
  return Eventually(looksSo) ? testing::AssertionSuccess() : Differs(expected, seen);
}

QImage User::LooksAt(const QRect& area) const {
  return program_.Window().Screenshot().copy(area);
}

}  // namespace tessel
