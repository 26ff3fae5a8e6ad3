// tamrix-pack: joins the run-time stub "tamrix" and a program's source units
// into one executable, packs a program and runs it at once, or checks a
// program without running it.

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "core/codepage.h"
#include "core/fault.h"
#include "core/program_check.h"
#include "core/text.h"
#include "image/packer.h"
#include "image/program_image.h"

namespace tamrix {
namespace {

namespace fs = std::filesystem;

constexpr int kNothingPacked = 2;
constexpr int kCouldNotStart = 127;
constexpr int kSignalBase = 128;

constexpr std::string_view kHelp = R"(Usage: tamrix-pack [-o OUTPUT] MAIN.tam [UNIT.tam ...]
       tamrix-pack --run MAIN.tam [UNIT.tam ...] [-- ARGUMENTS ...]
       tamrix-pack --check MAIN.tam [UNIT.tam ...]

Packs a Tamrix program into one executable: a copy of the run-time "tamrix"
found beside tamrix-pack, followed by the program's source units.

  MAIN.tam     the main unit; up to six further units may follow it
  -o OUTPUT    the executable to write; by default the lower-case base name
               of MAIN in the current folder (hello.tam gives ./hello)
  --run        pack into a hidden temporary file beside MAIN, run it with
               ARGUMENTS as its command line, and remove it afterwards
  --check      read the program as the run-time does and list, without
               running it, what would stop or mislead a run: unbalanced
               If/While blocks, a Sub or Function without its end word,
               words at a statement start that nothing takes, GoTo labels
               that cannot be found and calls of undeclared functions, as
               FILE:LINE: MESSAGE lines
  -h, --help   show this text

Source files are UTF-8; they are stored in Windows-1252 with CR LF line ends
(a leading byte-order mark is dropped). A line that is not UTF-8, or holds a
character that Windows-1252 cannot store, is refused.

The program is named after MAIN: its base name without folder and extension,
upper-cased. That name may hold only letters A-Z, digits, "_" and "-", and at
least one letter: no dot, blank or accented letter. Further units are named
after their base names.

OUTPUT must have no extension, or ".exe" or ".scr": the run-time refuses to
start under any other name. It is written beside itself under a temporary
name first, so a failed run leaves no file behind.

Exit status: 0 when packed; 2 when nothing was written (a bad argument, a
missing or unreadable file, more than seven units, a name that cannot be
stored, text without a Windows-1252 form, no run-time beside tamrix-pack,
an OUTPUT that exists and is not a regular file, not enough memory).
With --check: 0 when nothing was found, 1 when something was, 2 when the
program could not be read. With --run: the program's exit status, 128 + n
when signal n ended it, 2 when it could not be packed, 127 when it could not
be started.
)";

// A mistake in the command line itself; the message points to --help.
class UsageError : public PackError {
 public:
  using PackError::PackError;
};

struct Options {
  bool help = false;
  bool run = false;
  bool check = false;
  std::string output;                  // empty: the default name
  std::vector<std::string> sources;    // MAIN first
  std::vector<std::string> arguments;  // the program's command line, with --run
};

Options ParseOptions(const std::vector<std::string>& args) {
  Options options;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "-h" || arg == "--help") {
      options.help = true;
    } else if (arg == "--run") {
      options.run = true;
    } else if (arg == "--check") {
      options.check = true;
    } else if (arg == "-o") {
      if (++i == args.size()) throw UsageError("-o needs a file name");
      options.output = args[i];
    } else if (arg == "--") {
      if (!options.run) throw UsageError("\"--\" passes arguments to the program only with --run");
      options.arguments.assign(args.begin() + static_cast<std::ptrdiff_t>(i) + 1, args.end());
      break;
    } else if (StartsWith(arg, "-") && arg != "-") {
      throw UsageError("unknown option " + arg);
    } else {
      options.sources.push_back(arg);
    }
  }
  if (options.help) return options;
  if (options.sources.empty()) throw UsageError("no MAIN file given");
  if (options.run && !options.output.empty()) throw UsageError("-o does not go with --run");
  if (options.check && (options.run || !options.output.empty())) {
    throw UsageError("--check goes neither with --run nor with -o");
  }
  return options;
}

std::string SystemError(const std::string& what) { return what + ": " + std::strerror(errno); }

