// Paths between the language and the operating system. Programs write "\"
// or "/" between folders, in Windows-1252; the system takes "/" and UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tamrix {

std::filesystem::path OsPath(std::string_view languagePath);
std::string LanguagePath(const std::filesystem::path& path);

// True when a file (not a folder) stands at the path.
bool FileExists(std::string_view languagePath);

// A bare name is taken from the program's folder (`programPath`, ending in
// "/", cut at 100 characters), any other path as written; the result is
// empty when no file stands there.
std::string ResolvePath(std::string_view path, std::string_view programPath);

}  // namespace tamrix
