// The pictures of a page.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tessel::explain {

// Cairo writes the outlines of the figures into each picture, where they are most of the bytes. The
// pictures of one page share them.
class PagePictures {
 public:
  // The picture, a whole SVG file, as an element of the page. Its ids are replaced by others that
  // are unique there.
  std::string Element(std::string_view svg, std::string_view description);
  // The outlines that all elements so far refer to, as an element that shows nothing.
  std::string Outlines() const;

 private:
  using Names = std::map<std::string, std::string, std::less<>>;

  // Takes the outlines out of the picture, and tells which of the page's stand for them.
  Names TakeOutlines(std::string& svg);

  int count_ = 0;
  Names outlines_;  // the name of each on the page
};

}  // namespace tessel::explain
