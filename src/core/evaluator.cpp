#include "core/evaluator.h"

#include <algorithm>
#include <numeric>

#include "core/call_search_cache.h"
#include "core/expression_plan.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/keywords.h"
#include "core/numbers.h"
#include "core/procedures.h"
#include "core/text.h"

namespace tamrix {
namespace {

enum class Search { Found, NoCall, Unmatched };

// The search shared by both finders: `names` in order, the first whose first
// occurrence is followed by "(" or a blank. On a text whose brackets can't
// be matched, the stop box.
template <typename Names, typename OnFound>
Search FindCall(Interpreter& interpreter, std::string_view text, const Names& names,
                const std::vector<std::size_t>& order, const std::string& errorWord, CallRecord& call,
                OnFound onFound) {
  for (const std::size_t n : order) {
    const std::string& name = names[n];
    if (name.empty()) continue;
    const auto p = text.find(name);
    if (p == std::string_view::npos) continue;
    const auto behind = p + name.size();
    if (behind >= text.size() || (text[behind] != '(' && text[behind] != ' ')) continue;

    const std::string tagged = TagBrackets(text);
    const auto start = tagged.find(name);
    auto digit = start;
    while (digit < tagged.size() && !IsDigit(tagged[digit]) && tagged[digit] != '\r') ++digit;
    const auto q = digit < tagged.size() ? tagged.find(']', start) : std::string::npos;
    std::size_t r = std::string::npos;
    if (q != std::string::npos && q > 0) {
      const std::string closing = std::string("[") + tagged[q - 1];
      r = tagged.find(closing, q);
    }
    if (digit >= tagged.size() || q == std::string::npos || r == std::string::npos || digit == start) {
      interpreter.StopBox(errorWord + name + "\r\n\r\nMake sure you put the arguments in parentheses!");
      return Search::Unmatched;
    }
    call.name = Trim(tagged.substr(start, digit - start - 1));
    call.arguments = tagged.substr(q + 1, r - q - 1);
    onFound(n);
    return Search::Found;
  }
  return Search::NoCall;
}

// FindCall through a cache of what earlier searches of the same text
// found; `order` gives the places of the names worth trying, in list order.
template <typename Names, typename Order, typename OnFound>
bool FindCallCached(Interpreter& interpreter, CallSearchCache& cache, std::string_view text,
                    const Names& names, Order order, const std::string& errorWord, CallRecord& call,
                    OnFound onFound) {
  if (const CallSearchCache::Answer* answer = cache.Find(text)) {
    if (!answer->found) return false;
    call = answer->call;
    onFound(answer->nameIndex);
    return true;
  }
  CallSearchCache::Answer answer;
  const Search result = FindCall(interpreter, text, names, order(), errorWord, call, [&](std::size_t n) {
    answer.nameIndex = n;
    onFound(n);
  });
  if (result == Search::Unmatched) return false;
  const bool found = result == Search::Found;
  answer.found = found;
  if (found) answer.call = call;
  cache.Remember(text, std::move(answer));
  return found;
}

// The text behind a rewritten call: it starts two characters behind the end
// of the argument text, so the character behind the ")" is dropped.
std::size_t RestStart(const std::string& expr, const std::string& args, std::size_t from) {
  const auto at = expr.find(args, from);
  const std::size_t restStart = (at == std::string::npos ? 0 : at) + args.size() + 2 -
                                (at == std::string::npos ? 1 : 0);
  return std::min(restStart, expr.size());
}

// `head`, then `middle`, then `expr` from `restStart` on, as the new text of
// `expr`; gives the bytes brought back a second time, those of `expr` from
// `restStart` to the end of `head` when the rest starts in front of the
// call. A text can thus double with each rewrite: its size is checked
// before it is built, and it is built in one piece.
std::size_t Rewrite(std::string& expr, std::string_view head, std::string_view middle, std::size_t restStart,
                    std::size_t headEnd) {
  const std::size_t restSize = expr.size() - restStart;
  CheckTextSize(head.size() + middle.size() + restSize);
  std::string out;
  out.reserve(head.size() + middle.size() + restSize);
  out.append(head);
  out.append(middle);
  out.append(expr, restStart, restSize);
  expr = std::move(out);
  return headEnd > restStart ? headEnd - restStart : 0;
}

// Texts the finders pass over without a search.
bool CommandSearchSkips(std::string_view expr, std::string_view trimmed) {
  return StartsWith(expr, "RetStr String") || (StartsWith(trimmed, "\"") && EndsWith(trimmed, "\""));
}

bool FunctionSearchSkips(std::string_view expr) { return StartsWith(expr, "\""); }

// Every keyword holds a letter, and so does every function name unless the
// program declared one without: a text without letters holds no call, and
// both finders pass it over without a box.
bool MayHoldCall(Interpreter& interpreter, std::string_view text) {
  return interpreter.Procs().NameWithoutLetters() || std::any_of(text.begin(), text.end(), IsLetter);
}

}  // namespace

bool HoldsNoCall(Interpreter& interpreter, const std::string& expr) {
  return (CommandSearchSkips(expr, expr) || interpreter.CommandCallCache().KnownWithoutCall(expr)) &&
         (FunctionSearchSkips(expr) || interpreter.Procs().FunctionCallCache().KnownWithoutCall(expr));
}

void RewriteGuard::Step(const std::string& expr, std::size_t broughtBack) {
  constexpr int kMaxRewrites = 10000;
  constexpr std::size_t kMaxBroughtBack = std::size_t{16} << 20;
  if (++count_ > kMaxRewrites) Throw(kOutOfStackSpace);
  CheckTextSize(expr.size());
  broughtBack_ += broughtBack;
  if (broughtBack_ > kMaxBroughtBack) Throw(kOutOfMemory);
}

std::string TagBrackets(std::string_view text) {
  // Every tag holds a square bracket: a text without one is its own plain form.
  const bool tagged = text.find_first_of("[]") != std::string_view::npos;
  const std::string stripped = tagged ? StripTags(text) : std::string();
  const std::string_view plain = tagged ? std::string_view(stripped) : text;
  std::string out;
  out.reserve(plain.size() + plain.size() / 2);
  int depth = 0;
  for (char c : plain) {
    if (c == '(') {
      ++depth;
      out += '(';
      out += std::to_string(depth);
      out += ']';
    } else if (c == ')') {
      out += '[';
      out += std::to_string(depth);
      out += ')';
      --depth;
    } else {
      out += c;
    }
  }
  return out;
}

std::string StripTags(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    // Only a bracket can open a tag: a long run of digits is passed once.
    if (c != '(' && c != '[') {
      out += c;
      continue;
    }
    // "(<digits>]" and "[<digits>)", with an optional minus sign.
    std::size_t j = i + 1;
    if (j < text.size() && text[j] == '-') ++j;
    const std::size_t digits = j;
    while (j < text.size() && IsDigit(text[j])) ++j;
    const bool hasDigits = j > digits;
    if (c == '(' && hasDigits && j < text.size() && text[j] == ']') {
      out += '(';
      i = j;
    } else if (c == '[' && hasDigits && j < text.size() && text[j] == ')') {
      out += ')';
      i = j;
    } else {
      out += c;
    }
  }
  return out;
}

