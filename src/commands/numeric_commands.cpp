// The mathematical functions, the conversions between numbers and text, and
// Format.
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

#include "commands/command_families.h"
#include "commands/format/format_value.h"
#include "commands/library_commands.h"
#include "core/evaluator.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/random_source.h"
#include "core/text.h"

namespace tamrix {
namespace {

double SquareRoot(double x) {
  if (x < 0) Throw(kInvalidCall);
  return std::sqrt(x);
}

double Logarithm(double x) {
  if (x <= 0) Throw(kInvalidCall);
  return std::log(x);
}

double Exponential(double x) {
  const double result = std::exp(x);
  if (std::isinf(result)) Throw(kOverflow);
  return result;
}

double Sign(double x) { return x > 0 ? 1.0 : (x < 0 ? -1.0 : 0.0); }

// The functions of one float argument that share one handler.
using MathFunction = double (*)(double);

CommandHandler MathCommand(MathFunction function) {
  return [function](CommandCall& call) -> Value {
    CommandArguments args(call, 1);
    return function(NumberArgument(args, 0));
  };
}

Value Int(CommandCall& call) {
  CommandArguments args(call, 1);
  return ToInt32(std::floor(NumberArgument(args, 0)));
}

// Tan and Atn convert their argument text as it stands, without the
// evaluator, and have no handler of their own.
CommandHandler RawTextCommand(MathFunction function) {
  return [function](CommandCall& call) -> Value {
    const auto number = ParseRegionalNumber(call.arguments);
    if (!number) Throw(kTypeMismatch);
    return function(*number);
  };
}

// Half to even on the double's exact value: 2.5 gives 2, 1.005 (stored a
// little below) gives 1.
double RoundHalfEven(double x, std::int32_t digits) {
  // Beyond this many places no double has digits left to round.
  constexpr std::int32_t kMostPlaces = 340;
  if (digits > kMostPlaces || !std::isfinite(x)) return x;
  const int length = std::snprintf(nullptr, 0, "%.*f", digits, x);
  std::vector<char> text(static_cast<std::size_t>(length) + 1);
  std::snprintf(text.data(), text.size(), "%.*f", digits, x);
  return std::strtod(text.data(), nullptr);
}

Value Round(CommandCall& call) {
  CommandArguments args(call, 2);
  const double x = NumberArgument(args, 0);
  const std::int32_t digits = args.Raw(1).empty() ? 0 : ToInt32(NumberArgument(args, 1));
  if (digits < 0) Throw(kInvalidCall);
  return RoundHalfEven(x, digits);
}

Value Random(CommandCall& call) {
  CommandArguments args(call, 1);
  const double n = NumberArgument(args, 0);
  return ToInt32(static_cast<double>(NextRandomSingle()) * n);
}

Value StrVal(CommandCall& call) {
  bool numeric = false;
  return Val(TextOf(EvaluateText(call.interpreter, StripTags(call.arguments), numeric)));
}

Value Hex(CommandCall& call) {
  CommandArguments args(call, 1);
  const auto word = static_cast<std::uint32_t>(ToInt32(NumberArgument(args, 0)));
  char text[9];
  std::snprintf(text, sizeof text, "%X", word);
  return Quoted(text);
}

// Eight digits from the weights 128 down to 1; a value above 255 isn't
// widened, so 256 gives 11111111.
Value DecToBin(CommandCall& call) {
  CommandArguments args(call, 1);
  int rest = ToInt16(NumberArgument(args, 0));
  std::string digits;
  for (int weight = 128; weight >= 1; weight /= 2) {
    const bool set = rest >= weight;
    digits += set ? '1' : '0';
    if (set) rest -= weight;
  }
  return digits;
}

// The weight is a 16-bit number that doubles behind every character, so a
// text of 15 characters or more overflows.
Value BinToDec(CommandCall& call) {
  CommandArguments args(call, 1);
  const std::string text = args.Text(0);
  if (text == "00000000") return std::int32_t{0};
  std::int32_t value = 0;
  std::int16_t weight = 1;
  for (auto c = text.rbegin(); c != text.rend(); ++c) {
    if (*c == '1') value += weight;
    weight = ToInt16(weight * 2.0);
  }
  return value;
}

// Columns and lines of the current window, rounded half to even after
// adding one half.
Value WindowWidth(CommandCall& call) {
  Interpreter& in = call.interpreter;
  return ToInt32(in.Windows().CurrentSurface().ClientWidth() / in.Coordinates().colSize + 0.5);
}

Value WindowHeight(CommandCall& call) {
  Interpreter& in = call.interpreter;
  return ToInt32(in.Windows().CurrentSurface().ClientHeight() / in.Coordinates().linSize + 0.5);
}

Value Format(CommandCall& call) {
  CommandArguments args(call, 2);
  const std::string value = TextArgument(args, 0);
  return Quoted(FormatValue(value, args.Text(1)));
}

}  // namespace

void RegisterNumericCommands(Dispatcher& dispatcher) {
  constexpr auto kZero = FailureResult::Zero;
  constexpr auto kCommand = LibraryGuard::Command;
  const std::array<LibraryCommand, 20> commands{{
      {"Abs", MathCommand([](double x) { return std::fabs(x); }), kCommand, kZero},
      {"Sgn", MathCommand(Sign), kCommand, kZero},
      {"Fix", MathCommand([](double x) { return std::trunc(x); }), kCommand, kZero},
      {"Sqr", MathCommand(SquareRoot), kCommand, kZero},
      {"Exp", MathCommand(Exponential), kCommand, kZero},
      {"Log", MathCommand(Logarithm), kCommand, kZero},
      {"Sin", MathCommand([](double x) { return std::sin(x); }), kCommand, kZero},
      {"Cos", MathCommand([](double x) { return std::cos(x); }), kCommand, kZero},
      {"Tan", RawTextCommand([](double x) { return std::tan(x); }), LibraryGuard::None},
      {"Atn", RawTextCommand([](double x) { return std::atan(x); }), LibraryGuard::None},
      {"Int", Int, LibraryGuard::Function, kZero},
      {"Round", Round, kCommand, kZero},
      {"Random", Random, kCommand, kZero},
      {"StrVal", StrVal, kCommand, kZero},
      {"Hex", Hex, kCommand, kZero},
      {"DecToBin", DecToBin, kCommand, kZero},
      {"BinToDec", BinToDec, kCommand, kZero},
      {"Format", Format, kCommand, kZero},
      {"WindowWidth", WindowWidth, LibraryGuard::None},
      {"WindowHeight", WindowHeight, LibraryGuard::None},
  }};
  RegisterLibraryCommands(dispatcher, commands);
}

}  // namespace tamrix
