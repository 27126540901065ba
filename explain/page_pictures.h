// The pictures of a page.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tessel::explain {

// Each picture that Cairo writes has the outlines of its figures, most of its bytes. Pictures of
// one page share them.
class PagePictures {
 public:
  // The picture as an element of the page. Its names are given up for others, which are unique
  // there.
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
