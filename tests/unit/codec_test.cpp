#include "image/codec.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "core/fault.h"
#include "image/key_table.h"

namespace tamrix {
namespace {

long FaultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    return fault.Number();
  }
  return 0;
}

unsigned char Byte(const std::string& text, std::size_t at) {
  return static_cast<unsigned char>(text.at(at));
}

// Every byte value, twice over, so that each key wraps at least once.
std::string AllBytesTwice() {
  std::string text;
  for (int round = 0; round < 2; ++round) {
    for (int b = 0; b < 256; ++b) text += static_cast<char>(b);
  }
  return text;
}

TEST(KeyByteTest, AdditionAndSubtractionWrapWithinAByte) {
  EXPECT_EQ(AddKeyByte(200, 100), 44);
  EXPECT_EQ(AddKeyByte(255, 1), 0);
  EXPECT_EQ(AddKeyByte(155, 100), 255);
  EXPECT_EQ(SubKeyByte(44, 100), 200);
  EXPECT_EQ(SubKeyByte(0, 1), 255);
  EXPECT_EQ(SubKeyByte(100, 100), 0);
  EXPECT_EQ(InvertBytes(std::string("\x00\xFF\x0F", 3)), std::string("\xFF\x00\xF0", 3));
}

TEST(KeyTableTest, TenPrintableKeysOfTheFixedLengthsAndAnEmptySlot) {
  const std::size_t lengths[] = {179, 184, 215, 279, 257, 176, 228, 182, 176, 174};
  for (int k = 0; k < kKeyCount; ++k) {
    const auto key = kKeyTable[static_cast<std::size_t>(k)];
    EXPECT_EQ(key.size(), lengths[k]) << "key " << k;
    for (char c : key) {
      EXPECT_TRUE(c > ' ' && c < 0x7F) << "key " << k;
    }
  }
  EXPECT_TRUE(kKeyTable[10].empty());
}

TEST(CodecTest, EveryByteRoundTripsUnderEveryKey) {
  const std::string plain = AllBytesTwice();
  for (int k = 0; k < kKeyCount; ++k) {
    const std::string encoded = EncodeText(plain, k);
    ASSERT_EQ(encoded.size(), plain.size() + 5) << "key " << k;
    EXPECT_EQ(DecodeText(encoded), plain) << "key " << k;
  }
}

TEST(CodecTest, EmptyTextIsLengthOneAndInvertedSelector) {
  for (int k = 0; k < kKeyCount; ++k) {
    const std::string encoded = EncodeText("", k);
    const std::string expected{'\x01', '\x00', '\x00', '\x00', static_cast<char>(~k)};
    EXPECT_EQ(encoded, expected);
    EXPECT_EQ(DecodeText(encoded), "");
  }
}

TEST(CodecTest, LayoutIsLengthSelectorAndInvertedKeyedBytes) {
  const std::string plain(300, 'A');
  const std::string encoded = EncodeText(plain, 3);
  EXPECT_EQ(Byte(encoded, 0), 301 % 256);
  EXPECT_EQ(Byte(encoded, 1), 301 / 256);
  EXPECT_EQ(Byte(encoded, 2), 0);
  EXPECT_EQ(Byte(encoded, 3), 0);
  EXPECT_EQ(Byte(encoded, 4), static_cast<unsigned char>(~3));
  const auto key = static_cast<unsigned char>(kKeyTable[3][0]);
  EXPECT_EQ(Byte(encoded, 5), static_cast<unsigned char>(~AddKeyByte('A', key)));
}

TEST(CodecTest, KeyPositionWrapsAfterTheKeysLastByte) {
  const auto key = kKeyTable[9];
  ASSERT_EQ(key.size(), 174u);
  const std::string encoded = EncodeText(std::string(176, '\0'), 9);
  // Plain byte 174 (1-based) uses the key's last byte, byte 175 its first.
  EXPECT_EQ(Byte(encoded, 4 + 174), static_cast<unsigned char>(~key[173]));
  EXPECT_EQ(Byte(encoded, 4 + 175), static_cast<unsigned char>(~key[0]));
  EXPECT_EQ(Byte(encoded, 4 + 176), static_cast<unsigned char>(~key[1]));
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

TEST(CodecTest, DecodingIgnoresBytesPastLengthAndTakesWhatExistsOfAShortText) {
  const std::string encoded = EncodeText("hello", 2);
  EXPECT_EQ(DecodeText(encoded + "trailing"), "hello");
  EXPECT_EQ(DecodeText(encoded.substr(0, encoded.size() - 2)), "hel");
  EXPECT_EQ(DecodeText(encoded.substr(0, 5)), "");
  EXPECT_EQ(DecodeText(""), "");
  // L from the two bytes there are; nothing follows them.
  EXPECT_EQ(DecodeText(std::string("\x05\x00", 2)), "");
}

TEST(CodecTest, SelectorsBeyondTheKeysAreBoundsFaults) {
  const auto withSelector = [](int selector, std::string_view rest) {
    std::string encoded{static_cast<char>(rest.size() + 1), '\0', '\0', '\0',
                        static_cast<char>(~selector)};
    return encoded + InvertBytes(rest);
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
