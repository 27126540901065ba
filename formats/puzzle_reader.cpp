#include "formats/puzzle_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "formats/cell_text.h"
#include "formats/columns.h"
#include "formats/sds.h"

namespace tessel::formats {

namespace {

constexpr std::size_t kPieceBytes = std::size_t{1} << 16;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string Beginning(std::string_view line) {
  constexpr std::size_t most = 20;
  std::string shown;
  for (const char character : line.substr(0, most)) {
    if (character < ' ' || character > '~')
      return shown.empty() ? Shown(character) : "'" + shown + "'";
    shown += character;
  }
  return "'" + shown + (line.size() > most ? "...'" : "'");
}

// How files begin that are taken for puzzles by mistake. Told once, instead of for every line.
struct Signature {
  std::string_view bytes;
  const char* name;
  const char* expected = "puzzles, as text in UTF-8 or as .sds";
};
constexpr char kThoseThatAreRead[] = "puzzles in one of the formats that are read";
constexpr std::array kForeign{
    Signature{"\xFF\xFE", "UTF-16"},
    Signature{"\xFE\xFF", "UTF-16"},
    Signature{"\x1F\x8B", "gzip"},
    Signature{"PK\x03\x04", "a zip file"},
    Signature{"%PDF-", "PDF"},
    Signature{"{\"", "JSON Lines, which are only written", kThoseThatAreRead},
    Signature{".---", "a drawing, which is only written", kThoseThatAreRead},
    Signature{"<!DOCTYPE ksudoku>", "a saved game of KSudoku, which is only written",
              kThoseThatAreRead}};

std::optional<Fault> ForeignFault(std::string_view start) {
  const auto begins = [&](const Signature& one) { return start.starts_with(one.bytes); };
  const auto* const found = std::ranges::find_if(kForeign, begins);
  if (found != kForeign.end()) return Fault{0, "", found->expected, found->name};
  if (ColumnsNamed(start.substr(0, start.find_first_of("\r\n")))) {
    return Fault{0, "", kThoseThatAreRead, "CSV, which is only written"};
  }
  return std::nullopt;
}

const Format* FormatLike(std::string_view line) {
  for (const Format& format : AllFormats()) {
    if (format.IsRead() && format.name != kSdsName && format.looksLike(line)) return &format;
  }
  return nullptr;
}

}  // namespace

std::string Place::Text() const {
  return (isRecord ? "record " : "") + std::to_string(number);
}

std::string LocatedFault::Message(const std::string& file) const {
  return file + ":" + place.Text() + (place.isRecord ? ", byte " : ":") +
         std::to_string(fault.offset + 1) + ": " + (fault.place.empty() ? "" : fault.place + ": ") +
         "expected " + fault.expected + ", found " + fault.found;
}

PuzzleReader::PuzzleReader(ByteSource source, const Format* format)
    : source_(std::move(source)), format_(format) {}

PuzzleReader::Result PuzzleReader::Next() {
  if (!std::exchange(recognised_, true)) {
    if (auto fault = Recognise()) return tl::unexpected(LocatedFault{{false, 1}, *fault});
  }
  return place_.isRecord ? NextRecord() : NextLine();
}

std::optional<Fault> PuzzleReader::Recognise() {
  Need(kSdsRecordSize);
  const std::size_t mark = AtHand().starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  auto fault = format_ == nullptr ? ForeignFault(AtHand().substr(mark)) : std::nullopt;
  if (fault) {
    buffer_.clear();
    ended_ = true;
    return fault;
  }
  place_.isRecord = format_ != nullptr ? format_->name == kSdsName : LooksLikeSds(AtHand());
  if (!place_.isRecord) start_ += mark;
  return std::nullopt;
}

PuzzleReader::Result PuzzleReader::NextRecord() {
  Need(kSdsRecordSize);
  const std::string_view record = AtHand().substr(0, kSdsRecordSize);
  if (record.empty()) return std::nullopt;
  ++place_.number;
  start_ += record.size();
  return Located(ReadSds(record));
}

PuzzleReader::Result PuzzleReader::NextLine() {
  while (true) {
    const std::size_t size = LineSize();
    if (size == 0) return std::nullopt;
    ++place_.number;
    const std::string_view line = AtHand().substr(0, size);
    start_ += size;
    const std::size_t first = SkipSpace(line, 0);
    if (first < size && line[first] != '#') {
      Reading reading = ReadLine(line.substr(0, line.find_last_not_of("\r\n") + 1));
      if (size > kMaxLineBytes) SkipRestOfLine();
      return Located(std::move(reading));
    }
    if (size > kMaxLineBytes) SkipRestOfLine();
  }
}

PuzzleReader::Result PuzzleReader::Located(Reading reading) const {
  if (!reading) return tl::unexpected(LocatedFault{place_, std::move(reading.error())});
  return LocatedPuzzle{place_, *std::move(reading)};
}

Reading PuzzleReader::ReadLine(std::string_view line) const {
  if (line.size() > kMaxLineBytes) {
    return tl::unexpected(
        Fault{kMaxLineBytes, "", "the end of the line after a million characters", "more"});
  }
  const Format* const format = format_ != nullptr ? format_ : FormatLike(line);
  if (format != nullptr) return format->read(line);
  const std::size_t first = SkipSpace(line, 0);
  return tl::unexpected(Fault{first, "", "a puzzle in one of the formats that are read",
                              Beginning(line.substr(first))});
}

void PuzzleReader::Need(std::size_t count) {
  if (AtHand().size() >= count) return;
  buffer_.erase(0, std::exchange(start_, 0));
  while (buffer_.size() < count && !ended_) {
    const std::size_t before = buffer_.size();
    buffer_.resize(before + kPieceBytes);
    const std::size_t read = source_(std::span(buffer_).subspan(before));
    buffer_.resize(before + read);
    ended_ = read == 0;
  }
}

std::size_t PuzzleReader::LineSize() {
  std::size_t searched = 0;
  while (true) {
    const std::size_t end = AtHand().find('\n', searched);
    if (end != std::string_view::npos) return std::min(end, kMaxLineBytes) + 1;
    searched = AtHand().size();
    if (searched > kMaxLineBytes) return kMaxLineBytes + 1;
    Need(searched + 1);
    if (AtHand().size() == searched) return searched;
  }
}

void PuzzleReader::SkipRestOfLine() {
  if (buffer_[start_ - 1] == '\n') return;
  while (true) {
    Need(1);
    if (AtHand().empty()) return;
    const std::size_t end = AtHand().find('\n');
    start_ = end == std::string_view::npos ? buffer_.size() : start_ + end + 1;
    if (end != std::string_view::npos) return;
  }
}

}  // namespace tessel::formats
