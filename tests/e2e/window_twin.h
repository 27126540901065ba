// A window of the same program in this process, never shown: it tells where everything lies in the
// real one, and how it must look.
#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <optional>
#include <string>

#include "shell/qt/menu_bar.h"
#include "shell/qt/tessel_window.h"
#include "tests/e2e/expected_board.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_sound_player.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel {

class WindowTwin {
 public:
  explicit WindowTwin(QSize size);

  void Resize(QSize size);
  QSize Size() const { return window_.size(); }

  // Places in the window.
  QRect AreaOf(const char* control) const;
  QRect AreaOfBoard() const { return AreaOf("Board"); }
  QPoint MarkPlace(int cell, int digit) const;
  // The title of the entry's menu in the bar; the entry in the open menu, which may lie outside of
  // the window.
  QPoint MenuTitlePlace(Entry entry) const;
  QRect EntryArea(Entry entry) const;
  // The control's shortcut as its tooltip tells it, "Alt+S".
  QString ShortcutOf(const char* control) const;

  // The board as it must look.
  QImage Board(const ExpectedBoard& board, const BoardHighlights& highlights,
               const CageColours& colours = kCageColours) const;
  QImage Button(const char* button, const char* caption, bool enabled,
                Accent accent = Accent::kNone);
  // The button of a command that runs.
  QImage RunningButton(tessel::Button button, const char* caption);
  QImage Text(const char* label, const std::string& text);
  // As far as the text reaches.
  QImage LeftText(const char* label, const std::string& text);

 private:
  BoardWidget& BoardOf() const;
  template <typename Widget>
  Widget& Find(const char* control) const;

  TemporaryFolder folder_;
  FakeClock clock_;
  FakeSoundPlayer player_;
  SeededRandom random_;
  TesselWindow window_;
  Tessel_Main logic_;
};

}  // namespace tessel
