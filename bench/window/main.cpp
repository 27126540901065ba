// The real window on a virtual display: how long it takes to come, to answer and to work.
//   window [PUZZLES]
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "bench/engine.h"
#include "bench/wall_time.h"
#include "bench/window/inside.h"
#include "bench/window/outside.h"

namespace tessel::bench {
namespace {

constexpr int kStarts = 15;
constexpr int kClicks = 400;
constexpr int kShows = 5;
constexpr int kStops = 20;

void Install(const std::filesystem::path& folder) {
  const QStringList arguments{"--install", TESSEL_BINARY_DIR, "--prefix",
                              QString::fromStdString(folder.string())};
  QProcess cmake;
  cmake.start(CMAKE_PROGRAM, arguments);
  if (!cmake.waitForFinished() || cmake.exitCode() != 0) {
    throw std::runtime_error("not installed: " + cmake.readAllStandardError().toStdString());
  }
}

void PrintRow(const char* name, const Distribution& values, double scale, const char* toReach) {
  std::printf("%-42s %9.2f %9.2f %9.2f %9.2f   %s\n", name, scale * values.Min(),
              scale * values.Median(), scale * values.Quantile(0.99), scale * values.Max(),
              toReach);
  std::fflush(stdout);
}

Distribution Starts(Desktop& desktop, const std::filesystem::path& folder) {
  std::vector<double> seconds;
  for (int i = 0; i < kStarts; ++i) {
    seconds.push_back(OutsideWindow(desktop, folder).SecondsToPainted());
  }
  return Distribution(std::move(seconds));
}

// The engine conceals the program's own solution.
double EngineSeconds(const std::filesystem::path& folder, std::uint64_t seed) {
  PuzzleRecord record;
  std::ifstream file(folder / "Tessel_Sudoku.sds", std::ios::binary);
  file.seekg(-static_cast<std::streamoff>(sizeof record), std::ios::end);
  file.read(reinterpret_cast<char*>(&record), sizeof record);
  Engine engine;
  engine.Use(Layout::FromCages(record.CageMap).value());
  engine.solution = record.Solution;
  return WallSecondsOf([&] { engine.ConcealSolution(ConcealMode::kSingle, seed); });
}

void PrintConceals(OutsideWindow& window, const std::filesystem::path& folder, int puzzles) {
  std::vector<double> inWindow;
  std::vector<double> engine;
  for (int i = 0; i < puzzles; ++i) {
    window.Run("CommandSaw", "Sawed in ");
    window.Run("CommandGo", "Filled in ");
    inWindow.push_back(window.Run("CommandConceal", "Concealed in "));
    engine.push_back(EngineSeconds(folder, static_cast<std::uint64_t>(i)));
  }
  const Distribution all(std::move(inWindow));
  const Distribution alone(std::move(engine));
  PrintRow("Conceal in the window, ms", all, 1e3, "");
  PrintRow("the engine alone, ms", alone, 1e3, "");
  std::printf("%-42s %9s %9.2f %31s <= 3\n", "ratio of the medians", "",
              all.Median() / alone.Median(), "");
}

struct Shown {
  const char* button;
  const char* name;
  const char* toReach;
};

void PrintShows(InsideWindow& window) {
  constexpr Shown kCommands[] = {{"CommandSaw", "visualised Saw, s", "about 2"},
                                 {"CommandGo", "visualised Fill, s", "2 to 6"},
                                 {"CommandConceal", "visualised Conceal, s", "about 1.5"}};
  std::vector<double> seconds[std::size(kCommands)];
  for (int i = 0; i < kShows; ++i) {
    for (std::size_t command = 0; command < std::size(kCommands); ++command) {
      seconds[command].push_back(window.ShownSeconds(kCommands[command].button));
    }
  }
  for (std::size_t command = 0; command < std::size(kCommands); ++command) {
    PrintRow(kCommands[command].name, Distribution(std::move(seconds[command])), 1,
             kCommands[command].toReach);
  }
}

void PrintStops(InsideWindow& window) {
  std::vector<double> stops;
  for (int i = 0; i < kStops; ++i) {
    if (const auto stop = window.StopSeconds()) stops.push_back(*stop);
  }
  if (stops.empty()) throw std::runtime_error("no Fill was stopped");
  PrintRow("\"Stop\" until the Fill ends, ms", Distribution(std::move(stops)), 1e3, "<= 100");
}

void PrintWindow(int puzzles) {
  Desktop desktop;
  const TemporaryFolder folder;
  Install(folder.Path());
  std::printf("\nThe window under Xvfb, wall time on this machine\n");
  std::printf("%-42s %9s %9s %9s %9s   %s\n", "", "least", "median", "99 %", "most", "to reach");
  PrintRow("start to the first painted window, ms", Starts(desktop, folder.Path()), 1e3, "<= 400");
  {
    OutsideWindow window(desktop, folder.Path());
    PrintConceals(window, folder.Path(), puzzles);
    window.Click("CommandSolve");
    QThread::msleep(500);
    PrintRow("resident memory in solving mode, MB", Distribution({window.Memory()}), 1, "<= 90");
  }
  InsideWindow inside;
  PrintRow("mouse click to painted result, ms", inside.ClicksToPainted(kClicks), 1e3, "<= 16");
  PrintShows(inside);
  PrintStops(inside);
}

}  // namespace
}  // namespace tessel::bench

int main(int argc, char** argv) {
  tessel::bench::PrintWindow(argc > 1 ? std::atoi(argv[1]) : 200);
}
