#include "explain/page.h"

#include "core/markup.h"
#include "explain/page_parts.h"
#include "explain/page_pictures.h"
#include "paper/picture_file.h"

namespace tessel::explain {

namespace {

using paper::BoardPicture;
using paper::Panel;

class Page {
 public:
  tl::expected<std::string, std::string> Of(std::span<const paper::Story> stories) {
    Open(stories.size() == 1 ? stories.front().title : "Puzzles, step by step");
    for (const paper::Story& story : stories) {
      for (const Panel& panel : story.panels) Add(panel);
    }
    Close();
    if (!fault_.empty()) return tl::unexpected(fault_);
    return std::move(html_);
  }

 private:
  void Open(const std::string& title) {
    html_ =
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
        "style-src 'unsafe-inline'; script-src 'unsafe-inline'\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
        EscapedForMarkup(title) + "</title>\n<style>" + std::string(kStyle) +
        "</style>\n</head>\n<body>\n<nav><button type=\"button\">Back</button>"
        "<button type=\"button\">Next</button><output></output>"
        "<span class=\"keys\">\u2190 \u2192 or space: step by step</span></nav>\n<main>\n";
  }
  void Close() {
    html_ += "</main>\n" + pictures_.Outlines() + "<footer>" + std::string(kLegend) +
             "</footer>\n<script>" + std::string(kScript) + "</script>\n</body>\n</html>\n";
  }

  void Add(const Panel& panel) {
    html_ += "<section class=\"step\">\n<figure class=\"now\">";
    Add(panel.picture, panel.heading);
    html_ += "</figure>\n<div><h2>" + EscapedForMarkup(panel.heading) + "</h2>\n";
    for (std::size_t k = 0; k < panel.paragraphs.size(); ++k) {
      html_ += k == 0 ? "<p class=\"says\">" : "<p>";
      html_ += EscapedForMarkup(panel.paragraphs[k]) + "</p>\n";
    }
    html_ += "</div>\n";
    if (panel.after) AddAfter(*panel.after);
    html_ += "</section>\n";
  }

  void AddAfter(const BoardPicture& picture) {
    html_ += "<figure class=\"after\"><figcaption>After it</figcaption>";
    Add(picture, "The position after it");
    html_ += "</figure>\n";
  }

  void Add(const BoardPicture& picture, const std::string& description) {
    std::string svg;
    const auto written =
        paper::WriteSvg(picture, {.side = 400}, [&svg](std::span<const unsigned char> bytes) {
          svg.append(bytes.begin(), bytes.end());
          return true;
        });
    if (!written) {
      fault_ = written.error();
      return;
    }
    html_ += pictures_.Element(svg, description);
  }

  std::string html_;
  PagePictures pictures_;
  std::string fault_;
};

}  // namespace

tl::expected<std::string, std::string> PageOf(std::span<const paper::Story> stories) {
  return Page().Of(stories);
}

}  // namespace tessel::explain
