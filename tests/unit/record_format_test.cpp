// The record file's byte layout: header areas at their offsets, scrambled
// values, field widths and the place of each record.
#include <gtest/gtest.h>

#include <cstring>

#include "core/fault.h"
#include "data/record_layout.h"
#include "data/scrambled_value.h"

namespace tamrix {
namespace {

long FaultOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const RuntimeFault& fault) {
    return fault.Number();
  }
  return 0;
}

std::string Unscrambled(const std::string& bytes, std::size_t offset, std::size_t width) {
  return UnscrambleValue(bytes.substr(offset, width));
}

TEST(ScrambledValueTest, TakesFiveBytesMoreThanItsTextAndComesBack) {
  std::string everyByte;
  for (int b = 0; b < 256; ++b) everyByte += static_cast<char>(b);
  for (const std::string& text : {std::string(), std::string("#"), std::string("Ana Maria"), everyByte}) {
    const std::string value = ScrambleValue(text);
    ASSERT_EQ(value.size(), text.size() + 5);
    std::uint32_t length = 0;
    std::memcpy(&length, value.data(), 4);
    EXPECT_EQ(length, text.size() + 1);
    EXPECT_LE(static_cast<unsigned char>(~static_cast<unsigned char>(value[4])), 9);  // key number
    EXPECT_EQ(UnscrambleValue(value + "tail of an older value"), text);
  }
}

TEST(ScrambledValueTest, BlanksAndCutValuesFail) {
  // Blanks give the key number 223, outside the table.
  EXPECT_EQ(FaultOf([] { UnscrambleValue(std::string(9, ' ')); }), kSubscriptOutOfRange);
  const std::string value = ScrambleValue("a long password of 30 letters");
  EXPECT_EQ(FaultOf([&] { UnscrambleValue(value.substr(0, 25)); }), kInvalidCall);
}

TEST(ScrambledValueTest, NumbersAreTheirLittleEndianBytes) {
  EXPECT_EQ(IntegerBytes(0x01020304), std::string("\x04\x03\x02\x01", 4));
  EXPECT_EQ(IntegerBytes(-1), std::string("\xFF\xFF\xFF\xFF", 4));
  EXPECT_EQ(DecimalBytes(1.0), std::string("\0\0\0\0\0\0\xF0\x3F", 8));
  for (const std::int32_t n : {0, 1, -7, 2147483647, -2147483647 - 1}) EXPECT_EQ(IntegerFromBytes(IntegerBytes(n)), n);
  for (const double d : {0.0, -2.5, 1e300, 3.141592653589793}) EXPECT_EQ(DecimalFromBytes(DecimalBytes(d)), d);
}

TEST(RecordLayoutTest, FieldWidthsByType) {
  EXPECT_EQ(FieldWidth("String", 30), 35);
  EXPECT_EQ(FieldWidth("String", 0), 5);
  EXPECT_EQ(FieldWidth("Integer", 0), 9);
  EXPECT_EQ(FieldWidth("AutoInc", 0), 9);
  EXPECT_EQ(FieldWidth("Decimal", 0), 13);
  EXPECT_EQ(FieldWidth("string", 30), 0);  // type words are compared with their case
  EXPECT_EQ(FaultOf([] { FieldWidth("String", 32763); }), kOverflow);
}

