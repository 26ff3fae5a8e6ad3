#include "windows/startup.h"

#include <utility>

#include "core/codepage.h"
#include "core/text.h"

namespace tamrix {

std::string CommandLineTail(int argc, const char* const argv[]) {
  std::string tail;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) tail += ' ';
    tail += argv[i];
  }
  return StripQuotes(Utf8ToCp1252Lossy(tail));
}

LaunchInfo MakeLaunch(const ProgramImage& image, const OwnFile& own, std::string commandLine) {
  LaunchInfo launch;
  for (std::size_t unit = 0; unit < launch.codes.size(); ++unit) launch.codes[unit] = image.codes[unit];
  launch.programName = image.programName;
  launch.programPath = own.programPath;
  launch.commandLine = std::move(commandLine);
  return launch;
}

}  // namespace tamrix
