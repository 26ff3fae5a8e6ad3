#include "image/codec.h"

#include <gtest/gtest.h>

#include <set>

#include "image/key_table.h"
#include "image_test_support.h"

namespace tamrix {
namespace {

unsigned char Byte(const std::string& text, std::size_t at) {
  return static_cast<unsigned char>(text.at(at));
}

TEST(CodecTest, KeyBytesWrapWithinAByte) {
  EXPECT_EQ(AddKeyByte(200, 100), 44);
  EXPECT_EQ(AddKeyByte(155, 100), 255);
  EXPECT_EQ(SubKeyByte(44, 100), 200);
  EXPECT_EQ(SubKeyByte(0, 1), 255);
  EXPECT_EQ(InvertBytes(std::string("\x00\xFF\x0F", 3)), std::string("\xFF\x00\xF0", 3));
}

TEST(CodecTest, TenPrintableKeysOfTheFixedLengthsAndAnEmptySlot) {
  const std::size_t lengths[] = {179, 184, 215, 279, 257, 176, 228, 182, 176, 174};
  for (int k = 0; k < kKeyCount; ++k) {
    const auto key = kKeyTable[static_cast<std::size_t>(k)];
    EXPECT_EQ(key.size(), lengths[k]) << "key " << k;
    for (char c : key) EXPECT_TRUE(c > ' ' && c < 0x7F) << "key " << k;
  }
  EXPECT_TRUE(kKeyTable[10].empty());
}

TEST(CodecTest, EveryByteRoundTripsUnderEveryKey) {
  std::string plain;
  for (int b = 0; b < 2 * 256; ++b) plain += static_cast<char>(b % 256);  // every key wraps
  for (int k = 0; k < kKeyCount; ++k) {
    const std::string encoded = EncodeText(plain, k);
    ASSERT_EQ(encoded.size(), plain.size() + 5) << "key " << k;
    EXPECT_EQ(DecodeText(encoded), plain) << "key " << k;
  }
}

TEST(CodecTest, EmptyTextIsLengthOneAndInvertedSelector) {
  for (int k = 0; k < kKeyCount; ++k) {
    const std::string encoded = EncodeText("", k);
    EXPECT_EQ(encoded, std::string({'\x01', '\x00', '\x00', '\x00', static_cast<char>(~k)}));
    EXPECT_EQ(DecodeText(encoded), "");
  }
}

TEST(CodecTest, LengthComesFirstAndTheKeyWrapsAfterItsLastByte) {
  const auto key = kKeyTable[9];
  const std::string encoded = EncodeText(std::string(300, '\0'), 9);
  EXPECT_EQ(Byte(encoded, 0), 301 % 256);
  EXPECT_EQ(Byte(encoded, 1), 301 / 256);
  EXPECT_EQ(Byte(encoded, 4), static_cast<unsigned char>(~9));
  // Plain byte 174 (1-based) uses the key's last byte, 175 its first again.
  EXPECT_EQ(Byte(encoded, 4 + 174), static_cast<unsigned char>(~key[173]));
  EXPECT_EQ(Byte(encoded, 4 + 175), static_cast<unsigned char>(~key[0]));
}

TEST(CodecTest, RandomKeysUsuallyDifferAndAlwaysDecode) {
  const std::string plain = "Var x Integer\r\nx = 1";
  std::set<std::string> encodings;
  for (int n = 0; n < 40; ++n) {
    const std::string encoded = EncodeText(plain);
    EXPECT_EQ(DecodeText(encoded), plain);
    encodings.insert(encoded);
  }
  EXPECT_GT(encodings.size(), 1u);
}

TEST(CodecTest, DecodingTakesTheBytesThatExist) {
  const std::string encoded = EncodeText("hello", 2);
  EXPECT_EQ(DecodeText(encoded + "trailing"), "hello");
  EXPECT_EQ(DecodeText(encoded.substr(0, encoded.size() - 2)), "hel");
  EXPECT_EQ(DecodeText(encoded.substr(0, 5)), "");
  EXPECT_EQ(DecodeText(""), "");
  EXPECT_EQ(DecodeText(std::string("\x05\x00", 2)), "");  // L from two bytes, nothing after
}

TEST(CodecTest, SelectorsBeyondTheKeysAreBoundsFaults) {
  const auto withSelector = [](int selector, std::string_view rest) {
    return std::string({static_cast<char>(rest.size() + 1), '\0', '\0', '\0',
                        static_cast<char>(~selector)}) +
           InvertBytes(rest);
  };
  EXPECT_EQ(FaultOf([&] { DecodeText(withSelector(11, "x")); }), kSubscriptOutOfRange);
  EXPECT_EQ(FaultOf([&] { DecodeText(withSelector(255, "")); }), kSubscriptOutOfRange);
  // The empty slot fails only when a key byte is needed.
  EXPECT_EQ(FaultOf([&] { DecodeText(withSelector(10, "x")); }), kSubscriptOutOfRange);
  EXPECT_EQ(DecodeText(withSelector(10, "")), "");
  EXPECT_EQ(FaultOf([] { EncodeText("x", 10); }), kSubscriptOutOfRange);
  EXPECT_EQ(FaultOf([] { EncodeText("x", -1); }), kSubscriptOutOfRange);
}

}  // namespace
}  // namespace tamrix
