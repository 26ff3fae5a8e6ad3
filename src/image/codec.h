// The program text codec: a byte-wise running-key scrambler that keeps
// program units and record fields from being plain in a file. An encoded text
// is L (four bytes, lowest first: the plain length plus 1), the key selector
// with its bits inverted, then the plain bytes key-added and inverted.
#pragma once

#include <string>
#include <string_view>

namespace tamrix {

unsigned char AddKeyByte(unsigned char c, unsigned char k);
unsigned char SubKeyByte(unsigned char c, unsigned char k);
// Every byte replaced by its complement.
std::string InvertBytes(std::string_view s);

// A key selector from 0 to 9, from a random source seeded by the clock.
int RandomKeySelector();

// Encodes with a random key.
std::string EncodeText(std::string_view plain);
// Encodes with key `selector`; outside 0 to 9 this fails as DecodeText does.
std::string EncodeText(std::string_view plain, int selector);

// Reports nothing of its own: a selector above 10, or the empty slot 10 with
// text to decode, is the bounds fault 9. An L beyond the data takes the bytes
// that exist; with no selector byte at all the result is the empty text.
std::string DecodeText(std::string_view encoded);

}  // namespace tamrix
