// The pages of the menu Help.
#include <gtest/gtest.h>

#include <QAction>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <algorithm>

#include "core/version.h"
#include "hints/ladder.h"
#include "shell/qt/example_board.h"
#include "shell/qt/page_dialog.h"
#include "shell/qt/technique_examples.h"
#include "tests/qt/window_program.h"

namespace tessel {
namespace {

QTextBrowser& PageOf(WindowProgram& program, Entry entry, const QString& name) {
  program.Find<MenuBar>("MenuBar")->Of(entry)->trigger();
  auto* const dialog = program.Find<QDialog>((name + "Dialog").toUtf8());
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(dialog->isModal()) << "a running command must go on";
  return *dialog->findChild<QTextBrowser*>(name + "Page");
}

TEST(HelpMenu, OpensEachPageOnce) {
  WindowProgram program;
  for (int round = 0; round < 2; ++round) {
    PageOf(program, Entry::kHelp, "Help");
    PageOf(program, Entry::kTechniques, "Techniques");
    PageOf(program, Entry::kKeys, "Keys");
    PageOf(program, Entry::kAbout, "About");
  }
  EXPECT_EQ(program.window.findChildren<QDialog*>().size(), 4);
}

TEST(HelpMenu, EscapeClosesAPage) {
  WindowProgram program;
  QTextBrowser& page = PageOf(program, Entry::kAbout, "About");
  QTest::keyClick(&page, Qt::Key_Escape);
  EXPECT_FALSE(page.isVisible());
}

TEST(HelpMenu, KeysOfEveryControlAndEntryAreListed) {
  WindowProgram program;
  const QString page = PageOf(program, Entry::kKeys, "Keys").toPlainText();
  for (const ButtonTraits& traits : kButtonTable) EXPECT_TRUE(page.contains(traits.keys));
  for (const CheckBoxTraits& traits : kCheckBoxTable) EXPECT_TRUE(page.contains(traits.keys));
  for (const EntryTraits& traits : kEntryTable) {
    if (!program.Find<MenuBar>("MenuBar")->Of(traits.entry)->isVisible()) continue;
    for (const QKeySequence& keys : QKeySequence::listFromString(traits.keys)) {
      EXPECT_TRUE(page.contains(keys.toString(QKeySequence::NativeText))) << traits.text;
    }
  }
}

TEST(HelpMenu, AboutTellsVersionLicenceAndWherePuzzlesAre) {
  WindowProgram program;
  const QString page = PageOf(program, Entry::kAbout, "About").toPlainText();
  EXPECT_TRUE(page.contains(QString("Version ") + Version()));
  EXPECT_TRUE(page.contains("MIT"));
  EXPECT_TRUE(page.contains(QString::fromStdString(program.folder.PuzzleFile().string())));
}

TEST(HelpMenu, TechniquesShowAPictureAndTheWordsOfEachHint) {
  WindowProgram program;
  QTextBrowser& page = PageOf(program, Entry::kTechniques, "Techniques");
  const QString text = page.toPlainText();
  for (std::size_t i = 0; i < TechniqueExamples().size(); ++i) {
    const TechniqueExample& example = TechniqueExamples()[i];
    const Layout layout = example.Cages();
    const Grid digits = example.Digits();
    const MaskBoard marks = example.Marks();
    const ExampleBoard board(*example.technique, {layout, digits, marks});
    EXPECT_TRUE(text.contains(QString::fromStdString(board.Sentence()))) << example.title;
    const auto picture =
        page.document()
            ->resource(QTextDocument::ImageResource, QUrl(QString("technique:%1").arg(i)))
            .value<QImage>();
    EXPECT_GE(picture.width(), 300) << example.title;
  }
}

// The hint button gives each example's hint and no easier one.
TEST(TechniqueExample, IsTheFirstOfTheLadder) {
  for (const TechniqueExample& example : TechniqueExamples()) {
    const Layout layout = example.Cages();
    const Grid digits = example.Digits();
    const MaskBoard marks = example.Marks();
    for (const Technique* technique : kLadder) {
      const bool found = FirstHint(*technique, {layout, digits, marks}).has_value();
      EXPECT_EQ(found, technique == example.technique) << example.title;
      if (technique == example.technique) break;
    }
  }
}

TEST(TechniqueExample, EveryTechniqueHasOne) {
  for (const Technique* technique : kLadder) {
    if (technique == &kNakedQuint) continue;  // no board has one
    EXPECT_EQ(std::ranges::count(TechniqueExamples(), technique, &TechniqueExample::technique), 1)
        << technique->name;
  }
}

}  // namespace
}  // namespace tessel
