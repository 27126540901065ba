// Where puzzles are kept.
#pragma once

#include <optional>
#include <string>

#include "shell/system_calls.h"

namespace tessel {

// The user's folder for the program's data, "/home/ada/.local/share/tessel-sudoku", by the XDG
// convention. Variables that are no absolute path do not count, as the convention says; nothing
// where none is left.
std::optional<std::string> UserDataFolder(const char* xdgDataHome, const char* home);
// From the environment.
std::optional<std::string> UserDataFolder();

// The folder that puzzles are saved in, with a separator at its end: that of the program where it
// can be written, else the user's; that of the program again where there is no other. A program in
// a system's tree, with its data in ../share, never writes beside itself.
std::string PuzzleFolder(const std::string& programPath,
                         const std::optional<std::string>& userFolder, SystemCalls& system);

// Makes the folder and what is missing above it, for the user alone (mode 0700). What cannot be
// made shows when a file in it is opened.
void MakeFolder(const std::string& folder, SystemCalls& system);

// Where a file that comes with the program lies: `path` beside the program, if it is there, else in
// the ../share/tessel-sudoku of a system's tree.
std::string InstalledFile(const std::string& path);

}  // namespace tessel
