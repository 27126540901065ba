// Texts that the window shows and that more than one place names.
#pragma once

namespace tessel::texts {

inline constexpr char kProgram[] = "Tessel Sudoku";
inline constexpr char kSolver[] = "Tessel Sudoku - Solver";
inline constexpr char kFill[] = "Fill";
inline constexpr char kConceal[] = "Conceal";
inline constexpr char kStop[] = "Stop";
inline constexpr char kHint[] = "Hint";
inline constexpr char kShowMe[] = "Show Me";
inline constexpr char kPressHint[] = "Press [Hint] if you got stuck";
inline constexpr char kNoMoreHints[] = "No more logical hints";
inline constexpr char kGameStaysOpen[] = "Your game stays open; Solve opens the new puzzle";
inline constexpr char kQuitProgram[] = "Do you really want to quit this program?";
inline constexpr char kQuitSolving[] = "Do you really want to quit solving ?";

}  // namespace tessel::texts
