// Finding the program inside a packed executable. The file is the run-time's
// own bytes, then "INICIOPROGZR", the program name, "#FIMNOME", the payload,
// "FIMPROGZR" and the name again. The payload is the encoded main unit and
// "#~^", then per further unit its encoded name, "&~^", its encoded text and
// "#~^". Every search is a plain byte search from the file's first byte.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace tamrix {

inline constexpr std::size_t kSourceUnits = 7;
inline constexpr std::size_t kCodeSlots = 11;  // only 0 to 6 are ever filled
inline constexpr std::size_t kProgramPathWidth = 100;

// The markers are built at run time, never held whole as literals: the
// reader searches its own file and must not find them in the run-time's code.
// Nothing else in the run-time may hold them as literals either.
std::string StartMarker();    // the file's start marker
std::string NameEndMarker();  // closes the name behind the start marker
std::string EndMarker();      // closes the payload, followed by the name
inline constexpr std::string_view kCodeEnd = "#~^";
inline constexpr std::string_view kNameEnd = "&~^";

struct ProgramImage {
  bool hasProgram = false;  // false: the run-time shows its about window
  std::array<std::string, kCodeSlots> codes;   // decoded text per unit
  std::array<std::string, kSourceUnits> names;  // names[i - 1] names unit i
  std::string programName;  // the name as stored, with ".ZRC" behind it
  bool apiLibraryUsed = false;
};

// Parses a whole executable. A damaged layout ends in the faults that the
// run-time's string cuts give: a payload without "#~^" (for example a stored
// name with a dot or lower-case letters) is fault 5.
ProgramImage ReadProgramImage(std::string_view fileBytes);

// The payload for `name`, searched anew by its upper-cased form (less four
// characters when it holds a dot); empty unless both the start marker and the
// end marker with that name are found.
std::string SplitProgramImage(std::string_view fileBytes, std::string_view name);

// Decodes the units of `payload` into image.codes and image.names; more than
// six further units are ignored.
void SplitSourceUnits(std::string_view payload, ProgramImage& image);

// True when any unit holds "API LIBRARY" in any case.
bool ApiLibraryUsed(const std::array<std::string, kCodeSlots>& codes);

// Launch on Linux.

inline constexpr std::string_view kInvalidExtensionMessage = "Invalid executable extension!";

struct OwnFile {
  bool accepted = false;    // false: show kInvalidExtensionMessage and stop
  std::string path;         // the executable, as the file system names it
  std::string programPath;  // its folder and "/", as a language text
};

// The running executable, found through /proc/self/exe.
OwnFile LocateOwnFile();
// The launch rules for the executable at the absolute `path`: a name with no
// extension, ".exe" or ".scr" (in any case) may start; a leading dot does not
// count as an extension.
OwnFile OwnFileAt(std::string_view path);
bool HasRunnableExtension(std::string_view fileName);

// ProgramPath as the fixed text of 100 characters: blank-padded, cut at 100.
std::string FixedProgramPath(std::string_view programPath);

// The whole file, one character per byte. Fails with fault 53, 70 or 75.
std::string ReadWholeFile(const std::string& path);

}  // namespace tamrix
