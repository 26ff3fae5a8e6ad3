#include "data/record_layout.h"

#include <algorithm>

#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/scrambled_value.h"

namespace tamrix {
namespace {

std::string_view Slice(std::string_view bytes, std::size_t offset, std::size_t width) {
  return offset < bytes.size() ? bytes.substr(offset, width) : std::string_view();
}

// Copies `bytes` to `offset`, cut at `limit` and at the buffer's end.
void PutBytes(std::string& buffer, std::size_t offset, std::size_t limit, std::string_view bytes) {
  if (offset >= buffer.size()) return;
  const std::size_t n = std::min({bytes.size(), limit, buffer.size() - offset});
  buffer.replace(offset, n, bytes.substr(0, n));
}

}  // namespace

namespace zrf {

HeaderArea FieldNameArea(std::size_t field) { return {kFieldEntries + kFieldEntrySize * field, 25}; }
HeaderArea FieldSizeArea(std::size_t field) { return {kFieldEntries + 25 + kFieldEntrySize * field, 11}; }
HeaderArea FieldTypeArea(std::size_t field) { return {kFieldEntries + 36 + kFieldEntrySize * field, 12}; }

std::uint64_t RecordOffset(std::int64_t recordLength, std::int64_t place) {
  return static_cast<std::uint64_t>(static_cast<std::int64_t>(kHeaderSize) - 1 + recordLength * place);
}

}  // namespace zrf

std::int16_t FieldWidth(std::string_view type, std::int16_t stringSize) {
  if (type == "String") return ToInt16(stringSize + static_cast<int>(kScrambleOverhead));
  if (type == "Integer" || type == "AutoInc") return static_cast<std::int16_t>(4 + kScrambleOverhead);
  if (type == "Decimal") return static_cast<std::int16_t>(8 + kScrambleOverhead);
  return 0;
}

void PutArea(std::string& buffer, HeaderArea area, std::string_view text) {
  PutBytes(buffer, area.offset, area.width, ScrambleValue(text));
}

std::string AreaText(std::string_view buffer, HeaderArea area) {
  return UnscrambleValue(Slice(buffer, area.offset, area.width));
}

std::string StrippedAreaText(std::string_view buffer, HeaderArea area) {
  return UnscrambleValue(Trim(Slice(buffer, area.offset, area.width)));
}

std::string BuildHeader(const HeaderContent& content) {
  std::string header(zrf::kHeaderSize, ' ');
  header[zrf::kLock.offset] = zrf::kFree;
  PutArea(header, zrf::kCount, "0");
  PutArea(header, zrf::kName, content.name);
  PutArea(header, zrf::kRecordLength, std::to_string(content.recordLength));
  PutArea(header, zrf::kCreated, content.created);
  PutArea(header, zrf::kPassword, content.password);
  std::size_t i = 0;
  for (; i < content.fields.size(); ++i) {
    const RecordField& field = content.fields[i];
    PutArea(header, zrf::FieldNameArea(i), field.name);
    PutArea(header, zrf::FieldSizeArea(i), std::to_string(field.width - static_cast<int>(kScrambleOverhead)));
    PutArea(header, zrf::FieldTypeArea(i), field.type);
  }
  PutArea(header, zrf::FieldNameArea(i), zrf::kEndMark);
  return header;
}

std::vector<RecordField> ReadFieldList(std::string_view header) {
  std::vector<RecordField> fields;
  int start = 1;
  for (std::size_t i = 0; i < zrf::kMaxFieldEntries; ++i) {
    const std::string name = AreaText(header, zrf::FieldNameArea(i));
    if (name == zrf::kEndMark) break;
    RecordField field;
    field.name = name;
    field.type = Trim(AreaText(header, zrf::FieldTypeArea(i)));
    field.width = ToInt16(Val(AreaText(header, zrf::FieldSizeArea(i))) + static_cast<double>(kScrambleOverhead));
    field.start = ToInt16(start);
    start += field.width;
    fields.push_back(field);
  }
  return fields;
}

std::int32_t CountOfHead(std::string_view head) {
  const auto count = ParseRegionalNumber(AreaText(head, zrf::kCount));
  if (!count) Throw(kTypeMismatch);
  return ToInt32(*count);
}

void PutCount(std::string& head, std::int32_t count) { PutArea(head, zrf::kCount, std::to_string(count)); }

std::string FieldBytes(std::string_view record, const RecordField& field) {
  if (field.start < 1 || field.width <= 0) return {};
  return std::string(Slice(record, static_cast<std::size_t>(field.start - 1), static_cast<std::size_t>(field.width)));
}

void PutField(std::string& record, const RecordField& field, std::string_view scrambled) {
  if (field.start < 1 || field.width <= 0) return;
  PutBytes(record, static_cast<std::size_t>(field.start - 1), static_cast<std::size_t>(field.width), scrambled);
}

bool IsDeletedRecord(std::string_view record) { return UnscrambleValue(record) == zrf::kDeletedMark; }

}  // namespace tamrix
