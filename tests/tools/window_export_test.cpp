// What the window exports and explains is what the command line writes.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "shell/explaining.h"
#include "shell/puzzle_export.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/formats/example.h"
#include "tests/tools/command_line.h"

namespace tessel {
namespace {

using formats::Example;
using formats::ExampleIn;

class WindowExport : public testing::Test {
 protected:
  WindowExport() { setenv("SOURCE_DATE_EPOCH", "1700000000", 1); }
  ~WindowExport() override { unsetenv("SOURCE_DATE_EPOCH"); }

  // What the command writes into a file of that suffix.
  std::string Commanded(std::vector<std::string> arguments, std::string_view suffix) const {
    const auto path = folder_.Path() / ("a." + std::string(suffix));
    arguments.insert(arguments.end(), {"--force", "-o", path.string()});
    const Outcome outcome = RunTessel(arguments, ExampleIn("sds"));
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  template <typename Write>
  static std::string Written(const Write& write) {
    std::string bytes;
    const auto written = write([&bytes](std::span<const unsigned char> more) {
      bytes.append(more.begin(), more.end());
      return true;
    });
    EXPECT_TRUE(written) << written.error();
    return bytes;
  }

  const std::vector<Puzzle> puzzles_{Example().puzzle};

 private:
  TemporaryFolder folder_;
};

TEST_F(WindowExport, IsWhatConvertAndPrintWrite) {
  for (const ExportKind& kind : ExportKinds()) {
    if (kind.name == "sdm") continue;  // regular cages only
    const std::string name(kind.name);
    const auto arguments = formats::FormatNamed(name) != nullptr
                               ? std::vector<std::string>{"convert", "--to", name}
                               : std::vector<std::string>{"print", "--per-page", "1"};
    const std::string written =
        Written([&](const paper::Sink& sink) { return ExportPuzzles(puzzles_, kind, sink); });
    EXPECT_TRUE(written == Commanded(arguments, kind.suffix)) << name;
  }
}

TEST_F(WindowExport, ExplainsAsTheCommandDoes) {
  for (const ExportKind& kind : ExplanationKinds()) {
    const std::string written =
        Written([&](const paper::Sink& sink) { return WriteExplanation(puzzles_[0], kind, sink); });
    EXPECT_TRUE(written == Commanded({"explain"}, kind.suffix)) << kind.name;
  }
}

TEST_F(WindowExport, TellsWhatAFormatCannotSay) {
  const auto sdm = std::ranges::find(ExportKinds(), "sdm", &ExportKind::name);
  const auto refused = [](std::span<const unsigned char>) { return true; };
  EXPECT_FALSE(ExportPuzzles(puzzles_, *sdm, refused).error().empty());
}

TEST_F(WindowExport, TellsThatTheOutputRefuses) {
  for (const ExportKind& kind : ExportKinds()) {
    const auto written =
        ExportPuzzles(puzzles_, kind, [](std::span<const unsigned char>) { return false; });
    EXPECT_FALSE(written) << kind.name;
  }
}

}  // namespace
}  // namespace tessel
