#include "explain/page.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "explain/story.h"
#include "tests/fakes/temporary_folder.h"
#include "tests/grade/made_puzzles.h"

namespace tessel::explain {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Page(const std::string& title) {
  const std::vector<paper::Story> stories{
      StoryOf(Explain(grade::PuzzleMaker().MakeAnyKind(4)), title)};
  return PageOf(stories).value();
}

// Names of the language of the pictures are no references.
TEST(Page, RefersToNothingOutside) {
  const std::string page = Page("A puzzle");
  for (std::size_t at = 0; (at = page.find("//", at)) != std::string::npos; ++at) {
    EXPECT_EQ(page.substr(at, 13), "//www.w3.org/") << page.substr(at, 80);
  }
  for (std::size_t at = 0; (at = page.find("url(", at)) != std::string::npos; ++at) {
    EXPECT_EQ(page.substr(at, 5), "url(#") << page.substr(at, 80);
  }
  EXPECT_THAT(page, HasSubstr("default-src 'none'"));
}

// The names behind each `before`, as often as they stand there.
std::multiset<std::string> NamesBehind(const std::string& before, const std::string& page) {
  std::multiset<std::string> names;
  for (std::size_t at = 0; (at = page.find(before, at)) != std::string::npos;) {
    at += before.size();
    names.insert(page.substr(at, page.find_first_of("\")", at) - at));
  }
  return names;
}

TEST(Page, EveryNameOfItsPicturesIsGivenOnce) {
  const std::string page = Page("A puzzle");
  const auto given = NamesBehind(" id=\"", page);
  EXPECT_EQ(std::set(given.begin(), given.end()).size(), given.size());
  auto asked = NamesBehind("href=\"#", page);
  asked.merge(NamesBehind("url(#", page));
  EXPECT_GT(asked.size(), 1000U);
  for (const std::string& name : asked) EXPECT_TRUE(given.contains(name)) << name;
}

TEST(Page, HasASectionForEachPanel) {
  const Explanation explanation = Explain(grade::PuzzleMaker().MakeAnyKind(4));
  const std::string page = Page("A puzzle");
  std::size_t sections = 0;
  for (std::size_t at = 0; (at = page.find("<section", at)) != std::string::npos; ++at) ++sections;
  EXPECT_EQ(sections, explanation.steps.size() + 2);
}

TEST(Page, EscapesTitles) {
  const std::string page = Page("<b>&\"");
  EXPECT_THAT(page, HasSubstr("<title>&lt;b>&amp;&quot;</title>"));
  EXPECT_THAT(page, Not(HasSubstr("<b>")));
}

std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string output;
  std::array<char, 4096> bytes{};
  while (const std::size_t count = fread(bytes.data(), 1, bytes.size(), pipe.get())) {
    output.append(bytes.data(), count);
  }
  return output;
}

// In the real browser: keys lead to the step, and the counter tells which.
TEST(Page, IsWalkedThroughByKeyboard) {
  if (std::system("command -v chromium >/dev/null") != 0) GTEST_SKIP() << "no chromium";
  const TemporaryFolder folder;
  const std::string path = (folder.Path() / "way.html").string();
  std::ofstream(path) << Page("A puzzle") << R"html(<script>
for (const key of ['ArrowRight', ' ', 'ArrowRight', 'ArrowLeft', 'x'])
  dispatchEvent(new KeyboardEvent('keydown', {key}));
const shown = [...document.querySelectorAll('.step')].findIndex((step) =>
  getComputedStyle(step).display !== 'none');
document.body.innerHTML = 'shown ' + shown + ', told ' +
  document.querySelector('nav output').textContent;
</script>)html";
  const std::string dom = OutputOf(
      "HOME=" + folder.Path().string() +
      " timeout 60 chromium --headless --no-sandbox --disable-gpu --user-data-dir=" +
      (folder.Path() / "profile").string() + " --dump-dom file://" + path + " 2>/dev/null");
  EXPECT_THAT(dom, HasSubstr("shown 2, told 3 of "));
}

}  // namespace
}  // namespace tessel::explain
