// Loads and plays on command, so that tests can look at a process with a sound player from outside.
// A line "load PATH" answers the identifier, "play IDENTIFIER" and "hello" answer "done"; the end
// of the input ends the program with status 7.
#include <QCoreApplication>
#include <iostream>
#include <sstream>

#include "shell/qt/qt_sound_player.h"

int main(int argc, char** argv) {
  constexpr int kEndedOrderly = 7;
  tessel::QtSoundPlayer player;
  const QCoreApplication application(argc, argv);
  for (std::string line; std::getline(std::cin, line);) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "load") {
      std::string path;
      words >> path;
      std::cout << player.Load(path) << std::endl;
    } else {
      std::int32_t id = -1;
      if (words >> id) player.Play(id);
      std::cout << "done" << std::endl;
    }
  }
  return kEndedOrderly;
}
