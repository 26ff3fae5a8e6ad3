#include "core/executor.h"

#include <array>
#include <cstdlib>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "core/conditions.h"
#include "core/dispatcher.h"
#include "core/evaluator.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/keywords.h"
#include "core/numbers.h"
#include "core/preparation.h"
#include "core/procedures.h"
#include "core/stack_guard.h"
#include "core/text.h"

namespace tamrix {
namespace {

// "&#" and the statement number in five digits (more when it is larger).
std::string LineTag(int pc) {
  std::string tag = "&#00000";
  const std::string digits = std::to_string(pc);
  if (digits.size() >= 5) return "&#" + digits;
  tag.replace(tag.size() - digits.size(), digits.size(), digits);
  return tag;
}

// "name += value" or "name -= value", with the blank before the sign put
// in when the name is glued to it.
struct CompoundForm {
  char sign = 0;
  std::string name;
  std::string value;
};

std::optional<CompoundForm> ReadCompound(const std::string& text, char sign) {
  const char glued[] = {sign, ' ', '=', ' ', '\0'};
  const char spaced[] = {' ', sign, ' ', '=', '\0'};
  std::string withBlank;
  const std::string* lineText = &text;
  if (const auto g = text.find(glued); g != std::string::npos && g > 0 && text[g - 1] != ' ') {
    withBlank = text;
    withBlank.insert(g, " ");
    lineText = &withBlank;
  }
  const std::string& line = *lineText;
  const auto p = line.find(spaced);
  if (p == std::string::npos) return std::nullopt;
  const auto blank = p == 0 ? std::string::npos : line.rfind(' ', p - 1);
  const auto nameStart = blank == std::string::npos ? 0 : blank + 1;
  return CompoundForm{sign, line.substr(nameStart, p - nameStart),
                      line.size() > p + 5 ? line.substr(p + 5) : std::string()};
}

// The name counted by "name++" or "name--": the last word before the sign;
// blanks between them are passed over, so "n --" counts n down like "n--".
std::string IncrementedName(const std::string& line, std::string_view sign) {
  const std::string before = TrimRight(line.substr(0, line.find(sign)));
  const auto blank = before.rfind(' ');
  return before.substr(blank == std::string::npos ? 0 : blank + 1);
}

// The text behind "=" of an assignment line, and whether the line names a
// call whose parts are evaluated as texts.
struct AssignedText {
  std::string text;
  bool textParts = false;
};

AssignedText ReadAssignedText(const std::string& line, const std::string& upper) {
  const auto equals = line.find('=');
  return {Trim(equals == std::string::npos ? line : line.substr(equals + 1)),
          Contains(upper, "CHR(") || Contains(upper, "JOIN(") || Contains(upper, "FORMAT(") ||
              Contains(upper, "DIRECTORY(") || Contains(upper, "SQL(")};
}

// A marker found by a block search, and the line it stands in: that line's
// start and statement number (-1 when no line tag stands before it).
struct LinePlace {
  std::size_t found = npos;
  std::size_t start = npos;
  int number = -1;
};

// What the main loop needs to know of a line, found once per line: a
// frame's text never changes, so neither does anything read off a line.
struct LineForm {
  std::string line;
  std::string upper;
  std::string errorPosition;
  bool endProgram = false;
  bool endFunction = false;
  bool endWindow = false;
  bool newWindow = false;
  // Where the statement's names were last found.
  NameCache wordFound;
  NameCache incrementFound;
  NameCache compoundFound;
  char increment = 0;  // '+' or '-' for "name++" and "name--"
  std::string incrementName;
  std::optional<CompoundForm> compound;
  std::size_t goTo = npos;
  std::size_t whileAt = npos;
  std::size_t loopAt = npos;
  std::size_t endIfAt = npos;
  std::size_t ifAt = npos;
  std::size_t elseAt = npos;
  bool mentionsMouseClick = false;
  // The conditions of "While[" and "If[", cut at their first run.
  std::optional<ConditionSplit> whileCondition;
  std::optional<ConditionSplit> ifCondition;
  // The statement's first word and what stands behind it.
  std::string word;
  std::string upperWord;
  std::string rest;
  std::optional<bool> isCommand;
  // An assignment: the text behind "=", and the parts it splits into once
  // the text is known to hold no call (the split of such a text is fixed).
  std::optional<AssignedText> assigned;
  std::optional<std::vector<std::string>> assignedParts;
  // The statement number of the line behind this one, kept for the number
  // it was searched for.
  int nextFor = -1;
  std::size_t nextStart = npos;
  // The answers of this line's block searches and its depth tags' slots,
  // found at their first run.
  std::optional<LinePlace> loopBehind;  // "Loop[d]" behind a While
  std::optional<LinePlace> whileBefore;  // "While[d]" before a Loop
  std::optional<LinePlace> endIfBehind;  // "EndIf[d]" behind an If, found with
  std::optional<LinePlace> elseBehind;   // "Else[d]" behind it
  std::optional<LinePlace> endIfBehindElse;  // "EndIf[d]" behind an Else
  std::optional<int> endIfSlot;
  std::optional<int> ifSlot;
  std::optional<int> elseSlot;
};

// Fills `slot` at its first use.
template <typename T, typename Make>
T& Once(std::optional<T>& slot, Make make) {
  if (!slot) slot = make();
  return *slot;
}

LineForm ReadLineForm(std::string line) {
  LineForm form;
  if (line.size() >= kStatementColumn) {
    form.errorPosition = "Editor: " + std::to_string(std::atol(line.substr(16, 2).c_str())) +
                         " Line: " + std::to_string(std::atol(line.substr(9, 5).c_str()) + 1);
  }
  form.upper = Upper(line);
  form.endProgram = Contains(form.upper, "ENDPROGRAM");
  form.endFunction = Contains(form.upper, "ENDFUNCTION");
  form.endWindow = Contains(form.upper, "ENDWINDOW");
  form.newWindow = Contains(form.upper, "NEWWINDOW");
  if (EndsWith(line, "++") || EndsWith(line, "--")) {
    form.increment = line.back();
    form.incrementName = IncrementedName(line, form.increment == '+' ? "++" : "--");
  } else if (auto plus = ReadCompound(line, '+')) {
    form.compound = std::move(plus);
  } else {
    form.compound = ReadCompound(line, '-');
  }
  form.goTo = line.find("GoTo");
  form.whileAt = line.find("While[");
  form.loopAt = line.find("Loop[");
  form.endIfAt = line.find("EndIf[");
  form.ifAt = line.find("If[");
  form.elseAt = line.find("Else[");
  form.mentionsMouseClick = Contains(line, "MouseClick");

  const std::string statement = line.size() > kStatementColumn ? line.substr(kStatementColumn) : std::string();
  form.word = statement.substr(0, statement.find(' '));
  form.upperWord = Upper(form.word);
  form.rest = line.size() > form.word.size() + 20 ? line.substr(form.word.size() + 20) : std::string();
  form.line = std::move(line);
  return form;
}

class Frame {
 public:
  Frame(Interpreter& interpreter, std::string text) : in_(interpreter), text_(std::move(text)) {}

