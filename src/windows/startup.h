// The start-up steps that turn the process's arguments and its own file into
// what the main window runs.
#pragma once

#include <string>

#include "core/interpreter.h"
#include "image/program_image.h"

namespace tamrix {

// The command-line tail: every argument after the program's own name, joined
// by blanks, as Windows-1252, with its quotes stripped.
std::string CommandLineTail(int argc, const char* const argv[]);

// What start-up hands to the main window for a program read from `own`.
LaunchInfo MakeLaunch(const ProgramImage& image, const OwnFile& own, std::string commandLine);

}  // namespace tamrix
