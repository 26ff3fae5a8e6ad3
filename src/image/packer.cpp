#include "image/packer.h"

#include <algorithm>
#include <filesystem>

#include "core/codepage.h"
#include "core/fault.h"
#include "core/text.h"
#include "image/codec.h"
#include "image/key_table.h"
#include "image/program_image.h"

namespace tamrix {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsNameCharacter(char c) {
  return (c >= 'A' && c <= 'Z') || IsDigit(c) || c == '_' || c == '-';
}

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

// Encodes `text` with the first key, from a random one on, whose result holds
// none of `forbidden`: such a sequence would cut the blob when read back.
std::string EncodeBlob(std::string_view text, const std::vector<std::string>& forbidden,
                       const std::string& what) {
  const int first = RandomKeySelector();
  for (int n = 0; n < kKeyCount; ++n) {
    std::string blob = EncodeText(text, (first + n) % kKeyCount);
    const auto inBlob = [&blob](const std::string& sequence) { return Contains(blob, sequence); };
    if (std::none_of(forbidden.begin(), forbidden.end(), inBlob)) return blob;
  }
  throw PackError(what + " cannot be stored: every key's encoding holds a separator");
}

std::size_t UnitDigest(const std::string& name, const std::string& text) {
  const std::hash<std::string> hash;
  return hash(name) * 31 + hash(text);
}

PackedDigest DigestOf(const std::string& programName, const std::vector<SourceUnit>& units) {
  PackedDigest digest{programName, {}};
  for (const auto& unit : units) digest.units.push_back(UnitDigest(unit.name, unit.text));
  return digest;
}

const std::string kNoName;

}  // namespace

std::string ConvertSourceFile(std::string_view utf8, std::string_view label) {
  if (StartsWith(utf8, kByteOrderMark)) utf8.remove_prefix(kByteOrderMark.size());
  std::string out;
  out.reserve(utf8.size() + utf8.size() / 16);
  std::size_t lineNumber = 1;
  for (std::size_t lineStart = 0; lineStart <= utf8.size(); ++lineNumber) {
    const auto lineEnd = utf8.find('\n', lineStart);
    const auto line = utf8.substr(lineStart, lineEnd == npos ? npos : lineEnd - lineStart);
    const auto converted = Utf8ToCp1252(line);
    if (!converted) {
      throw PackError(std::string(label) + " line " + std::to_string(lineNumber) +
                      ": not UTF-8, or a character that Windows-1252 cannot store");
    }
    out += *converted;
    if (lineEnd == npos) break;
    out += EndsWith(out, "\r") ? "\n" : "\r\n";
    lineStart = lineEnd + 1;
  }
  return out;
}

std::optional<std::string> ProgramNameProblem(std::string_view name) {
  if (name.empty()) return "is empty";
  if (Contains(name, ".")) return "holds a dot";
  if (!std::all_of(name.begin(), name.end(), IsNameCharacter)) {
    return "may only hold letters A-Z, digits, \"_\" and \"-\"";
  }
  if (!std::any_of(name.begin(), name.end(), IsLetter)) return "has no letter";
  return std::nullopt;
}

std::string ProgramNameOf(std::string_view mainPath) {
  const std::string base = std::filesystem::path(mainPath).stem().string();
  const std::string name = Upper(base);
  if (const auto problem = ProgramNameProblem(name)) {
    throw PackError("cannot name the program after " + std::string(mainPath) + ": " +
                    Quoted(base) + " " + *problem);
  }
  return name;
}

std::string UnitNameOf(std::string_view path) {
  return Utf8ToCp1252Lossy(std::filesystem::path(path).stem().string());
}

std::vector<SourceUnit> LoadSourceUnits(const std::vector<std::string>& paths) {
  if (paths.empty() || paths.size() > kSourceUnits) {
    throw PackError("a program has one to seven units, not " + std::to_string(paths.size()));
  }
  std::vector<SourceUnit> units;
  for (const auto& path : paths) {
    std::string bytes;
    try {
      bytes = ReadWholeFile(path);
    } catch (const RuntimeFault& fault) {
      throw PackError("cannot read " + path + ": " + fault.Description());
    }
    units.push_back({units.empty() ? std::string() : UnitNameOf(path), ConvertSourceFile(bytes, path)});
  }
  return units;
}

PackedDigest WriteProgram(const std::string& programName, std::vector<SourceUnit> units,
                          const std::function<void(std::string_view)>& write) {
  if (const auto problem = ProgramNameProblem(programName)) {
    throw PackError("cannot store the program name: " + Quoted(programName) + " " + *problem);
  }
  if (units.empty() || units.size() > kSourceUnits) {
    throw PackError("a program has one to seven units, not " + std::to_string(units.size()));
  }
  const PackedDigest digest = DigestOf(programName, units);
  const std::string payloadEnd = EndMarker() + programName;
  const std::vector<std::string> forbidden = {std::string(kCodeEnd), std::string(kNameEnd),
                                              payloadEnd};
  write(StartMarker() + programName + NameEndMarker());
  for (std::size_t unit = 0; unit < units.size(); ++unit) {
    const std::string what = unit == 0 ? std::string("the main unit")
                                       : "unit " + std::to_string(unit) + " " + Quoted(units[unit].name);
    if (unit > 0) {
      write(EncodeBlob(units[unit].name, forbidden, "the name of " + what));
      write(kNameEnd);
    }
    std::string blob = EncodeBlob(units[unit].text, forbidden, what);
    std::string().swap(units[unit].text);
    write(blob);
    write(kCodeEnd);
  }
  write(payloadEnd);
  return digest;
}

bool ReadsBackAs(std::string_view fileBytes, const PackedDigest& digest) {
  try {
    const ProgramImage image = ReadProgramImage(fileBytes);
    if (!image.hasProgram || image.programName != digest.programName + ".ZRC") return false;
    for (std::size_t unit = 0; unit < kSourceUnits; ++unit) {
      const std::string& name = unit == 0 ? kNoName : image.names[unit - 1];
      if (unit < digest.units.size()) {
        if (UnitDigest(name, image.codes[unit]) != digest.units[unit]) return false;
      } else if (!name.empty() || !image.codes[unit].empty()) {
        return false;
      }
    }
    return true;
  } catch (const RuntimeFault&) {
    return false;
  }
}

void CheckStub(std::string_view stub) {
  // The run-time takes the first of either marker in its file for its own.
  if (Contains(stub, StartMarker()) || Contains(stub, NameEndMarker())) {
    throw PackError("the stub already holds a program or a marker text: "
                    "the packed file would not run this program");
  }
}

std::string PackProgram(const std::string& programName, const std::vector<SourceUnit>& units) {
  std::string out;
  WriteProgram(programName, units, [&out](std::string_view piece) { out += piece; });
  return out;
}

std::string PackExecutable(std::string_view stub, const std::string& programName,
                           const std::vector<SourceUnit>& units) {
  CheckStub(stub);
  std::string bytes(stub);
  const PackedDigest digest =
      WriteProgram(programName, units, [&bytes](std::string_view piece) { bytes += piece; });
  if (!ReadsBackAs(bytes, digest)) {
    throw PackError("the stub already holds a program or a marker text: "
                    "the packed file would not run this program");
  }
  return bytes;
}

}  // namespace tamrix
