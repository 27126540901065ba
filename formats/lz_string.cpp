#include "formats/lz_string.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tessel::formats {

namespace {

constexpr std::string_view kLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr int kBitsOfLetter = 6;

enum Code : unsigned { kNewByte, kNewCharacter, kEnd, kFirstEntry };

// How many bits the next code has: one more whenever so many numbers have been given as the present
// width can tell apart.
class CodeWidth {
 public:
  int Bits() const { return bits_; }
  void CountOne() {
    if (--left_ > 0) return;
    left_ = 1U << bits_;
    ++bits_;
  }

 private:
  unsigned left_ = 2;
  int bits_ = 2;
};

class BitWriter {
 public:
  void Write(unsigned value, int bits) {
    for (; bits > 0; --bits, value >>= 1) WriteBit(value & 1U);
  }
  // Every stream ends with a letter that is not yet full, of zeros at least.
  std::string Finished() {
    do {
      WriteBit(0);
    } while (filled_ != 0);
    while (letters_.size() % 4 != 0) letters_ += '=';
    return std::move(letters_);
  }

 private:
  void WriteBit(unsigned bit) {
    letter_ = letter_ << 1 | bit;
    if (++filled_ < kBitsOfLetter) return;
    letters_ += kLetters[std::exchange(letter_, 0)];
    filled_ = 0;
  }

  std::string letters_;
  unsigned letter_ = 0;
  int filled_ = 0;
};

class Compressor {
 public:
  std::string Compressed(std::u16string_view text) {
    for (const char16_t character : text) Take(character);
    if (sent_) Send();
    bits_.Write(kEnd, width_.Bits());
    return bits_.Finished();
  }

 private:
  // A text of the dictionary: one that is in it, and a character after that.
  static std::uint64_t KeyOf(unsigned text, char16_t next) {
    return std::uint64_t{text} << 16 | next;
  }

  void Take(char16_t character) {
    const auto [single, isNew] = entries_.try_emplace(KeyOf(0, character), next_);
    if (isNew) {
      unsent_.emplace(next_++, character);
    }
    const unsigned singleEntry = single->second;
    if (sent_) {
      const auto longer = entries_.find(KeyOf(*sent_, character));
      if (longer != entries_.end()) {
        sent_ = longer->second;
        return;
      }
      Send();
      entries_.emplace(KeyOf(*sent_, character), next_++);
    }
    sent_ = singleEntry;
  }

  void Send() {
    const auto unsent = unsent_.find(*sent_);
    if (unsent == unsent_.end()) {
      bits_.Write(*sent_, width_.Bits());
    } else {
      SendNew(unsent->second);
      unsent_.erase(unsent);
    }
    width_.CountOne();
  }

  void SendNew(char16_t character) {
    const bool isByte = character < 256;
    bits_.Write(isByte ? kNewByte : kNewCharacter, width_.Bits());
    bits_.Write(character, isByte ? 8 : 16);
    width_.CountOne();
  }

  BitWriter bits_;
  CodeWidth width_;
  std::unordered_map<std::uint64_t, unsigned> entries_;
  std::unordered_map<unsigned, char16_t> unsent_;  // characters, by their entries
  unsigned next_ = kFirstEntry;
  std::optional<unsigned> sent_;  // the longest entry that the text since the last code is
};

class BitReader {
 public:
  explicit BitReader(std::string_view letters) : letters_(letters) {}

  tl::expected<unsigned, LzFault> Read(int bits) {
    unsigned value = 0;
    for (int i = 0; i < bits; ++i) {
      if (left_ == 0) {
        if (auto fault = NextLetter()) return tl::unexpected(*fault);
      }
      value |= (letter_ >> --left_ & 1U) << i;
    }
    return value;
  }
  LzFault FaultHere(LzFault::Kind kind) const { return {kind, next_ == 0 ? 0 : next_ - 1}; }

 private:
  std::optional<LzFault> NextLetter() {
    if (next_ == letters_.size() || letters_[next_] == '=') {
      return LzFault{LzFault::Kind::kCut, next_};
    }
    const std::size_t value = kLetters.find(letters_[next_]);
    if (value == std::string_view::npos) return LzFault{LzFault::Kind::kLetter, next_};
    letter_ = static_cast<unsigned>(value);
    left_ = kBitsOfLetter;
    ++next_;
    return std::nullopt;
  }

  std::string_view letters_;
  std::size_t next_ = 0;
  unsigned letter_ = 0;
  int left_ = 0;
};

class Decompressor {
 public:
  Decompressor(std::string_view base64, std::size_t most) : bits_(base64), most_(most) {}

  tl::expected<std::u16string, LzFault> Decompressed() {
    while (true) {
      auto code = bits_.Read(width_.Bits());
      if (!code) return tl::unexpected(code.error());
      if (*code == kEnd) return std::move(text_);
      if (auto fault = *code < kEnd ? TakeNew(*code) : TakeEntry(*code - kFirstEntry)) {
        return tl::unexpected(*fault);
      }
    }
  }

 private:
  // A piece of the text so far. No entry needs to be kept elsewhere: a text that was sent and the
  // character after it stand there side by side.
  struct Piece {
    std::size_t start = 0;
    std::size_t size = 0;
  };

  std::optional<LzFault> TakeNew(unsigned code) {
    const auto character = bits_.Read(code == kNewByte ? 8 : 16);
    if (!character) return character.error();
    pieces_.push_back({text_.size(), 1});
    EndPiece();
    last_ = Piece{text_.size(), 1};
    text_ += static_cast<char16_t>(*character);
    width_.CountOne();
    width_.CountOne();
    return text_.size() > most_ ? TooLong() : std::nullopt;
  }

  // The entry may be the very one that its own first character completes.
  std::optional<LzFault> TakeEntry(unsigned entry) {
    EndPiece();
    if (entry >= pieces_.size()) return bits_.FaultHere(LzFault::Kind::kCode);
    const Piece piece = pieces_[entry];
    if (piece.size > most_ - text_.size()) return TooLong();
    last_ = Piece{text_.size(), piece.size};
    for (std::size_t i = 0; i < piece.size; ++i) text_ += text_[piece.start + i];
    width_.CountOne();
    return std::nullopt;
  }

  // The text that was sent last, with the character that comes now, is a new entry.
  void EndPiece() {
    if (last_) pieces_.push_back({last_->start, last_->size + 1});
  }

  std::optional<LzFault> TooLong() const { return bits_.FaultHere(LzFault::Kind::kTooLong); }

  BitReader bits_;
  std::size_t most_;
  CodeWidth width_;
  std::u16string text_;
  std::vector<Piece> pieces_;
  std::optional<Piece> last_;
};

}  // namespace

std::string LzCompressed(std::u16string_view text) {
  return Compressor().Compressed(text);
}

tl::expected<std::u16string, LzFault> LzDecompressed(std::string_view base64, std::size_t most) {
  return Decompressor(base64, most).Decompressed();
}

}  // namespace tessel::formats
