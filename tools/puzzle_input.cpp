#include "tools/puzzle_input.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>
#include <memory>
#include <set>

#include "tools/failure.h"
#include "tools/stop_signals.h"

namespace tessel::tools {

namespace {

// Of a file that is no file of puzzles, every line would be told.
constexpr int kMaxFaultsTold = 100;

std::string NameOf(const std::string& file) {
  return file == "-" ? "standard input" : file;
}

struct OpenFile {
  explicit OpenFile(int opened) : descriptor(opened) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() {
    if (descriptor > STDERR_FILENO) close(descriptor);
  }

  int descriptor;
};

std::size_t Read(const OpenFile& open, std::span<char> bytes, const std::string& file) {
  while (true) {
    const ssize_t count = read(open.descriptor, bytes.data(), bytes.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) throw SystemFailure("cannot read " + NameOf(file));
    StopIfAsked();
  }
}

std::set<std::string> ReadFormats() {
  std::set<std::string> names;
  for (const formats::Format& format : formats::AllFormats()) {
    if (format.IsRead()) names.emplace(format.name);
  }
  return names;
}

class Visiting {
 public:
  Visiting(const PuzzleInput& input, const PuzzleVisitor& visit) : input_(input), visit_(visit) {}

  bool All() {
    for (const std::string& file : input_.files) VisitOrTell(file);
    if (faults_ > kMaxFaultsTold) {
      std::cerr << "... and " << faults_ - kMaxFaultsTold << " more\n";
    }
    if (puzzles_ + faults_ == 0 && !input_.purpose.empty()) {
      throw Failure("there is nothing to " + input_.purpose);
    }
    return faults_ == 0;
  }

 private:
  void VisitOrTell(const std::string& file) {
    try {
      Visit(file);
    } catch (const Failure& failure) {
      std::cerr << failure.what() << "\n";
      ++faults_;
    }
  }

  void Visit(const std::string& file) {
    formats::PuzzleReader reader(OpenInput(file), Format());
    while (auto next = reader.Next()) {
      StopIfAsked();
      if (!*next) {
        Tell(next->error().Message(NameOf(file)));
        continue;
      }
      formats::DescribedPuzzle& puzzle = (*next)->puzzle;
      puzzle.index = puzzles_++;
      visit_(std::move(puzzle), NameOf(file) + ":" + (*next)->place.Text());
    }
  }

  const formats::Format* Format() const {
    if (input_.only != nullptr || input_.from.empty()) return input_.only;
    return formats::FormatNamed(input_.from);
  }

  void Tell(const std::string& message) {
    if (++faults_ <= kMaxFaultsTold) std::cerr << message << "\n";
  }

  const PuzzleInput& input_;
  const PuzzleVisitor& visit_;
  std::uint64_t puzzles_ = 0;
  std::uint64_t faults_ = 0;
};

}  // namespace

void PuzzleInput::Declare(CLI::App& app) {
  app.add_option("FILE", files, "Files of puzzles; - is standard input, as is none");
  app.add_option("--from", from, "The format to read, instead of finding it by looking")
      ->check(CLI::IsMember(ReadFormats()))
      ->type_name("FORMAT");
}

formats::ByteSource OpenInput(const std::string& file) {
  const int descriptor = file == "-" ? STDIN_FILENO : open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) throw SystemFailure("cannot read " + file);
  const auto open = std::make_shared<OpenFile>(descriptor);
  return [open, file](std::span<char> bytes) { return Read(*open, bytes, file); };
}

bool ForEachPuzzle(const PuzzleInput& input, const PuzzleVisitor& visit) {
  return Visiting(input, visit).All();
}

}  // namespace tessel::tools
