#include "image/program_image.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "core/codepage.h"
#include "core/fault.h"
#include "core/text.h"
#include "image/codec.h"

namespace tamrix {
namespace {

// Keeps the halves apart in the binary: the offset is unknown to the
// compiler, so it cannot fold the joined marker into one constant.
volatile std::size_t tailOffset = 0;

std::string Joined(std::string_view head, std::string_view tail) {
  std::string text(head);
  text += tail.substr(tailOffset);
  return text;
}

// The searches and cuts count as the run-time's string functions do: a
// 1-based position with 0 for "not found", and a cut of negative length is
// the fault 5.
long Position(std::string_view text, std::string_view part) {
  const auto at = text.find(part);
  return at == std::string_view::npos ? 0 : static_cast<long>(at) + 1;
}

// A view into `text`: a program's blobs are decoded from where they lie.
std::string_view Cut(std::string_view text, long start, long length) {
  if (length < 0) Throw(kInvalidCall);
  const auto from = static_cast<std::size_t>(start - 1);
  if (from >= text.size()) return {};
  return text.substr(from, static_cast<std::size_t>(length));
}

// Decodes the blob in front of `separator` and drops both.
std::string TakeBlob(std::string_view& rest, std::string_view separator) {
  const long at = Position(rest, separator);
  std::string blob = DecodeText(Cut(rest, 1, at - 1));
  rest.remove_prefix(static_cast<std::size_t>(at - 1) + separator.size());
  return blob;
}

std::string_view PayloadOf(std::string_view fileBytes, std::string_view name) {
  std::string key = Upper(name);
  // Meant to drop an extension; a name shorter than four cuts to a fault.
  if (Contains(key, ".")) key = std::string(Cut(key, 1, static_cast<long>(key.size()) - 4));
  const std::string start = StartMarker() + key + NameEndMarker();
  const long startAt = Position(fileBytes, start);
  const long payloadEnd = Position(fileBytes, EndMarker() + key);
  // A start that no longer matches (a dot cut the name) gives the empty
  // payload as well, though the shorter name may still find an end.
  if (startAt == 0 || payloadEnd < 1) return {};
  const long payloadStart = startAt + static_cast<long>(start.size());
  return Cut(fileBytes, payloadStart, payloadEnd - payloadStart);
}

long FaultForErrno(int error) {
  switch (error) {
    case ENOENT: return kFileNotFound;
    case ENOTDIR: return kPathNotFound;
    case EACCES:
    case EPERM: return kPermissionDenied;
    default: return kPathFileAccessError;
  }
}

}  // namespace

std::string StartMarker() { return Joined("INICIO", "PROGZR"); }
std::string NameEndMarker() { return Joined("#FIM", "NOME"); }
std::string EndMarker() { return Joined("FIM", "PROGZR"); }

ProgramImage ReadProgramImage(std::string_view fileBytes) {
  ProgramImage image;
  const std::string start = StartMarker();
  const long nameStart = Position(fileBytes, start) + static_cast<long>(start.size());
  const long nameEnd = Position(fileBytes, NameEndMarker());
  if (nameEnd == 0) return image;
  image.hasProgram = true;
  const std::string name(Cut(fileBytes, nameStart, nameEnd - nameStart));
  SplitSourceUnits(PayloadOf(fileBytes, name), image);
  image.programName = name + ".ZRC";
  image.apiLibraryUsed = ApiLibraryUsed(image.codes);
  return image;
}

std::string SplitProgramImage(std::string_view fileBytes, std::string_view name) {
  return std::string(PayloadOf(fileBytes, name));
}

void SplitSourceUnits(std::string_view payload, ProgramImage& image) {
  std::string_view rest = payload;
  image.codes[0] = TakeBlob(rest, kCodeEnd);
  for (std::size_t unit = 1; unit < kSourceUnits; ++unit) {
    if (Position(rest, kNameEnd) == 0) break;
    image.names[unit - 1] = TakeBlob(rest, kNameEnd);
    image.codes[unit] = TakeBlob(rest, kCodeEnd);
  }
}

bool ApiLibraryUsed(const std::array<std::string, kCodeSlots>& codes) {
  // Searched in place, without an upper-case copy of a large program.
  constexpr std::string_view kWords = "API LIBRARY";
  const auto sameLetter = [](char a, char b) { return UpperChar(a) == b; };
  for (std::size_t unit = 0; unit < kSourceUnits; ++unit) {
    const std::string& code = codes[unit];
    if (std::search(code.begin(), code.end(), kWords.begin(), kWords.end(), sameLetter) != code.end()) return true;
  }
  return false;
}

OwnFile LocateOwnFile() {
  std::error_code error;
  const auto path = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return {};
  return OwnFileAt(path.string());
}

OwnFile OwnFileAt(std::string_view path) {
  const std::filesystem::path file(path);
  OwnFile own;
  own.accepted = HasRunnableExtension(file.filename().string());
  own.path = file.string();
  own.programPath = Utf8ToCp1252Lossy(file.parent_path().string());
  if (!EndsWith(own.programPath, "/")) own.programPath += '/';
  return own;
}

bool HasRunnableExtension(std::string_view fileName) {
  const auto dot = fileName.rfind('.');
  if (dot == std::string_view::npos || dot == 0) return true;
  const std::string extension = Lower(fileName.substr(dot));
  return extension == ".exe" || extension == ".scr";
}

std::string FixedProgramPath(std::string_view programPath) {
  std::string fixed(programPath.substr(0, kProgramPathWidth));
  fixed.resize(kProgramPathWidth, ' ');
  return fixed;
}

std::string ReadWholeFile(const std::string& path) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) Throw(FaultForErrno(errno));
  std::string bytes;
  try {
    // Room for the whole file at once: a large file is held once, not
    // once and a half while its buffer grows.
    struct stat info {};
    if (::fstat(fd, &info) == 0 && info.st_size > 0) bytes.reserve(static_cast<std::size_t>(info.st_size));
    char buffer[65536];
    for (;;) {
      const ssize_t got = ::read(fd, buffer, sizeof buffer);
      if (got == 0) break;
      if (got < 0) {
        if (errno == EINTR) continue;
        Throw(FaultForErrno(errno));
      }
      bytes.append(buffer, static_cast<std::size_t>(got));
    }
  } catch (...) {
    ::close(fd);
    throw;
  }
  ::close(fd);
  return bytes;
}

}  // namespace tamrix