TEST(RecordLayoutTest, HeaderAreasStandAtTheirOffsets) {
  HeaderContent content{"Agenda", 57, "01/02/2024 10:20:30", "secret", {}};
  content.fields = {{"Nome", "", "String", 35, 1}, {"Idade", "", "Integer", 9, 36}, {"Saldo", "", "Decimal", 13, 45}};
  const std::string header = BuildHeader(content);
  ASSERT_EQ(header.size(), 20000u);
  EXPECT_EQ(header[0], '0');
  EXPECT_EQ(Unscrambled(header, 1, 11), "0");
  EXPECT_EQ(Unscrambled(header, 12, 25), "Agenda");
  EXPECT_EQ(Unscrambled(header, 37, 12), "57");
  EXPECT_EQ(Unscrambled(header, 49, 30), "01/02/2024 10:20:30");
  EXPECT_EQ(header.substr(79, 30), std::string(30, ' '));  // the last preparation is stamped later
  EXPECT_EQ(Unscrambled(header, 109, 25), "secret");
  EXPECT_EQ(header.substr(134, 865), std::string(865, ' '));
  const char* names[] = {"Nome", "Idade", "Saldo"};
  const char* sizes[] = {"30", "4", "8"};
  const char* types[] = {"String", "Integer", "Decimal"};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(Unscrambled(header, 999 + 48 * i, 25), names[i]);
    EXPECT_EQ(Unscrambled(header, 1024 + 48 * i, 11), sizes[i]);
    EXPECT_EQ(Unscrambled(header, 1035 + 48 * i, 12), types[i]);
  }
  EXPECT_EQ(Unscrambled(header, 999 + 48 * 3, 25), "#Fim");
  EXPECT_EQ(header.substr(999 + 48 * 3 + 9), std::string(20000 - (999 + 48 * 3 + 9), ' '));

  const auto fields = ReadFieldList(header);
  ASSERT_EQ(fields.size(), 3u);
  EXPECT_EQ(fields[2].name, "Saldo");
  EXPECT_EQ(fields[2].width, 13);
  EXPECT_EQ(fields[2].start, 45);
}

TEST(RecordLayoutTest, AreasCutLongValuesAtTheirEnd) {
  std::string header(20000, ' ');
  PutArea(header, zrf::kPassword, std::string(21, 'x'));  // 26 bytes into 25
  EXPECT_EQ(header[109 + 25], ' ');
  EXPECT_EQ(FaultOf([&] { StrippedAreaText(header, zrf::kPassword); }), kInvalidCall);
  PutArea(header, zrf::kPassword, std::string(20, 'y'));  // exactly 25: fits
  EXPECT_EQ(StrippedAreaText(header, zrf::kPassword), std::string(20, 'y'));
}

TEST(RecordLayoutTest, CountTextShrinksBehindItsLengthPrefix) {
  std::string head(20, ' ');
  head[0] = '0';
  PutCount(head, 10);
  PutCount(head, 9);
  EXPECT_EQ(CountOfHead(head), 9);
  PutArea(head, zrf::kCount, "ten");
  EXPECT_EQ(FaultOf([&] { CountOfHead(head); }), kTypeMismatch);
}

TEST(RecordLayoutTest, RecordZeroStartsOnTheHeadersLastByte) {
  EXPECT_EQ(zrf::RecordOffset(57, 0), 19999u);
  EXPECT_EQ(zrf::RecordOffset(57, 3), 19999u + 3 * 57);
}

TEST(RecordLayoutTest, FieldsAreWrittenAndReadWithinTheirWidth) {
  const RecordField name{"Nome", "Agenda.Nome", "String", 8, 3};
  std::string record(12, ' ');
  PutField(record, name, ScrambleValue("abc"));
  EXPECT_EQ(record.substr(0, 2), "  ");
  EXPECT_EQ(UnscrambleValue(FieldBytes(record, name)), "abc");
  PutField(record, name, ScrambleValue("abcdefgh"));  // 13 bytes: cut at the field's 8
  EXPECT_EQ(record.substr(11), " ");
  const RecordField pastTheEnd{"X", "A.X", "String", 20, 10};
  EXPECT_EQ(FieldBytes(record, pastTheEnd).size(), 3u);
  PutField(record, pastTheEnd, ScrambleValue("xyz"));
  EXPECT_EQ(record.size(), 12u);
}

TEST(RecordLayoutTest, DeletedRecordsCarryTheMarkInTheirFirstField) {
  std::string record(20, ' ');
  const RecordField first{"Nome", "A.Nome", "String", 10, 1};
  PutField(record, first, ScrambleValue("#"));
  EXPECT_TRUE(IsDeletedRecord(record));
  PutField(record, first, ScrambleValue("#a"));
  EXPECT_FALSE(IsDeletedRecord(record));
}

}  // namespace
}  // namespace tamrix
