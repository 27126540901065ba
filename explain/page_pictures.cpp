#include "explain/page_pictures.h"

#include "core/markup.h"

namespace tessel::explain {

namespace {

constexpr std::string_view kId = "id=\"";

// With two decimals, a hundredth of a point: half as many bytes, and nobody sees it.
std::string WithShortNumbers(std::string_view svg) {
  std::string shortened;
  int decimals = -1;  // behind a point; -1 where none stands before
  for (const char character : svg) {
    const bool digit = character >= '0' && character <= '9';
    if (character == '.') {
      decimals = 0;
    } else if (!digit) {
      decimals = -1;
    } else if (decimals >= 0 && ++decimals > 2) {
      continue;
    }
    shortened += character;
  }
  return shortened;
}

std::string_view NameAt(std::string_view svg, std::size_t start) {
  return svg.substr(start, svg.find_first_of("\")", start) - start);
}

// Calls `visit` with the place of every name: id="name", "#name" and url(#name).
template <typename Visit>
void ForEachName(std::string_view svg, const Visit& visit) {
  for (std::size_t at = 0; (at = svg.find_first_of("#\"", at)) != svg.npos; ++at) {
    const bool names = svg[at] == '#' || svg.substr(0, at + 1).ends_with(kId);
    if (names) visit(at + 1);
  }
}

}  // namespace

PagePictures::Names PagePictures::TakeOutlines(std::string& svg) {
  Names names;
  constexpr std::string_view kGlyph = "id=\"glyph";
  for (std::size_t id = 0; (id = svg.find(kGlyph)) != svg.npos;) {
    const std::size_t start = svg.rfind('<', id);
    const std::string tag = svg.substr(start + 1, svg.find(' ', start) - start - 1);
    const std::size_t inside = svg.find('>', id) + 1;
    const std::size_t end = svg.find("</" + tag + ">", inside);
    const auto [outline, isNew] = outlines_.emplace(svg.substr(inside, end - inside), "");
    if (isNew) outline->second = "o" + std::to_string(outlines_.size());
    names.emplace(NameAt(svg, id + kId.size()), outline->second);
    svg.erase(start, end + tag.size() + 3 - start);
  }
  return names;
}

std::string PagePictures::Element(std::string_view svg, std::string_view description) {
  std::string picture = WithShortNumbers(svg.substr(svg.find("<svg ")));
  Names names = TakeOutlines(picture);
  const std::string own = "p" + std::to_string(++count_) + "-";
  std::string element = "<svg role=\"img\" aria-label=\"" + EscapedForMarkup(description) + "\"";
  std::size_t copied = 4;
  ForEachName(picture, [&](std::size_t start) {
    const std::string_view name = NameAt(picture, start);
    const auto outline = names.find(name);
    element += picture.substr(copied, start - copied);
    element += outline == names.end() ? own + std::string(name) : outline->second;
    copied = start + name.size();
  });
  return element + picture.substr(copied);
}

std::string PagePictures::Outlines() const {
  std::string element = "<svg class=\"outlines\" aria-hidden=\"true\"><defs>\n";
  for (const auto& [outline, name] : outlines_) {
    element += "<symbol overflow=\"visible\" id=\"" + name + "\">" + outline + "</symbol>\n";
  }
  return element + "</defs></svg>\n";
}

}  // namespace tessel::explain
