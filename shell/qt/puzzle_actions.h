// The entries of the Puzzle menu that bring puzzles in and take them out.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>

#include "shell/puzzle_reading.h"
#include "shell/qt/menu_bar.h"
#include "shell/qt/preferences.h"
#include "shell/tessel_main.h"

namespace tessel {

class PuzzleActions {
 public:
  // All must live as long as the menu bar. `show` shows what has changed; `play` presses Solve.
  PuzzleActions(MenuBar& menu, QWidget& window, Tessel_Main& logic, Preferences& preferences,
                std::function<void()> show, std::function<void()> play);

 private:
  using Source = std::function<tl::expected<formats::ByteSource, std::string>()>;

  void ConnectIncoming();
  void ConnectOutgoing();

  void New();
  void Open();
  void OpenMyPuzzles();
  void Paste();
  void CopyLine(const char* format, const QString& what);
  void CopyPicture();

  // Opens the only puzzle that the source gives, or lists the several.
  void TakeFrom(const Source& source, const QString& where);
  void ChooseFrom(const QString& title, formats::ByteSource source, const QString& where);
  bool OpenChecked(const Puzzle& puzzle);
  void ShowRefused(const Puzzle& puzzle, const std::string& verdict);
  void Refuse(const QString& why);
  void Tell(const QString& outcome);
  Puzzle AtHand() const { return *logic_.PuzzleAtHand(); }

  MenuBar& menu_;
  QWidget& window_;
  Tessel_Main& logic_;
  Preferences& preferences_;  // what was wished of the last new puzzle, and the colours of boards
  std::function<void()> show_;
  std::function<void()> play_;
};

}  // namespace tessel
