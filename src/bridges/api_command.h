// The API command: LIBRARY, FUNCTIONNAME, EXECUTE and ARGUMENT.
#pragma once

#include <cstdint>
#include <functional>

namespace tamrix {

class Interpreter;

// `windowHandle` gives the main window's handle for the word "HWND".
void RegisterApiCommand(Interpreter& interpreter, std::function<std::uint64_t()> windowHandle);

}  // namespace tamrix
