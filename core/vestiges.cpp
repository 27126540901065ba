#include "core/vestiges.h"

#include <algorithm>

namespace tessel {

void SpareText::Select(std::size_t start, std::size_t length) {
  selectionStart_ = std::min(start, text_.size());
  selectionLength_ = std::min(length, text_.size() - selectionStart_);
}

bool SpareText::ReplaceSelection(const std::string& text) {
  const std::string before = text_;
  text_.replace(selectionStart_, selectionLength_, text);
  Select(selectionStart_ + text.size(), 0);
  return text_ != before;
}

}  // namespace tessel