fs::path OwnFolder() {
  std::error_code error;
  const auto self = fs::read_symlink("/proc/self/exe", error);
  if (error) throw PackError("cannot find tamrix-pack's own folder: " + error.message());
  return self.parent_path();
}

std::string ReadStub(const fs::path& stub) {
  try {
    return ReadWholeFile(stub.string());
  } catch (const RuntimeFault& fault) {
    throw PackError("no run-time stub at " + stub.string() + ": " + fault.Description());
  }
}

bool SameFile(const fs::path& a, const fs::path& b) {
  std::error_code error;
  return fs::equivalent(a, b, error);
}

fs::path OutputPath(const Options& options, const std::string& programName,
                    const fs::path& stub) {
  const fs::path output = options.output.empty() ? fs::path(Lower(programName))
                                                 : fs::path(options.output);
  std::error_code error;
  if (!output.has_filename() || fs::is_directory(output, error)) {
    throw PackError("the output " + output.string() + " is a folder, not a file");
  }
  if (!HasRunnableExtension(output.filename().string())) {
    throw PackError("the output " + output.string() +
                    " must have no extension, or .exe or .scr, or the run-time refuses it");
  }
  // A FIFO, a device or a socket under that name would be replaced by the
  // rename, and what stood there lost.
  if (fs::exists(output, error) && !fs::is_regular_file(output, error)) {
    throw PackError("the output " + output.string() + " exists and is not a regular file");
  }
  if (SameFile(output, stub)) throw PackError("the output would replace the run-time stub");
  for (const auto& source : options.sources) {
    if (SameFile(output, source)) throw PackError("the output would replace " + source);
  }
  return output;
}

// A file under a unique name, executable for everyone, removed again unless
// it is moved into place.
class TemporaryExecutable {
 public:
  // `prefix` is a path whose file name part begins the temporary name.
  explicit TemporaryExecutable(const fs::path& prefix) {
    std::string pattern = prefix.string() + "XXXXXX";
    fd_ = ::mkstemp(pattern.data());
    if (fd_ < 0) {
      const fs::path folder = prefix.has_parent_path() ? prefix.parent_path() : fs::path(".");
      throw PackError(SystemError("cannot create a file in " + folder.string()));
    }
    path_ = std::move(pattern);
  }
  ~TemporaryExecutable() {
    if (fd_ >= 0) ::close(fd_);
    if (!path_.empty()) ::unlink(path_.c_str());
  }
  TemporaryExecutable(const TemporaryExecutable&) = delete;
  TemporaryExecutable& operator=(const TemporaryExecutable&) = delete;

  const std::string& Path() const { return path_; }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t done = ::write(fd_, bytes.data(), bytes.size());
      if (done < 0 && errno == EINTR) continue;
      if (done <= 0) throw PackError(SystemError("cannot write " + path_));
      bytes.remove_prefix(static_cast<std::size_t>(done));
    }
  }

  // All is written: the file becomes executable and is closed.
  void Finish() {
    const bool done = ::fchmod(fd_, 0755) == 0;
    const bool closed = ::close(fd_) == 0;
    fd_ = -1;
    if (!done || !closed) throw PackError(SystemError("cannot write " + path_));
  }

  void MoveTo(const fs::path& target) {
    if (::rename(path_.c_str(), target.c_str()) != 0) {
      throw PackError(SystemError("cannot write " + target.string()));
    }
    path_.clear();
  }

 private:
  int fd_ = -1;
  std::string path_;
};

// The stub and the program written into `file` piece by piece and read back:
// the source is held about twice at most, never whole beside the file.
void WritePacked(TemporaryExecutable& file, const Options& options, const std::string& programName,
                 const fs::path& stub) {
  {
    const std::string stubBytes = ReadStub(stub);
    CheckStub(stubBytes);
    file.Write(stubBytes);
  }
  const PackedDigest digest = WriteProgram(programName, LoadSourceUnits(options.sources),
                                           [&file](std::string_view piece) { file.Write(piece); });
  file.Finish();
  if (!ReadsBackAs(ReadWholeFile(file.Path()), digest)) {
    throw PackError("the stub already holds a program or a marker text: "
                    "the packed file would not run this program");
  }
}

