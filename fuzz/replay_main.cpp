// Runs a fuzz target's entry point over saved inputs (files or folders), so
// that every input that once broke the run-time stays a regression test.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  std::vector<std::filesystem::path> inputs;
  for (int i = 1; i < argc; ++i) {
    const std::filesystem::path path(argv[i]);
    if (std::filesystem::is_directory(path)) {
      for (const auto& entry : std::filesystem::directory_iterator(path)) inputs.push_back(entry.path());
    } else if (std::filesystem::exists(path)) {
      inputs.push_back(path);
    }
  }
  for (const auto& input : inputs) {
    std::ifstream file(input, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  }
  std::cout << inputs.size() << " inputs replayed\n";
  return 0;
}
