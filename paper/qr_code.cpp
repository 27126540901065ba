#include "paper/qr_code.h"

#include <qrencode.h>

#include <memory>

namespace tessel::paper {

namespace {

struct CodeRelease {
  void operator()(QRcode* code) const { QRcode_free(code); }
};
using Code = std::unique_ptr<QRcode, CodeRelease>;

// The lowest level of correction: paper is seldom damaged, and larger modules are read more easily.
Code Encode(std::string_view text) {
  const std::string bytes(text);
  return Code(QRcode_encodeData(static_cast<int>(bytes.size()),
                                reinterpret_cast<const unsigned char*>(bytes.data()), 0,
                                QR_ECLEVEL_L));
}

}  // namespace

tl::expected<void, std::string> DrawQrCode(cairo_t* context, std::string_view text,
                                           const Box& place) {
  const Code code = Encode(text);
  if (!code) {
    return tl::unexpected("a QR code has no room for a link of " + std::to_string(text.size()) +
                          " bytes");
  }
  const double module = place.width / code->width;
  const auto isDark = [&](int row, int column) {
    return column < code->width && (code->data[row * code->width + column] & 1) != 0;
  };
  for (int row = 0; row < code->width; ++row) {
    for (int column = 0; column < code->width; ++column) {
      const int first = column;
      while (isDark(row, column)) ++column;
      if (column == first) continue;
      cairo_rectangle(context, place.x + first * module, place.y + row * module,
                      (column - first) * module, module);
    }
  }
  cairo_set_source_rgb(context, 0, 0, 0);
  cairo_fill(context);
  return {};
}

}  // namespace tessel::paper
