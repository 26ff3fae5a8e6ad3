// Whole-file and folder operations of the language, failing with the
// run-time's numbered faults.
#pragma once

#include <string_view>

namespace tamrix {

void RemoveFile(std::string_view languagePath);
void RenameFile(std::string_view from, std::string_view to);
// Overwrites the destination.
void CopyFile(std::string_view source, std::string_view destination);
// One folder; an existing one is fault 75, a missing parent 76.
void MakeFolder(std::string_view languagePath);
// One empty folder; a missing one is fault 76.
void RemoveFolder(std::string_view languagePath);

}  // namespace tamrix
