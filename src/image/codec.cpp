#include "image/codec.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>
#include <random>

#include "core/fault.h"
#include "image/key_table.h"

namespace tamrix {
namespace {

constexpr std::size_t kLengthBytes = 4;

std::string_view KeyOf(long selector) {
  if (selector < 0 || selector >= static_cast<long>(kKeySlots)) Throw(kSubscriptOutOfRange);
  return kKeyTable[static_cast<std::size_t>(selector)];
}

// Combines every byte with the running key; the key position restarts for
// every text and wraps after the key's last byte.
std::string ApplyKey(std::string_view bytes, std::string_view key,
                     unsigned char (*combine)(unsigned char, unsigned char)) {
  std::string out;
  out.reserve(bytes.size());
  std::size_t j = 0;
  for (char c : bytes) {
    if (j >= key.size()) Throw(kSubscriptOutOfRange);  // only the empty slot gets here
    out += static_cast<char>(
        combine(static_cast<unsigned char>(c), static_cast<unsigned char>(key[j])));
    j = j + 1 == key.size() ? 0 : j + 1;
  }
  return out;
}

}  // namespace

unsigned char AddKeyByte(unsigned char c, unsigned char k) {
  return static_cast<unsigned char>((c + k) % 256);
}

unsigned char SubKeyByte(unsigned char c, unsigned char k) {
  return static_cast<unsigned char>((c - k + 256) % 256);
}

std::string InvertBytes(std::string_view s) {
  std::string out(s);
  for (char& c : out) c = static_cast<char>(~static_cast<unsigned char>(c));
  return out;
}

int RandomKeySelector() {
  // Reseeded from the clock on every call, as each text draws its own key;
  // a small generator keeps that cheap for records with many values.
  const auto ticks = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  std::minstd_rand source(static_cast<std::minstd_rand::result_type>(ticks));
  return std::uniform_int_distribution<int>(0, kKeyCount - 1)(source);
}

std::string EncodeText(std::string_view plain) { return EncodeText(plain, RandomKeySelector()); }

std::string EncodeText(std::string_view plain, int selector) {
  if (plain.size() >= std::numeric_limits<std::uint32_t>::max()) Throw(kOverflow);
  std::string body(1, static_cast<char>(selector));
  body += ApplyKey(plain, KeyOf(selector), AddKeyByte);
  const auto length = static_cast<std::uint32_t>(plain.size() + 1);
  std::string out;
  out.reserve(kLengthBytes + body.size());
  for (std::size_t i = 0; i < kLengthBytes; ++i) {
    out += static_cast<char>((length >> (8 * i)) & 0xFF);
  }
  return out + InvertBytes(body);
}

std::string DecodeText(std::string_view encoded) {
  // A text shorter than four bytes gives L from the bytes that exist.
  std::uint32_t length = 0;
  const std::size_t lengthBytes = std::min(kLengthBytes, encoded.size());
  for (std::size_t i = 0; i < lengthBytes; ++i) {
    length |= static_cast<std::uint32_t>(static_cast<unsigned char>(encoded[i])) << (8 * i);
  }
  const std::string body = InvertBytes(encoded.substr(lengthBytes, length));
  if (body.empty()) return {};
  const auto selector = static_cast<unsigned char>(body[0]);
  return ApplyKey(std::string_view(body).substr(1), KeyOf(selector), SubKeyByte);
}

}  // namespace tamrix
