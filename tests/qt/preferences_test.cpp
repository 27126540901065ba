#include "shell/qt/preferences.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileDialog>

#include "shell/qt/kept_wish.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel {
namespace {

class PreferencesFile : public testing::Test {
 protected:
  QString Path() const {
    return QString::fromStdString((folder_.Path() / "config/window.ini").string());
  }
  void Write(const QByteArray& bytes) {
    QDir().mkpath(QString::fromStdString((folder_.Path() / "config").string()));
    QFile file(Path());
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(bytes);
  }
  // What is offered while nothing else is known.
  void ExpectDefaults() {
    const Preferences preferences(Path());
    EXPECT_TRUE(preferences.Flag("sounds", true));
    EXPECT_FALSE(preferences.Flag("sounds", false));
    EXPECT_EQ(preferences.Choice("level", 6, 3), 3);
  }

  TemporaryFolder folder_;
};

TEST_F(PreferencesFile, IsNotWrittenBeforeSomethingChanges) {
  ExpectDefaults();
  EXPECT_FALSE(QFile::exists(Path()));
  EXPECT_FALSE(QDir(QString::fromStdString((folder_.Path() / "config").string())).exists());
}

TEST_F(PreferencesFile, KeepsWhatWasChosen) {
  {
    Preferences preferences(Path());
    preferences.SetFlag("sounds", false);
    preferences.SetFlag("same digits", true);
    preferences.SetChoice("new/level", 5);
    EXPECT_FALSE(preferences.Flag("sounds", true));
  }
  const Preferences preferences(Path());
  EXPECT_FALSE(preferences.Flag("sounds", true));
  EXPECT_TRUE(preferences.Flag("same digits", false));
  EXPECT_EQ(preferences.Choice("new/level", 6, 0), 5);
  EXPECT_EQ(preferences.Choice("new/level", 5, 1), 1) << "no longer offered";
}

TEST_F(PreferencesFile, OfGarbageIsAsGoodAsNone) {
  QByteArray noise;
  for (int i = 0; i < 5000; ++i) noise += static_cast<char>(i * i * 31 + i * 7);
  for (const QByteArray& garbage :
       {noise, QByteArray(3000, '\0'), QByteArray("sounds=perhaps\nlevel=-1"),
        QByteArray("level=9"), QByteArray("[[[]\n=\n\\x"), QByteArray("level=99999999999999999999"),
        QByteArray("sounds=@Variant(\\0\\0\\0\\x7f)"), QByteArray("sounds=@Invalid()")}) {
    Write(garbage);
    ExpectDefaults();
    Preferences preferences(Path());
    preferences.SetFlag("sounds", true);
    EXPECT_TRUE(preferences.Flag("sounds", false));
    EXPECT_TRUE(Preferences(Path()).Flag("sounds", false)) << "the file is usable again";
  }
}

TEST_F(PreferencesFile, ThatIsNoFileIsLeftAlone) {
  QDir().mkpath(Path());
  ExpectDefaults();
  QDir().rmdir(Path());
  ASSERT_EQ(mkfifo(Path().toLocal8Bit().constData(), 0600), 0);
  ExpectDefaults();
  Preferences preferences(Path());
  preferences.SetFlag("sounds", false);
  EXPECT_FALSE(preferences.Flag("sounds", true)) << "until the end of the program";
}

TEST_F(PreferencesFile, OfImmoderateSizeIsNotRead) {
  Write("sounds=no\n");
  QFile(Path()).resize(1 << 30);
  ExpectDefaults();
}

TEST_F(PreferencesFile, ThatCannotBeWrittenKeepsNothing) {
  Preferences preferences("/proc/no/such/folder/window.ini");
  preferences.SetChoice("level", 2);
  EXPECT_EQ(preferences.Choice("level", 6, 0), 2);
}

TEST_F(PreferencesFile, HasWhatDialogsRememberBesideIt) {
  const QDir config(qEnvironmentVariable("XDG_CONFIG_HOME"));
  for (const char* const file : {"QtProject.conf", "tessel-sudoku/QtProject.conf"}) {
    QFile::remove(config.filePath(file));  // of dialogs of earlier tests
  }
  Preferences::TakeInDialogs();
  {
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.selectFile("puzzle.txt");
  }
  EXPECT_TRUE(config.exists("tessel-sudoku/QtProject.conf"));
  EXPECT_FALSE(config.exists("QtProject.conf"));
}

TEST_F(PreferencesFile, KeepTheWishForTheNextNewPuzzle) {
  const NewPuzzleWish wish{.layout = maker::LayoutKind::kRotational,
                           .symmetricGivens = true,
                           .level = grade::Level::kHard};
  {
    Preferences preferences(Path());
    EXPECT_EQ(KeptWish(preferences), NewPuzzleWish{});
    KeepWish(preferences, {});
    EXPECT_FALSE(QFile::exists(Path())) << "nothing was chosen";
    KeepWish(preferences, wish);
  }
  EXPECT_EQ(KeptWish(Preferences(Path())), wish);
}

TEST_F(PreferencesFile, WishThatCannotBeIsNone) {
  Write("[new]\nlayout=7\nlevel=-1\nsymmetric-givens=perhaps\n");
  EXPECT_EQ(KeptWish(Preferences(Path())), NewPuzzleWish{});
}

}  // namespace
}  // namespace tessel
