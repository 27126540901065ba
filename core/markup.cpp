#include "core/markup.h"

#include <array>

#include "core/text_replacement.h"

namespace tessel {

namespace {

constexpr std::array kEntities{Replacement{'&', "&amp;"}, Replacement{'<', "&lt;"},
                               Replacement{'"', "&quot;"}};

}  // namespace

std::string EscapedForMarkup(std::string_view text) {
  return Replaced(text, kEntities);
}

}  // namespace tessel
