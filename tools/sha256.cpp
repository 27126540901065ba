#include "tools/sha256.h"

#include <openssl/evp.h>

#include <array>
#include <new>
#include <span>

namespace tessel::tools {

namespace {

std::string HexOf(std::span<const unsigned char> bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string hex;
  for (const unsigned char byte : bytes) {
    hex += digits[byte >> 4];
    hex += digits[byte & 15];
  }
  return hex;
}

}  // namespace

void Sha256::Free::operator()(evp_md_ctx_st* context) const {
  EVP_MD_CTX_free(context);
}

Sha256::Sha256() : context_(EVP_MD_CTX_new()) {
  if (context_ == nullptr) throw std::bad_alloc();
  EVP_DigestInit_ex(context_.get(), EVP_sha256(), nullptr);
}

void Sha256::Add(std::string_view bytes) {
  EVP_DigestUpdate(context_.get(), bytes.data(), bytes.size());
}

std::string Sha256::Hex() const {
  const std::unique_ptr<evp_md_ctx_st, Free> copy(EVP_MD_CTX_new());
  if (copy == nullptr) throw std::bad_alloc();
  EVP_MD_CTX_copy_ex(copy.get(), context_.get());
  std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
  unsigned size = 0;
  EVP_DigestFinal_ex(copy.get(), digest.data(), &size);
  return HexOf(std::span(digest).first(size));
}

}  // namespace tessel::tools
