// Building a packed program: the run-time stub's bytes followed by the layout
// that ReadProgramImage reads back, each text encoded with EncodeText.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tamrix {

struct SourceUnit {
  std::string name;  // unit 0, the main unit, stores no name
  std::string text;  // Windows-1252 with CR LF line ends
};

// Why nothing was packed, as a sentence for the user.
class PackError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Source as the run-time reads it: UTF-8 becomes Windows-1252 and LF line
// ends become CR LF (CR LF stays); a leading byte-order mark is dropped. A
// line that is not UTF-8 or has no Windows-1252 form is refused, naming
// `label` and the line.
std::string ConvertSourceFile(std::string_view utf8, std::string_view label);

// Why `name` cannot be stored as a program name, or nothing. A stored name
// holds only upper-case letters A-Z, digits, "_" and "-", and at least one
// letter: a dot or a lower-case letter would keep the run-time from finding
// it again, and other characters could be taken for the markers.
std::optional<std::string> ProgramNameProblem(std::string_view name);

// The program name for MAIN: its base name without folder and extension,
// upper-cased. Refuses names that cannot be stored.
std::string ProgramNameOf(std::string_view mainPath);

// A further unit's name: its base name without folder and extension.
std::string UnitNameOf(std::string_view path);

// Reads and prepares MAIN and up to six further units, in that order.
std::vector<SourceUnit> LoadSourceUnits(const std::vector<std::string>& paths);

// The layout for `units` (one to seven, the first the main unit). Each text
// takes a key whose encoding holds no separator and no end of the payload,
// so that it reads back whole.
std::string PackProgram(const std::string& programName, const std::vector<SourceUnit>& units);

// What a packed file must read back as, without keeping the texts: the
// program's name, and a digest of each unit's name and text.
struct PackedDigest {
  std::string programName;
  std::vector<std::size_t> units;
};

// The layout for `units`, handed piece by piece to `write`; each unit's text
// is released once it is encoded, so that a large source is held about
// twice at most. Refuses what PackProgram refuses.
PackedDigest WriteProgram(const std::string& programName, std::vector<SourceUnit> units,
                          const std::function<void(std::string_view)>& write);

// True when `fileBytes` reads back as the packed program of `digest`.
bool ReadsBackAs(std::string_view fileBytes, const PackedDigest& digest);

// Refuses a stub that already holds a program or a marker text.
void CheckStub(std::string_view stub);

// `stub` followed by the layout, checked by reading it back: a stub that
// already holds a program or a marker text is refused.
std::string PackExecutable(std::string_view stub, const std::string& programName,
                           const std::vector<SourceUnit>& units);

}  // namespace tamrix
