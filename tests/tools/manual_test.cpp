// Every command and option is named in its manual page and offered by the completion of bash.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>

#include "tests/source_folder.h"
#include "tests/tools/command_line.h"

namespace tessel {
namespace {

std::vector<std::string> Found(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern, std::regex::multiline);
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), regex), end; match != end; ++match) {
    found.push_back((*match)[1]);
  }
  return found;
}

std::vector<std::string> Commands() {
  const std::string help = RunTessel({"--help"}).out;
  return Found(help.substr(help.find("Subcommands:")), "^  ([a-z]+)");
}

std::vector<std::string> OptionsOf(const std::string& command) {
  return Found(RunTessel({command, "--help"}).out, "^  (?:-[a-zA-Z],)?(--[a-z-]+)");
}

// The page as plain text, as far as names of options go.
std::string Page(const std::string& name) {
  std::ifstream file(SourceFolder() + "/docs/man/" + name + ".6");
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  return std::regex_replace(page, std::regex(R"(\\-)"), "-");
}

std::string Completed(const std::string& words) {
  return RunShell("PATH=$(dirname \"$tessel\"):$PATH; source '" + SourceFolder() +
                  "/completion/tessel'; COMP_WORDS=(tessel " + words +
                  " ''); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _tessel tessel '--' ''; "
                  "echo \"${COMPREPLY[*]} \"")
      .out;
}

TEST(Manual, NamesEveryCommand) {
  const std::string page = Page("tessel");
  ASSERT_GE(Commands().size(), 3U);
  for (const std::string& command : Commands()) {
    EXPECT_NE(page.find("tessel-" + command + " (6)"), std::string::npos) << command;
  }
}

TEST(Manual, NamesEveryOption) {
  for (const std::string& command : Commands()) {
    const std::string page = Page("tessel-" + command);
    for (const std::string& option : OptionsOf(command)) {
      EXPECT_NE(page.find(option), std::string::npos) << command << " " << option;
    }
  }
}

TEST(Completion, OffersEveryOption) {
  for (const std::string& command : Commands()) {
    const std::string offered = Completed(command);
    for (const std::string& option : OptionsOf(command)) {
      EXPECT_NE(offered.find(option + " "), std::string::npos) << command << " " << option;
    }
  }
}

}  // namespace
}  // namespace tessel