int Pack(const Options& options) {
  const std::string programName = ProgramNameOf(options.sources[0]);
  const fs::path stub = OwnFolder() / "tamrix";
  const fs::path output = OutputPath(options, programName, stub);
  const std::string hiddenName = "." + output.filename().string() + ".tamrix-pack-";
  TemporaryExecutable file(output.parent_path() / hiddenName);
  WritePacked(file, options, programName, stub);
  file.MoveTo(output);
  return 0;
}

// While the program runs, the keyboard's interrupt and quit reach only it, so
// that the packed file is still removed afterwards.
class KeyboardSignalsIgnored {
 public:
  KeyboardSignalsIgnored() {
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    ::sigaction(SIGINT, &ignore, &interrupt_);
    ::sigaction(SIGQUIT, &ignore, &quit_);
  }
  ~KeyboardSignalsIgnored() { Restore(); }
  KeyboardSignalsIgnored(const KeyboardSignalsIgnored&) = delete;
  KeyboardSignalsIgnored& operator=(const KeyboardSignalsIgnored&) = delete;

  void Restore() const {
    ::sigaction(SIGINT, &interrupt_, nullptr);
    ::sigaction(SIGQUIT, &quit_, nullptr);
  }

 private:
  struct sigaction interrupt_ {};
  struct sigaction quit_ {};
};

// Runs `program` with `arguments` as its command line and passes its exit
// status on.
int RunAndWait(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<char*> argv;
  argv.push_back(const_cast<char*>(program.c_str()));
  for (const auto& arg : arguments) argv.push_back(const_cast<char*>(arg.c_str()));
  argv.push_back(nullptr);

  const KeyboardSignalsIgnored keyboard;
  const pid_t child = ::fork();
  if (child == 0) {
    keyboard.Restore();
    ::execv(program.c_str(), argv.data());
    std::cerr << SystemError("tamrix-pack: cannot start " + program) << "\n";
    ::_exit(kCouldNotStart);
  }
  if (child < 0) {
    std::cerr << SystemError("tamrix-pack: cannot start " + program) << "\n";
    return kCouldNotStart;
  }
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  if (WIFSIGNALED(status)) return kSignalBase + WTERMSIG(status);
  return WEXITSTATUS(status);
}

int PackAndRun(const Options& options) {
  const fs::path main(options.sources[0]);
  const std::string programName = ProgramNameOf(main.string());
  // Beside MAIN, so that the program's folder is its source folder. The
  // leading dot is no extension, so the run-time accepts the name.
  TemporaryExecutable file(main.parent_path() / ("." + main.stem().string() + "-tamrix-run-"));
  WritePacked(file, options, programName, OwnFolder() / "tamrix");
  return RunAndWait(file.Path(), options.arguments);
}

// Lists the checker's findings as FILE:LINE: MESSAGE on the standard
// output; 1 when there are any.
int Check(const Options& options) {
  ProgramNameOf(options.sources[0]);  // a name the run-time could not start under is refused here too
  const std::vector<SourceUnit> units = LoadSourceUnits(options.sources);
  std::array<std::string, 7> codes;
  for (std::size_t i = 0; i < units.size(); ++i) codes[i] = units[i].text;
  const auto findings = CheckProgram(codes);
  for (const auto& finding : findings) {
    const auto unit = std::min(static_cast<std::size_t>(finding.unit), options.sources.size() - 1);
    std::cout << options.sources[unit] << ":" << finding.line << ": "
              << Cp1252ToUtf8(finding.message) << "\n";
  }
  return findings.empty() ? 0 : 1;
}

int Main(const std::vector<std::string>& args) {
  try {
    const Options options = ParseOptions(args);
    if (options.help) {
      std::cout << kHelp;
      return 0;
    }
    if (options.check) return Check(options);
    return options.run ? PackAndRun(options) : Pack(options);
  } catch (const UsageError& error) {
    std::cerr << "tamrix-pack: " << error.what() << "\nTry 'tamrix-pack --help'.\n";
  } catch (const PackError& error) {
    std::cerr << "tamrix-pack: " << error.what() << "\n";
  } catch (const std::bad_alloc&) {
    std::cerr << "tamrix-pack: not enough memory to pack the program\n";
  } catch (const RuntimeFault& fault) {
    std::cerr << "tamrix-pack: " << fault.Description() << "\n";
  }
  return kNothingPacked;
}

}  // namespace
}  // namespace tamrix

int main(int argc, char** argv) { return tamrix::Main({argv + 1, argv + argc}); }
