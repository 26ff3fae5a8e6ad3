// The byte layout of a record file (".Zrf"): a header of 20,000 bytes whose
// areas each hold one scrambled value at their start, then fixed-length
// records. The program addresses bytes from 1, so record r stands at byte
// 20,000 + length * r: record 0 begins on the header's last byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

struct HeaderArea {
  std::size_t offset;  // 0-based
  std::size_t width;
};

namespace zrf {

inline constexpr std::size_t kHeaderSize = 20000;
// The lock byte and the record count: what every record command reads.
inline constexpr std::size_t kHeadSize = 20;
inline constexpr char kFree = '0';
inline constexpr char kBusy = '1';

inline constexpr HeaderArea kLock{0, 1};  // not scrambled
inline constexpr HeaderArea kCount{1, 11};
inline constexpr HeaderArea kName{12, 25};
inline constexpr HeaderArea kRecordLength{37, 12};
inline constexpr HeaderArea kCreated{49, 30};
inline constexpr HeaderArea kPrepared{79, 30};
inline constexpr HeaderArea kPassword{109, 25};

// Field entries of 48 bytes from offset 999, then the end mark in the name
// area of the entry behind the last.
inline constexpr std::size_t kFieldEntries = 999;
inline constexpr std::size_t kFieldEntrySize = 48;
inline constexpr std::size_t kMaxFieldEntries = 395;
inline constexpr std::string_view kEndMark = "#Fim";
HeaderArea FieldNameArea(std::size_t field);
HeaderArea FieldSizeArea(std::size_t field);  // width minus 5
HeaderArea FieldTypeArea(std::size_t field);

// A record whose first field unscrambles to this is deleted.
inline constexpr std::string_view kDeletedMark = "#";

// The 0-based offset of record `place`.
std::uint64_t RecordOffset(std::int64_t recordLength, std::int64_t place);

}  // namespace zrf

// One field of a record, as the DB block declares it.
struct RecordField {
  std::string name;      // as written in the block
  std::string fullName;  // "<database>.<field>", the name of its variable
  std::string type;      // "String", "Integer", "Decimal", "AutoInc" or another word
  std::int16_t width = 0;
  std::int16_t start = 1;  // 1-based place in the record
};

// Field widths by type: a String of size N takes N + 5; any other word 0.
std::int16_t FieldWidth(std::string_view type, std::int16_t stringSize);

// Scrambles `text` into the area, cut at the area's end.
void PutArea(std::string& buffer, HeaderArea area, std::string_view text);
std::string AreaText(std::string_view buffer, HeaderArea area);
// The same after stripping blanks around the area's bytes, as the readers
// of the record length and the password do.
std::string StrippedAreaText(std::string_view buffer, HeaderArea area);

struct HeaderContent {
  std::string name;
  std::int32_t recordLength = 0;
  std::string created;
  std::string password;
  std::vector<RecordField> fields;
};

// A new file's header: the lock free, no records, the fields and the end
// mark, the last preparation left blank.
std::string BuildHeader(const HeaderContent& content);

// The field list stored in a header, up to its end mark; starts and widths
// follow from the stored sizes and types.
std::vector<RecordField> ReadFieldList(std::string_view header);

// The record count of the first 20 bytes; a count that is no number is
// fault 13.
std::int32_t CountOfHead(std::string_view head);
void PutCount(std::string& head, std::int32_t count);

// A field's bytes in a record, and writing a scrambled value there (cut at
// the record's end).
std::string FieldBytes(std::string_view record, const RecordField& field);
void PutField(std::string& record, const RecordField& field, std::string_view scrambled);
bool IsDeletedRecord(std::string_view record);

}  // namespace tamrix
