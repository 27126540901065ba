// SHA-256 of bytes as they come.
#pragma once

#include <memory>
#include <string>
#include <string_view>

struct evp_md_ctx_st;

namespace tessel::tools {

class Sha256 {
 public:
  Sha256();

  void Add(std::string_view bytes);
  // Of all bytes so far, as 64 small hexadecimal digits; more may follow.
  std::string Hex() const;

 private:
  struct Free {
    void operator()(evp_md_ctx_st* context) const;
  };
  std::unique_ptr<evp_md_ctx_st, Free> context_;
};

}  // namespace tessel::tools
