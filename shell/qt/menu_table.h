// The entries of the menu bar, and what is fixed about each of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tessel {

enum class Menu : std::uint8_t { kPuzzle, kGame, kView, kHelp };

// Alt with S F C L X H Q R N O M T V U belongs to the window's controls.
inline constexpr std::array kMenuTitles{"&Puzzle", "&Game", "V&iew", "H&elp"};

enum class Entry : std::uint8_t {
  kNew,
  kOpen,
  kMyPuzzles,
  kContinue,
  kCopy,
  kCopyLink,
  kCopyPicture,
  kPaste,
  kExport,
  kPrint,
  kExit,
  kUndo,
  kRedo,
  kRestart,
  kHint,
  kExplainWay,
  kSolution,
  kQuit,
  kSameDigits,
  kDigitBar,
  kSofterColours,
  kSounds,
  kFullScreen,
  kHelp,
  kTechniques,
  kKeys,
  kAbout,
};

// Whose shortcut the keys are. Of two owners of one key neither hears it, so an entry only tells
// the keys of a control that has them.
enum class KeyOwner : std::uint8_t { kEntry, kControl };

struct EntryTraits {
  Entry entry;
  Menu menu;
  bool startsGroup;  // a line above it parts it from the entry before
  const char* text;
  const char* keys = "";  // as Qt writes them, several with "; " between
  KeyOwner owner = KeyOwner::kEntry;
  bool checkable = false;
  bool repeats = false;  // while its key is held
};

// One row for each enumerator, in their order.
inline constexpr std::array<EntryTraits, 27> kEntryTable{{
    {Entry::kNew, Menu::kPuzzle, false, "&New…", "Ctrl+N"},
    {Entry::kOpen, Menu::kPuzzle, false, "&Open…", "Ctrl+O"},
    {Entry::kMyPuzzles, Menu::kPuzzle, false, "&My Puzzles…", "Ctrl+Shift+O"},
    {Entry::kContinue, Menu::kPuzzle, false, "Continue &Last Game"},
    {Entry::kCopy, Menu::kPuzzle, true, "&Copy", "Ctrl+C"},
    {Entry::kCopyLink, Menu::kPuzzle, false, "Copy Lin&k"},
    {Entry::kCopyPicture, Menu::kPuzzle, false, "Copy Pict&ure"},
    {Entry::kPaste, Menu::kPuzzle, false, "&Paste", "Ctrl+V"},
    {Entry::kExport, Menu::kPuzzle, true, "&Export…", "Ctrl+E"},
    {Entry::kPrint, Menu::kPuzzle, false, "P&rint…", "Ctrl+P"},
    {Entry::kExit, Menu::kPuzzle, true, "E&xit", "Alt+X", KeyOwner::kControl},
    {Entry::kUndo, Menu::kGame, false, "&Undo", "Ctrl+Z", KeyOwner::kEntry, false, true},
    {Entry::kRedo, Menu::kGame, false, "Re&do", "Ctrl+Shift+Z; Ctrl+Y", KeyOwner::kEntry, false,
     true},
    {Entry::kRestart, Menu::kGame, true, "&Restart", "Alt+R", KeyOwner::kControl},
    {Entry::kHint, Menu::kGame, false, "&Hint", "Alt+H", KeyOwner::kControl},
    {Entry::kExplainWay, Menu::kGame, false, "&Explain Way…"},
    {Entry::kSolution, Menu::kGame, false, "Solutio&n", "Alt+N", KeyOwner::kControl},
    {Entry::kQuit, Menu::kGame, true, "&Quit", "Alt+Q", KeyOwner::kControl},
    {Entry::kSameDigits, Menu::kView, false, "Same &Digits", "Ctrl+D", KeyOwner::kEntry, true},
    {Entry::kDigitBar, Menu::kView, false, "Digit &Bar", "", KeyOwner::kEntry, true},
    {Entry::kSofterColours, Menu::kView, false, "Softer &Colours", "", KeyOwner::kEntry, true},
    {Entry::kSounds, Menu::kView, false, "S&ounds", "Ctrl+M", KeyOwner::kEntry, true},
    {Entry::kFullScreen, Menu::kView, true, "&Full Screen", "F11", KeyOwner::kEntry, true},
    {Entry::kHelp, Menu::kHelp, false, "&Help", "F1", KeyOwner::kControl},
    {Entry::kTechniques, Menu::kHelp, false, "&Techniques"},
    {Entry::kKeys, Menu::kHelp, false, "&Keys"},
    {Entry::kAbout, Menu::kHelp, true, "&About"},
}};

constexpr std::size_t IndexOf(Menu menu) {
  return static_cast<std::size_t>(menu);
}
constexpr std::size_t IndexOf(Entry entry) {
  return static_cast<std::size_t>(entry);
}
constexpr const EntryTraits& TraitsOf(Entry entry) {
  return kEntryTable[IndexOf(entry)];
}

static_assert([] {
  for (std::size_t i = 0; i < kEntryTable.size(); ++i) {
    if (IndexOf(kEntryTable[i].entry) != i) return false;
  }
  return true;
}());

}  // namespace tessel
