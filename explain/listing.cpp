#include "explain/listing.h"

#include "core/names.h"

namespace tessel::explain {

std::string Listed(const std::vector<std::string>& words, const std::string& last) {
  std::string list = words.front();
  for (std::size_t k = 1; k < words.size(); ++k) {
    list += k + 1 < words.size() ? ", " : " " + last + " ";
    list += words[k];
  }
  return list;
}

std::string NamesOf(CellSet cells, const std::string& last) {
  std::vector<std::string> names;
  ForEach(cells, [&](int cell) { names.push_back(CellName(cell)); });
  return Listed(names, last);
}

std::string NamesOf(Mask digits, const std::string& last) {
  std::vector<std::string> names;
  for (int digit = 1; digit <= kSide; ++digit) {
    if (Holds(digits, digit)) names.push_back(std::to_string(digit));
  }
  return Listed(names, last);
}

}  // namespace tessel::explain