  void Run(int firstLine);

 private:
  enum class Next { Line, Jumped, End };

  bool Fetch(int firstLine);
  bool Advance();
  void JumpToLineAt(std::size_t position);
  LinePlace PlaceOf(std::size_t found) const;
  Next Step();
  LineForm& FormOfLine();
  enum class Direction { Forward, Backward };
  LinePlace Locate(const std::string& marker, std::size_t from, Direction direction) const;
  int& SlotOf(std::optional<int>& slot, const std::string& line, std::size_t open);
  ConditionArrays& Conditions() {
    if (!conditions_) conditions_ = std::make_unique<ConditionArrays>();
    return *conditions_;
  }
  Next Increment(LineForm& form);
  void CompoundAssign(LineForm& form);
  Next GoTo(const std::string& line, std::size_t p);
  std::string Depth(const std::string& line, std::size_t open) const;
  void Dispatch(LineForm& form);
  void Assign(LineForm& form, bool numeric);
  void StoreParts(LineForm& form, const std::vector<std::string>& parts, bool numeric);
  void Concatenate(const std::string& expr, const std::string& word);
  bool AppendInPlace(const std::vector<std::string>& pieces, const std::string& word);
  std::string GoToPrefix(const std::string& line) const;

  Interpreter& in_;
  std::string text_;
  int pc_ = 0;
  std::size_t lineStart_ = 0;
  std::array<std::string, 21> ifState_;
  // Made at the frame's first condition: most function bodies have none.
  std::unique_ptr<ConditionArrays> conditions_;
  bool flag_ = false;
  std::unordered_map<std::size_t, LineForm> forms_;
  LineForm* form_ = nullptr;  // the form of the line at formStart_
  std::size_t formStart_ = npos;
};

LineForm& Frame::FormOfLine() {
  if (formStart_ == lineStart_) return *form_;
  auto hit = forms_.find(lineStart_);
  if (hit == forms_.end()) {
    auto lineEnd = text_.find(kCrLf, lineStart_);
    if (lineEnd == std::string::npos) lineEnd = text_.size();
    hit = forms_.emplace(lineStart_, ReadLineForm(text_.substr(lineStart_, lineEnd - lineStart_))).first;
  }
  formStart_ = lineStart_;
  form_ = &hit->second;
  return *form_;
}

LinePlace Frame::PlaceOf(std::size_t found) const {
  LinePlace place;
  place.found = found;
  place.start = text_.rfind("&#", found);
  if (place.start != std::string::npos) place.number = std::atoi(text_.substr(place.start + 2, 5).c_str());
  return place;
}

LinePlace Frame::Locate(const std::string& marker, std::size_t from, Direction direction) const {
  const auto found = direction == Direction::Forward ? text_.find(marker, from) : text_.rfind(marker, from);
  return found == std::string::npos ? LinePlace() : PlaceOf(found);
}

void Frame::JumpToLineAt(std::size_t position) {
  const LinePlace place = PlaceOf(position);
  lineStart_ = place.start;
  pc_ = place.number;
}

bool Frame::Fetch(int firstLine) {
  lineStart_ = firstLine == 0 ? text_.find("&#") : text_.find(LineTag(firstLine));
  if (lineStart_ == std::string::npos) return false;
  pc_ = std::atoi(text_.substr(lineStart_ + 2, 5).c_str());
  return true;
}

bool Frame::Advance() {
  ++pc_;
  LineForm& form = FormOfLine();
  if (form.nextFor != pc_) {
    form.nextFor = pc_;
    form.nextStart = text_.find(LineTag(pc_), lineStart_);
  }
  if (form.nextStart == std::string::npos) return false;
  lineStart_ = form.nextStart;
  return true;
}

void Frame::Run(int firstLine) {
  in_.State().stopFlag = false;
  if (!Fetch(firstLine)) return;
  for (;;) {
    const Next next = Step();
    if (next == Next::End) return;
    if (next == Next::Line && !Advance()) return;
  }
}

std::string Frame::Depth(const std::string& line, std::size_t open) const {
  const auto close = line.find(']', open);
  return close == std::string::npos ? line.substr(open) : line.substr(open, close - open);
}

// The If state slot named by the depth tag opened at `open`, kept in `slot`
// once read (a tag that is no slot faults at every run).
int& Frame::SlotOf(std::optional<int>& slot, const std::string& line, std::size_t open) {
  return Once(slot, [&] {
    const auto parsed = ParseRegionalNumber(Depth(line, open));
    if (!parsed) Throw(kTypeMismatch);
    const int index = ToInt16(*parsed);
    if (index < 0 || index > 20) Throw(kSubscriptOutOfRange);
    return index;
  });
}

std::string Frame::GoToPrefix(const std::string& line) const {
  if (line.size() < kStatementColumn) return "Error in command GoTo (Ed.: 0 Line 0): ";
  const long unit = std::atol(line.substr(16, 2).c_str());
  const long source = std::atol(line.substr(9, 5).c_str());
  return "Error in command GoTo (Ed.: " + std::to_string(unit) + " Line " + std::to_string(source + 1) + "): ";
}

Frame::Next Frame::Step() {
  RunState& state = in_.State();
  if (!state.programActive || state.windowStopFlag || state.stopFlag) return Next::End;
  if (state.statementBudget == 0) {
    state.programActive = false;
    return Next::End;
  }
  if (state.statementBudget > 0) --state.statementBudget;

  LineForm& form = FormOfLine();
  if (!form.errorPosition.empty()) state.errorPosition = form.errorPosition;
  if (form.endProgram) {
    state.stopFlag = true;
    return Next::End;
  }
  if (form.endFunction) return Next::End;
  if (form.endWindow) {
    in_.Screen().CloseMainWindow();
    return Next::End;
  }

  const std::string& line = form.line;
  if (form.increment != 0) return Increment(form);
  if (form.compound) {
    CompoundAssign(form);
    return Next::Line;
  }

  if (form.newWindow) {
    std::string arguments = line.size() > 29 ? line.substr(29) : std::string();
    in_.Commands().RunCommand(in_, "NewWindow", arguments);
    return Next::Line;
  }
  if (line.size() >= kStatementColumn + 2 && line.compare(kStatementColumn, 2, "DB") == 0 &&
      in_.DatabaseBlockReader()) {
    pc_ = in_.DatabaseBlockReader()(in_, text_, lineStart_, pc_);
    return Next::Line;
  }
  if (form.goTo != npos) return GoTo(line, form.goTo);

  if (const auto p = form.whileAt; p != npos) {
    if (!form.whileCondition) form.whileCondition = ReadCondition(line.size() > p + 9 ? line.substr(p + 9) : "");
    if (EvaluateCondition(in_, *form.whileCondition, Conditions(), flag_) == "TRUE") return Next::Line;
    const LinePlace& loop = Once(form.loopBehind, [&] {
      return Locate("Loop[" + Depth(line, p + 6) + "]", lineStart_, Direction::Forward);
    });
    if (loop.found != npos) {
      pc_ = loop.number;
      return Next::Line;
    }
  }
  if (const auto p = form.loopAt; p != npos) {
    const LinePlace& loopStart = Once(form.whileBefore, [&] {
      return lineStart_ == 0 ? LinePlace() : Locate("While[" + Depth(line, p + 5) + "]", lineStart_ - 1, Direction::Backward);
    });
    if (loopStart.found != npos) {
      lineStart_ = loopStart.start;
      pc_ = loopStart.number;
      return Next::Jumped;
    }
  }
  bool reachedElse = false;
  if (const auto p = form.endIfAt; p != npos) {
    ifState_[static_cast<std::size_t>(SlotOf(form.endIfSlot, line, p + 6))].clear();
    reachedElse = true;
  }
  if (const auto p = form.ifAt; !reachedElse && p != npos) {
    std::string& ifState = ifState_[static_cast<std::size_t>(SlotOf(form.ifSlot, line, p + 3))];
    if (!form.ifCondition) form.ifCondition = ReadCondition(line.size() > p + 6 ? line.substr(p + 6) : "");
    ifState = EvaluateCondition(in_, *form.ifCondition, Conditions(), flag_);
    if (form.mentionsMouseClick) in_.Variables().SetVariable("MouseClick", std::string("FALSE"), false);
    if (ifState == "TRUE") return Next::Line;
    if (!form.endIfBehind) {
      const std::string d = Depth(line, p + 3);
      form.endIfBehind = Locate("EndIf[" + d + "]", lineStart_, Direction::Forward);
      form.elseBehind = Locate("Else[" + d + "]", lineStart_, Direction::Forward);
    }
    const LinePlace& endIf = *form.endIfBehind;
    const LinePlace& elseAt = *form.elseBehind;
    if (endIf.found != npos) {
      const int e = endIf.number;
      const int x = elseAt.found == npos ? -1 : elseAt.number;
      if (x < 0 || x >= e) {
        pc_ = e;
        ifState.clear();
      } else {
        pc_ = x;
      }
      return Next::Line;
    }
  }
  if (const auto p = form.elseAt; p != npos) {
    std::string& ifState = ifState_[static_cast<std::size_t>(SlotOf(form.elseSlot, line, p + 5))];
    if (ifState == "FALSE") return Next::Line;
    const LinePlace& endIf = Once(form.endIfBehindElse, [&] {
      return Locate("EndIf[" + Depth(line, p + 5) + "]", lineStart_, Direction::Forward);
    });
    if (endIf.found != npos) {
      pc_ = endIf.number;
      ifState.clear();
      return Next::Line;
    }
  }
  Dispatch(form);
  return Next::Line;
}

Frame::Next Frame::Increment(LineForm& form) {
  flag_ = true;
  VariableStore& vars = in_.Variables();
  const Value one = std::int32_t{1};
  const Value current = vars.GetVariable(form.incrementName, &form.incrementFound);
  vars.SetVariable(form.incrementName, form.increment == '+' ? AddValues(current, one) : SubtractValues(current, one),
                   flag_, &form.incrementFound);
  return Next::Line;
}

void Frame::CompoundAssign(LineForm& form) {
  const CompoundForm& compound = *form.compound;
  VariableStore& vars = in_.Variables();
  const Value current = vars.GetVariable(compound.name, &form.compoundFound);
  const Value operand = Evaluate(in_, compound.value, flag_);
  vars.SetVariable(compound.name, compound.sign == '+' ? AddValues(current, operand) : SubtractValues(current, operand),
                   flag_, &form.compoundFound);
}

Frame::Next Frame::GoTo(const std::string& line, std::size_t p) {
  const std::string label = line.size() > p + 5 ? line.substr(p + 5) : std::string();
  if (EndsWith(label, ":")) {
    in_.StopBox(GoToPrefix(line) + "Label can't have character : (colon)!");
    return Next::End;
  }
  const auto target = text_.find(label + ":");
  if (target == std::string::npos || text_.rfind("&#", target) == std::string::npos) {
    in_.StopBox(GoToPrefix(line) + "Label not found: " + label + ":");
    return Next::End;
  }
  JumpToLineAt(target);
  return Next::Jumped;
}

void Frame::Dispatch(LineForm& form) {
  const std::string& word = form.word;
  VariableStore& vars = in_.Variables();
  if (form.upperWord == "VAR" || form.upperWord == "VARIABLE") {
    in_.DeclareVariables(form.rest, flag_);
  } else if (in_.Procs().IsSub(word)) {
    ExecuteSub(in_, word);
  } else if (form.upperWord == "RETURN") {
    in_.State().returnValue = Evaluate(in_, form.rest, flag_);
  } else if (vars.VarIndex(word, &form.wordFound) >= 0) {
    Assign(form, vars.LastVarType() != VarType::String);
  } else if (Once(form.isCommand, [&] { return IsCommandWord(word) || StartsWith(form.upperWord, "REP."); })) {
    std::string arguments = form.rest;
    in_.Commands().RunCommand(in_, word, arguments);
  } else {
    in_.QueryBox(in_.State().errorPosition + "\r\nError: variable undeclared: " + word);
  }
}

void Frame::Assign(LineForm& form, bool numeric) {
  if (form.assignedParts) {
    StoreParts(form, *form.assignedParts, numeric);
    return;
  }
  const std::string& word = form.word;
  VariableStore& vars = in_.Variables();
  std::string expr = Once(form.assigned, [&] { return ReadAssignedText(form.line, form.upper); }).text;
  const std::string upperExpr = Upper(expr);
  const bool sqlForm = StartsWith(upperExpr, "SQL(") && !Contains(upperExpr, "TOTALRECORDS");
  if (sqlForm && in_.SqlAssignment()) {
    vars.SetVariable(word, in_.SqlAssignment()(in_, expr), true);
    return;
  }
  if (Contains(expr, " & ")) {
    Concatenate(expr, word);
    return;
  }
  CallRecord call;
  std::string returnType;
  if (FindFunctionCall(in_, expr, call, returnType) && EndsWith(expr, "()")) {
    vars.SetVariable(word, CallFunction(in_, expr.substr(0, expr.size() - 2), ""), true);
    return;
  }
  bool rewritten = false;
  RewriteGuard guard;
  while (FindFunctionCall(in_, expr, call, returnType)) {
    const std::size_t back = ExecuteFunctionCall(in_, expr, call, returnType);
    guard.Step(expr, back);
    rewritten = true;
  }
  while (FindCommandCall(in_, expr, call)) {
    const std::size_t back = ExecuteCommandCall(in_, expr, call, numeric);
    guard.Step(expr, back);
    rewritten = true;
  }
  auto parts = SplitArguments(in_, expr, 11, false, numeric);
  // A text without calls splits the same way at every run of the line.
  if (!rewritten && !sqlForm && HoldsNoCall(in_, expr)) {
    form.assignedParts = std::move(parts);
    StoreParts(form, *form.assignedParts, numeric);
  } else {
    StoreParts(form, parts, numeric);
  }
}

void Frame::StoreParts(LineForm& form, const std::vector<std::string>& parts, bool numeric) {
  VariableStore& vars = in_.Variables();
  // A single whole number goes in as it is: its text would read back the same.
  const bool textParts = form.assigned->textParts;
  if (!parts[0].empty() && parts[1].empty() && !textParts) {
    const Value value = Evaluate(in_, parts[0], numeric);
    if (IsPlainWholeNumber(value)) {
      vars.SetVariable(form.word, value, true, &form.wordFound);
    } else {
      const std::string text = TextOf(value);
      CheckTextSize(text.size());
      vars.SetVariable(form.word, text, true, &form.wordFound);
    }
    return;
  }
  std::string out;
  for (const auto& part : parts) {
    if (part.empty()) break;
    out += TextOf(textParts ? EvaluateText(in_, part, numeric) : Evaluate(in_, part, numeric));
    CheckTextSize(out.size());
  }
  vars.SetVariable(form.word, out, true, &form.wordFound);
}

// The pieces of "a & b & ...", trimmed.
std::vector<std::string> JoinedPieces(const std::string& expr) {
  std::vector<std::string> pieces;
  for (std::size_t start = 0;;) {
    const auto joint = expr.find(" & ", start);
    pieces.push_back(Trim(expr.substr(start, joint == std::string::npos ? std::string::npos : joint - start)));
    if (joint == std::string::npos) return pieces;
    start = joint + 3;
  }
}

void Frame::Concatenate(const std::string& expr, const std::string& word) {
  VariableStore& vars = in_.Variables();
  const std::vector<std::string> pieces = JoinedPieces(expr);
  if (AppendInPlace(pieces, word)) return;
  std::string out;
  for (const auto& piece : pieces) {
    CallRecord call;
    if (StartsWith(piece, "\"")) {
      out += StripQuotes(piece);
    } else if (vars.VarIndex(piece) >= 0) {
      const std::string value = TextOf(vars.GetVariable(piece));
      CheckTextSize(out.size() + value.size());
      out += value;
    } else if (FindCommandCall(in_, piece, call)) {
      // The call runs twice: once in the rewriting, once for its value.
      std::string rewritten = piece;
      ExecuteCommandCall(in_, rewritten, call, flag_);
      std::string arguments = StripTags(call.arguments);
      const std::string value = StripQuotes(TextOf(in_.Commands().RunCommand(in_, call.name, arguments)));
      CheckTextSize(out.size() + value.size());
      out += value;
    }
  }
  vars.SetVariable(word, out, true);
}

// "t = t & ..." on a String variable, where every other piece is a literal
// or a declared name, appends to t's text where it lies, instead of copying
// it into a new text: a loop of appends then costs in proportion to what
// it appends. Pieces that may search for a call (and show a box, or run a
// command that could change t) take the ordinary way.
bool Frame::AppendInPlace(const std::vector<std::string>& pieces, const std::string& word) {
  VariableStore& vars = in_.Variables();
  if (pieces.size() < 2 || Contains(word, "(") || Contains(pieces[0], "(")) return false;
  const int target = vars.VarIndex(word);
  if (target < 0 || vars.LastVarType() != VarType::String || vars.VarIndex(pieces[0]) != target ||
      vars.LastVarType() != VarType::String) {
    return false;
  }
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    if (!StartsWith(pieces[i], "\"") && vars.VarIndex(pieces[i]) < 0) return false;
  }
  // The size is known before anything is copied, so that a text that
  // doubles faults before it takes the memory; a piece that names the
  // target itself is appended from where it lies.
  const auto pieceText = [&](const std::string& piece) -> std::string {
    return StartsWith(piece, "\"") ? StripQuotes(piece) : TextOf(vars.GetVariable(piece));
  };
  const auto isTarget = [&](const std::string& piece) {
    return !StartsWith(piece, "\"") && vars.VarIndex(piece) == target;
  };
  std::vector<std::string> copies(pieces.size());
  std::size_t tailSize = 0;
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    if (isTarget(pieces[i])) {
      tailSize += vars.TextAt(target).size();
    } else {
      copies[i] = pieceText(pieces[i]);
      tailSize += copies[i].size();
    }
  }
  // The target is found last, as the assignment of the whole text finds it.
  std::string& text = vars.TextAt(vars.VarIndex(word));
  CheckTextSize(text.size() + tailSize);
  const std::size_t before = text.size();
  text.reserve(before + tailSize);
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    if (isTarget(pieces[i])) {
      text.append(text, 0, before);
    } else {
      text += copies[i];
    }
  }
  return true;
}

}  // namespace

void RunStatements(Interpreter& interpreter, std::string text, int firstLine) {
  CheckStackSpace();
  Frame frame(interpreter, std::move(text));
  frame.Run(firstLine);
}

}  // namespace tamrix