bool FindCommandCall(Interpreter& interpreter, std::string_view expr, CallRecord& call) {
  const std::string text = Trim(expr);
  if (CommandSearchSkips(expr, text)) return false;
  call = CallRecord();
  return FindCallCached(
      interpreter, interpreter.CommandCallCache(), text, KeywordList(), [&] { return KeywordCandidates(text); },
      "Error in command ", call, [](std::size_t) {});
}

bool FindFunctionCall(Interpreter& interpreter, std::string_view expr, CallRecord& call,
                      std::string& returnType) {
  returnType.clear();
  if (FunctionSearchSkips(expr)) return false;
  const std::string text = Trim(expr);
  call = CallRecord();
  Procedures& procs = interpreter.Procs();
  const auto everyName = [&] {
    std::vector<std::size_t> order(procs.FunctionNames().size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
  };
  return FindCallCached(interpreter, procs.FunctionCallCache(), text, procs.FunctionNames(), everyName,
                        "Error in function ", call, [&](std::size_t n) { returnType = procs.FunctionReturns()[n]; });
}

std::size_t ExecuteCommandCall(Interpreter& interpreter, std::string& expr, const CallRecord& call,
                               bool& numericFlag) {
  const auto p = expr.find(call.name);
  const std::size_t at = p == std::string::npos ? 0 : p;
  const auto close = expr.find(')', at);
  const std::string tail = close != std::string::npos && close + 1 < expr.size() ? expr.substr(close + 1, 1) : "";
  std::string head = expr.substr(0, at);
  const std::string args = StripTags(call.arguments);

  std::string runArgs = args;
  head += TextOf(interpreter.Commands().RunCommand(interpreter, call.name, runArgs));
  const bool numericCall = IsNumericKeyword(Upper(call.name));
  if (!numericCall) head += tail;

  if (!numericFlag && (Trim(args).empty() || interpreter.Variables().VarIndex(Trim(args)) >= 0)) {
    expr = head;  // whatever stood behind the call is lost
    return 0;
  }
  const auto firstBracket = expr.find('(');
  const std::size_t restStart = RestStart(expr, args, firstBracket == std::string::npos ? 0 : firstBracket);
  if (numericFlag) head = ReplaceAll(head, ",", ".");
  return Rewrite(expr, head, "", restStart, at);
}

std::size_t ExecuteFunctionCall(Interpreter& interpreter, std::string& expr, const CallRecord& call,
                                const std::string& returnType) {
  const auto p = expr.find(call.name);
  const std::size_t headSize = p == std::string::npos ? 0 : p;
  const std::string args = StripTags(call.arguments);
  std::string result = TextOf(CallFunction(interpreter, call.name, args));
  if (returnType == "Numero") {
    const auto comma = result.rfind(',');
    if (comma != std::string::npos) result[comma] = '.';
  }
  if (returnType == "String" && !StartsWith(result, "\"")) result = "\"" + result + "\"";
  return Rewrite(expr, std::string_view(expr).substr(0, headSize), result, RestStart(expr, args, 0), headSize);
}

bool IsArithmetic(std::string_view expr) {
  if (expr.find_first_of("/*-+^%") == std::string_view::npos) return false;
  if (StartsWith(expr, "\"")) return false;
  return !Trim(StripQuotes(expr)).empty();
}

std::string ExpandVariables(Interpreter& interpreter, std::string_view expr, int& itemCount) {
  std::string out;
  for (const auto& piece : SplitFormula(expr, itemCount)) {
    out += piece.isName ? TextOf(interpreter.Variables().GetVariable(piece.text)) : piece.text;
  }
  return out;
}

Value Evaluate(Interpreter& interpreter, std::string_view source, bool& numericFlag) {
  ExpressionPlans& plans = interpreter.Procs().Plans();
  if (const ExpressionPlan* plan = plans.Find(source)) return RunExpression(interpreter, *plan);
  std::string expr = Trim(StripTags(source));
  if (!MayHoldCall(interpreter, expr)) {
    if (!plans.Keeps(source)) return RunExpression(interpreter, ReadExpression(std::move(expr)));
    return RunExpression(interpreter, plans.Remember(source, ReadExpression(std::move(expr))));
  }
  bool rewritten = false;
  CallRecord call;
  RewriteGuard guard;
  while (FindCommandCall(interpreter, expr, call)) {
    if (IsNumericKeyword(Upper(call.name))) numericFlag = true;
    const std::size_t back = ExecuteCommandCall(interpreter, expr, call, numericFlag);
    guard.Step(expr, back);
    rewritten = true;
  }
  std::string returnType;
  while (FindFunctionCall(interpreter, expr, call, returnType)) {
    const std::size_t back = ExecuteFunctionCall(interpreter, expr, call, returnType);
    guard.Step(expr, back);
    rewritten = true;
  }
  if (!rewritten && plans.Keeps(source) && HoldsNoCall(interpreter, expr)) {
    return RunExpression(interpreter, plans.Remember(source, ReadExpression(std::move(expr))));
  }
  return RunExpression(interpreter, ReadExpression(std::move(expr)));
}

Value EvaluateText(Interpreter& interpreter, std::string_view source, bool& numericFlag) {
  std::string expr(source);
  CallRecord call;
  RewriteGuard guard;
  while (FindCommandCall(interpreter, expr, call)) {
    if (IsNumericKeyword(Upper(call.name))) numericFlag = true;
    const std::size_t back = ExecuteCommandCall(interpreter, expr, call, numericFlag);
    guard.Step(expr, back);
  }
  std::string returnType;
  while (FindFunctionCall(interpreter, expr, call, returnType)) {
    const std::size_t back = ExecuteFunctionCall(interpreter, expr, call, returnType);
    guard.Step(expr, back);
  }
  if (interpreter.Variables().VarIndex(expr) >= 0) return interpreter.Variables().GetVariable(expr);
  return StripQuotes(expr);
}

}  // namespace tamrix
