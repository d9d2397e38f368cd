#pragma once

#include <cstdint>
#include <string_view>

namespace kestra {

// 64-bit FNV-1a: of bytes, or of bytes behind those that have given `hash`.
constexpr std::uint64_t fnv1a64(std::string_view bytes, std::uint64_t hash = 14695981039346656037U) {
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  return hash;
}

}  // namespace kestra
