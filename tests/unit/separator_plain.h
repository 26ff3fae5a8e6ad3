// Test input: plain text that a given key encodes with a separator inside.
#pragma once

#include <string>
#include <string_view>

#include "image/codec.h"
#include "image/key_table.h"

namespace tamrix {

// Replaces the bytes of `plain` from `at` (0-based) so that key `key` turns
// them into `sequence` in the encoded text.
inline std::string WithEncodedSequence(std::string plain, int key, std::size_t at,
                                       std::string_view sequence) {
  const auto keyText = kKeyTable[static_cast<std::size_t>(key)];
  for (std::size_t i = 0; i < sequence.size(); ++i) {
    const auto wanted = static_cast<unsigned char>(~static_cast<unsigned char>(sequence[i]));
    const auto keyByte = static_cast<unsigned char>(keyText[(at + i) % keyText.size()]);
    plain[at + i] = static_cast<char>(SubKeyByte(wanted, keyByte));
  }
  return plain;
}

}  // namespace tamrix
