#include "bridges/func_call.h"

#include <dlfcn.h>
#include <ffi.h>

#include "core/fault.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

constexpr const char* kErrorTitle = "Function call error";

void* OpenLibrary(const std::string& name) {
  std::string path = name;
  for (char& c : path) {
    if (c == '\\') c = '/';
  }
  if (void* module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) return module;
  if (path.find('/') != std::string::npos || path.find(".so") != std::string::npos) return nullptr;
  for (const std::string& candidate : {"lib" + path + ".so", "lib" + path + ".so.6"}) {
    if (void* module = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL)) return module;
  }
  return nullptr;
}

}  // namespace

FuncCall::~FuncCall() { Release(); }

void FuncCall::Release() {
  if (module_ != nullptr) dlclose(module_);
  module_ = nullptr;
}

void FuncCall::SetLibraryName(const std::string& name) {
  Release();
  module_ = OpenLibrary(name);
  if (module_ == nullptr) box_(kErrorTitle, "Don't find library \"" + name + "\"");
}

void FuncCall::SetFunctionName(const std::string& name) {
  function_ = module_ != nullptr ? dlsym(module_, name.c_str()) : nullptr;
  if (function_ == nullptr) {
    box_(kErrorTitle, "Can't find the entry point for \"" + name +
                          "\"\r\nNote: functions are case sensitive, check the syntax of the function!");
  }
}

std::int32_t FuncCall::CallFunction(std::vector<std::string>& arguments) {
  if (function_ == nullptr) {
    box_("Function call error!", "Fun\xE7\xE3o n\xE3o definida!");
    return 0;
  }
  const bool none = arguments.empty() || arguments[0].empty();
  const std::size_t n = none ? 0 : arguments.size();
  std::vector<std::int64_t> words(n, 0);
  for (std::size_t i = 0; i < n; ++i) {
    std::string& entry = arguments[i];
    const bool forcedText = !entry.empty() && entry[0] == '$';
    if (forcedText) entry.erase(0, 1);
    if (!forcedText && IsNumeric(entry)) {
      words[i] = ToInt32(*ParseRegionalNumber(entry));
    } else if (i < buffers_.size()) {
      buffers_[i] = entry;
      buffers_[i].push_back('\0');
      words[i] = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(buffers_[i].data()));
    }
  }
  std::vector<ffi_type*> types(n, &ffi_type_sint64);
  std::vector<void*> values(n);
  for (std::size_t i = 0; i < n; ++i) values[i] = &words[i];
  ffi_cif cif;
  if (ffi_prep_cif(&cif, FFI_DEFAULT_ABI, static_cast<unsigned>(n), &ffi_type_sint64, types.data()) != FFI_OK) {
    Throw(kInvalidCall);
  }
  ffi_arg result = 0;
  ffi_call(&cif, FFI_FN(function_), &result, values.data());
  function_ = nullptr;
  if (!none) {
    for (std::size_t i = 0; i < n && i < buffers_.size(); ++i) {
      if (IsNumeric(arguments[i])) continue;
      arguments[i] = std::string(buffers_[i].c_str());
    }
  }
  // The result is the low 32 bits of the return register, read as signed.
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(result));
}

}  // namespace tamrix
