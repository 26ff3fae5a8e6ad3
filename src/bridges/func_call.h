// Calls any exported function of any library, with arguments that are
// machine words: numbers, or addresses of text buffers that the callee may
// write into and that are read back after the call.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tamrix {

class FuncCall {
 public:
  // Shows a failure: a box with the critical icon, one OK button, a title.
  using FailureBox = std::function<void(const std::string& title, const std::string& text)>;

  explicit FuncCall(FailureBox box) : box_(std::move(box)) {}
  ~FuncCall();
  FuncCall(const FuncCall&) = delete;
  FuncCall& operator=(const FuncCall&) = delete;

  // Releases the library loaded before, then loads this one: a soname or a
  // path; a bare name is also tried as lib<name>.so and lib<name>.so.6.
  void SetLibraryName(const std::string& name);
  // Finds the entry point in the loaded library, exact in case.
  void SetFunctionName(const std::string& name);
  // 0 for callee cleans the stack, 1 for caller cleans it. The x86-64 calling
  // convention has one rule for both, so the value is only kept.
  void SetCallType(std::int32_t type) { callType_ = type; }

  // Calls the function with one word per entry of `arguments`: a numeric
  // entry goes as its number, any other (or one marked by a leading "$",
  // which is removed) as the address of a text buffer, for the first ten.
  // Texts that the callee left in the buffers are copied back into the
  // entries that are not numeric. An empty first entry means no arguments.
  // Returns the function's 32-bit result; the address is cleared.
  std::int32_t CallFunction(std::vector<std::string>& arguments);

  // Releases the loaded library, if any.
  void Release();

 private:
  FailureBox box_;
  void* module_ = nullptr;
  void* function_ = nullptr;
  std::int32_t callType_ = 0;
  std::array<std::string, 10> buffers_;
};

}  // namespace tamrix
