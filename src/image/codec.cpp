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

// Combines every byte with the running key and appends it to `out`,
// inverted when `invert` is set (before combining when reading, after
// when writing); the key position restarts for every text and wraps after
// the key's last byte. One buffer, so that a large text is held twice at most.
enum class Inversion { Before, After };
void ApplyKey(std::string_view bytes, std::string_view key, unsigned char (*combine)(unsigned char, unsigned char),
              Inversion inversion, std::string& out) {
  std::size_t j = 0;
  for (char c : bytes) {
    if (j >= key.size()) Throw(kSubscriptOutOfRange);  // only the empty slot gets here
    auto byte = static_cast<unsigned char>(c);
    if (inversion == Inversion::Before) byte = static_cast<unsigned char>(~byte);
    byte = combine(byte, static_cast<unsigned char>(key[j]));
    if (inversion == Inversion::After) byte = static_cast<unsigned char>(~byte);
    out += static_cast<char>(byte);
    j = j + 1 == key.size() ? 0 : j + 1;
  }
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
  const std::string_view key = KeyOf(selector);
  const auto length = static_cast<std::uint32_t>(plain.size() + 1);
  // The length, then the selector and the keyed text, both inverted.
  std::string out;
  out.reserve(kLengthBytes + length);
  for (std::size_t i = 0; i < kLengthBytes; ++i) {
    out += static_cast<char>((length >> (8 * i)) & 0xFF);
  }
  out += static_cast<char>(~static_cast<unsigned char>(selector));
  ApplyKey(plain, key, AddKeyByte, Inversion::After, out);
  return out;
}

std::string DecodeText(std::string_view encoded) {
  // A text shorter than four bytes gives L from the bytes that exist.
  std::uint32_t length = 0;
  const std::size_t lengthBytes = std::min(kLengthBytes, encoded.size());
  for (std::size_t i = 0; i < lengthBytes; ++i) {
    length |= static_cast<std::uint32_t>(static_cast<unsigned char>(encoded[i])) << (8 * i);
  }
  const std::string_view body = encoded.substr(lengthBytes, length);
  if (body.empty()) return {};
  const auto selector = static_cast<unsigned char>(~static_cast<unsigned char>(body[0]));
  const std::string_view key = KeyOf(selector);
  std::string out;
  out.reserve(body.size() - 1);
  ApplyKey(body.substr(1), key, SubKeyByte, Inversion::Before, out);
  return out;
}

}  // namespace tamrix
