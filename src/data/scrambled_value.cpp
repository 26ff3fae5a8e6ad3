#include "data/scrambled_value.h"

#include <bit>

#include "core/fault.h"
#include "image/codec.h"

namespace tamrix {
namespace {

constexpr std::size_t kLengthBytes = 4;

std::uint64_t FromLittleEndian(std::string_view bytes, std::size_t n) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < n && i < bytes.size(); ++i) {
    value |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
  }
  return value;
}

std::string ToLittleEndian(std::uint64_t value, std::size_t n) {
  std::string out(n, '\0');
  for (std::size_t i = 0; i < n; ++i) out[i] = static_cast<char>((value >> (8 * i)) & 0xFF);
  return out;
}

}  // namespace

std::string ScrambleValue(std::string_view text) { return EncodeText(text); }

std::string UnscrambleValue(std::string_view bytes) {
  std::string text = DecodeText(bytes);  // a bad key byte fails first
  const std::uint64_t promised = FromLittleEndian(bytes, kLengthBytes);
  if (bytes.size() < kLengthBytes || promised > bytes.size() - kLengthBytes) Throw(kInvalidCall);
  return text;
}

std::string IntegerBytes(std::int32_t value) {
  return ToLittleEndian(static_cast<std::uint32_t>(value), sizeof(std::int32_t));
}

std::string DecimalBytes(double value) {
  return ToLittleEndian(std::bit_cast<std::uint64_t>(value), sizeof(double));
}

std::int32_t IntegerFromBytes(std::string_view bytes) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(FromLittleEndian(bytes, sizeof(std::int32_t))));
}

double DecimalFromBytes(std::string_view bytes) {
  return std::bit_cast<double>(FromLittleEndian(bytes, sizeof(double)));
}

}  // namespace tamrix
