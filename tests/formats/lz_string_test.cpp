#include "formats/lz_string.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "core/random_stream.h"
#include "tests/fakes/temporary_folder.h"

namespace tessel::formats {
namespace {

constexpr std::size_t kMost = 100'000;

std::u16string Random(RandomStream& random, std::size_t size, std::uint32_t characters) {
  std::u16string text;
  for (std::size_t i = 0; i < size; ++i) text += static_cast<char16_t>(random.Below(characters));
  return text;
}

// What the JavaScript library makes of the same texts.
TEST(LzString, PacksAsOthersDo) {
  EXPECT_EQ(LzCompressed(u""), "Q===");
  EXPECT_EQ(LzCompressed(u"a"), "IZA=");
  EXPECT_EQ(LzCompressed(u"aaaaaaaa"), "IY0o");
  EXPECT_EQ(LzCompressed(u"hello hello hello"), "BYUwNmD2AEoTcpA=");
  // The last bit of these fills a letter, and another one follows.
  EXPECT_EQ(LzCompressed(u"ab"), "IYIyA===");
  EXPECT_EQ(LzCompressed(u"abcde"), "IYIwxgJgpkA=");
  EXPECT_EQ(LzCompressed(u"abcdef"), "IYIwxgJgpgZkA===");
}

TEST(LzString, UnpacksWhatItPacked) {
  RandomStream random(1);
  for (std::size_t size = 0; size < 300; ++size) {
    for (const std::uint32_t characters : {1, 2, 30, 256, 65536}) {
      const std::u16string text = Random(random, size, characters);
      EXPECT_EQ(LzDecompressed(LzCompressed(text), kMost).value(), text);
    }
  }
}

TEST(LzString, TellsThatLettersAreMissing) {
  const std::string whole = LzCompressed(u"hello hello hello");
  for (std::size_t size = 0; size + 2 < whole.size(); ++size) {
    const auto fault = LzDecompressed(whole.substr(0, size), kMost);
    ASSERT_FALSE(fault) << size;
    EXPECT_EQ(fault.error().kind, LzFault::Kind::kCut);
    EXPECT_EQ(fault.error().letter, size);
  }
}

TEST(LzString, TellsALetterThatIsNone) {
  const auto fault = LzDecompressed("BYUw!mD2AEoTcpA=", kMost);
  EXPECT_EQ(fault.error().kind, LzFault::Kind::kLetter);
  EXPECT_EQ(fault.error().letter, 4U);
}

TEST(LzString, StopsUnpackingAtTheBound) {
  std::string bomb = LzCompressed(std::u16string(20'000'000, u'a'));
  EXPECT_LT(bomb.size(), 20'000U);
  EXPECT_EQ(LzDecompressed(bomb, kMost).error().kind, LzFault::Kind::kTooLong);
  EXPECT_EQ(LzDecompressed(bomb, 20'000'000).value().size(), 20'000'000U);
}

// Packs texts here and lets the library of JavaScript unpack them, where it is installed:
// `npm install lz-string` in any folder, and NODE_PATH naming its node_modules.
TEST(LzString, IsUnpackedByTheLibraryOfJavaScript) {
  if (std::system("node -e 'require(\"lz-string\")' >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "no lz-string of npm";
  }
  const TemporaryFolder folder;
  std::ofstream links(folder.Path() / "links.txt");
  RandomStream random(2);
  for (int i = 0; i < 1000; ++i) {
    const std::u16string text = Random(random, random.Below(3000), 90);
    links << LzCompressed(text);
    for (const char16_t character : text) links << ' ' << static_cast<int>(character);
    links << '\n';
  }
  links.close();
  const std::string script =
      "const fs = require('fs'), lz = require('lz-string');"
      "for (const line of fs.readFileSync(process.argv[1], 'utf8').trim().split('\\n')) {"
      "  const [packed, ...codes] = line.split(' ');"
      "  const text = String.fromCharCode(...codes.map(Number));"
      "  if (lz.decompressFromBase64(packed) !== text) process.exit(1);"
      "  if (lz.compressToBase64(text) !== packed) process.exit(2);"
      "}";
  const std::string command =
      "node -e \"" + script + "\" " + (folder.Path() / "links.txt").string();
  EXPECT_EQ(std::system(command.c_str()), 0);
}

}  // namespace
}  // namespace tessel::formats
