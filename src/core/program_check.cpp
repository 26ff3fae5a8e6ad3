#include "core/program_check.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "core/block_linking.h"
#include "core/keywords.h"
#include "core/preparation.h"
#include "core/text.h"
#include "core/vocabulary.h"

namespace tamrix {
namespace {

// Block tags two digits wide no longer fit the executor's fixed offsets.
constexpr int kDeepestSafeDepth = 9;

struct Statement {
  std::size_t offset = 0;  // of its "&#" in the prepared text
  int unit = 0;
  int line = 0;            // 1-based
  std::string text;        // from the statement column on
  std::string upper;
};

std::vector<Statement> ReadStatements(const std::string& prepared) {
  std::vector<Statement> statements;
  for (std::size_t start = 0; start < prepared.size();) {
    auto end = prepared.find("\r\n", start);
    if (end == std::string::npos) end = prepared.size();
    const std::string_view line(prepared.data() + start, end - start);
    if (line.size() >= kStatementColumn) {
      Statement s;
      s.offset = start;
      s.line = std::atoi(std::string(line.substr(9, 5)).c_str()) + 1;
      s.unit = std::atoi(std::string(line.substr(16, 2)).c_str());
      s.text = std::string(line.substr(kStatementColumn));
      s.upper = Upper(s.text);
      statements.push_back(std::move(s));
    }
    start = end + 2;
  }
  return statements;
}

bool IsNameChar(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

// `text` with string literals blanked out, so that a search sees code only.
std::string CodeOnly(std::string_view text) {
  std::string out(text);
  bool inString = false;
  for (auto& c : out) {
    if (c == '"') {
      inString = !inString;
    } else if (inString) {
      c = ' ';
    }
  }
  return out;
}

// The parts of a list at commas outside string literals, trimmed.
std::vector<std::string> SplitList(std::string_view list) {
  std::vector<std::string> parts;
  bool inString = false;
  std::string part;
  for (char c : list) {
    if (c == '"') inString = !inString;
    if (c == ',' && !inString) {
      parts.push_back(Trim(part));
      part.clear();
    } else {
      part += c;
    }
  }
  parts.push_back(Trim(part));
  return parts;
}

// "name(3) Type" gives "NAME".
std::string DeclaredName(std::string_view item) {
  std::string name(item.substr(0, item.find(' ')));
  name = name.substr(0, name.find('('));
  return Upper(name);
}

std::string FirstWord(const std::string& text) { return text.substr(0, text.find(' ')); }

// The digits of a block tag "[d]" at `open`, or -1.
int TagDepth(const std::string& text, std::size_t open) {
  if (open >= text.size() || text[open] != '[') return -1;
  const auto close = text.find(']', open);
  if (close == std::string::npos) return -1;
  return std::atoi(text.substr(open + 1, close - open - 1).c_str());
}

class Checker {
 public:
  explicit Checker(const std::array<std::string, 7>& codes)
      : prepared_(LinkWhileBlocks(LinkIfBlocks(PrepareSource(codes)))), statements_(ReadStatements(prepared_)) {}

  std::vector<CheckFinding> Run() {
    CollectDeclarations();
    CheckFieldNames();
    CheckBlockBalance();
    CheckProcedures();
    CheckStatements();
    std::stable_sort(findings_.begin(), findings_.end(), [](const CheckFinding& a, const CheckFinding& b) {
      return a.unit != b.unit ? a.unit < b.unit : a.line < b.line;
    });
    return std::move(findings_);
  }

 private:
  void Report(const Statement& s, std::string message) {
    findings_.push_back({s.unit, s.line, std::move(message)});
  }

  // Every name that some statement declares, wherever it stands: a run
  // declares them when it gets there, which a checker cannot follow.
  void CollectDeclarations() {
    for (const auto& name : BuiltInVariableNames()) variables_.insert(Upper(name));
    std::string database;
    for (std::size_t i = 0; i < statements_.size(); ++i) {
      const Statement& s = statements_[i];
      for (const auto& word : Words(s.text)) ++wordCounts_[Upper(word)];
      const std::string first = Upper(FirstWord(s.text));
      if (!database.empty()) {
        if (StartsWith(s.text, "EndDB")) {  // spelt exactly so, as the run-time reads it
          database.clear();
        } else {
          const std::string field = Trim(s.text.substr(0, s.text.find(',')));
          variables_.insert(database + "." + Upper(field));
          fieldLines_.push_back({i, field});
        }
        dbLines_.insert(i);
        continue;
      }
      if (first == "VAR" || first == "VARIABLE") {
        for (const auto& item : SplitList(s.text.substr(first.size()))) {
          if (!item.empty()) variables_.insert(DeclaredName(item));
        }
      } else if (s.text.compare(0, 2, "DB") == 0) {
        database = Upper(Trim(s.text.substr(2, s.text.find(',') - 2)));
        databases_.insert(database);
        dbLines_.insert(i);
      } else if (OpensFunction(s)) {
        const auto open = s.text.find('(');
        const auto close = s.text.find(')');
        if (open == std::string::npos || close == std::string::npos || close < open) continue;
        functions_.push_back(Trim(s.text.substr(9, open - 9)));
        for (const auto& item : SplitList(s.text.substr(open + 1, close - open - 1))) {
          if (!item.empty()) variables_.insert(DeclaredName(item));
        }
      } else if (OpensSub(s)) {
        const auto close = s.text.find(')');
        if (close != std::string::npos) subs_.push_back(s.text.substr(4, close - 3));
      }
    }
  }

  // The parts of a DB line are evaluated: a field named like a variable
  // takes that variable's value as its name.
  void CheckFieldNames() {
    for (const auto& [index, field] : fieldLines_) {
      if (variables_.count(Upper(field)) != 0) {
        Report(statements_[index], "the field " + field +
                                       " is named like a variable, whose value becomes the field's name");
      }
    }
  }

  static std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words;
    const std::string code = CodeOnly(text);
    for (std::size_t i = 0; i < code.size();) {
      if (!IsNameChar(code[i])) {
        ++i;
        continue;
      }
      const auto start = i;
      while (i < code.size() && IsNameChar(code[i])) ++i;
      words.push_back(code.substr(start, i - start));
    }
    return words;
  }

  // Pairs the tagged block words as the executor's searches would, and
  // names each one left without its partner. The run-time itself only
  // counts them, with the message given here, and names no line.
  void CheckBlockBalance() {
    const std::string message = CheckBlocks(prepared_);
    const auto before = findings_.size();
    PairBlocks("If[", "EndIf[", "If statement without their EndIf!", "EndIf without its If");
    PairBlocks("While[", "Loop[", "While statement without their Loop!", "Loop without its While");
    if (!message.empty() && findings_.size() == before && !statements_.empty()) {
      Report(statements_.front(), message);
    }
  }

  void PairBlocks(std::string_view opener, std::string_view closer, const std::string& openMessage,
                  const std::string& closeMessage) {
    std::vector<const Statement*> open;
    for (const auto& s : statements_) {
      if (StartsWith(s.text, opener)) {
        if (TagDepth(s.text, opener.size() - 1) > kDeepestSafeDepth) {
          Report(s, "blocks nested more than ten deep: the run-time misreads this line");
        }
        open.push_back(&s);
      } else if (StartsWith(s.text, closer)) {
        if (open.empty()) {
          Report(s, closeMessage);
        } else {
          open.pop_back();
        }
      }
    }
    for (const auto* s : open) Report(*s, openMessage);
  }

  // A Function or Sub whose end word does not come before the next
  // declaration of its kind stops the run before it starts.
  void CheckProcedures() {
    CheckProcedureKind(OpensFunction, EndsFunction, "Function without its command EndFunction: ");
    CheckProcedureKind(OpensSub, EndsSub, "Sub without its command EndSub: ");
  }

  using StatementTest = bool (*)(const Statement&);

  void CheckProcedureKind(StatementTest opens, StatementTest ends, const std::string& missingEnd) {
    const Statement* open = nullptr;
    for (const auto& s : statements_) {
      if (opens(s)) {
        if (open) ReportMissingEnd(*open, missingEnd);
        open = &s;
        if (s.text.find('(') == std::string::npos || s.text.find(')') == std::string::npos) {
          Report(s, "Error creating function or subroutine: the declaration needs its parentheses");
        }
      } else if (ends(s)) {
        open = nullptr;
      }
    }
    if (open) ReportMissingEnd(*open, missingEnd);
  }

  // The declaration scans read "Function" in any case, "Sub" as written.
  static bool OpensFunction(const Statement& s) { return StartsWith(s.upper, "FUNCTION "); }
  static bool EndsFunction(const Statement& s) { return StartsWith(s.upper, "ENDFUNCTION"); }
  static bool OpensSub(const Statement& s) { return StartsWith(s.text, "Sub "); }
  static bool EndsSub(const Statement& s) { return StartsWith(s.text, "EndSub"); }

  void ReportMissingEnd(const Statement& s, const std::string& message) {
    const auto open = s.text.find('(');
    const auto nameStart = s.text.find(' ') + 1;
    Report(s, message + Trim(s.text.substr(nameStart, open == std::string::npos ? std::string::npos : open - nameStart)));
  }

  void CheckStatements() {
    std::size_t sliceStart = 0;
    std::size_t sliceEnd = prepared_.size();
    for (std::size_t i = 0; i < statements_.size(); ++i) {
      const Statement& s = statements_[i];
      if (OpensFunction(s) || OpensSub(s)) {
        sliceStart = s.offset;
        sliceEnd = SliceEnd(i, OpensSub(s) ? EndsSub : EndsFunction);
        continue;
      }
      if (s.offset >= sliceEnd) {
        sliceStart = 0;
        sliceEnd = prepared_.size();
      }
      if (dbLines_.count(i) != 0) continue;
      if (const auto p = s.text.find("GoTo"); p != std::string::npos) {
        CheckJump(s, p, std::string_view(prepared_).substr(sliceStart, sliceEnd - sliceStart), sliceStart);
      }
      CheckCalls(s);
      if (!TakenByAForm(s)) CheckStatementWord(s);
    }
  }

  // The end of the text a Function or Sub call cuts out: behind the line of
  // its end word.
  std::size_t SliceEnd(std::size_t declaration, StatementTest ends) const {
    for (std::size_t j = declaration + 1; j < statements_.size(); ++j) {
      if (ends(statements_[j])) return j + 1 < statements_.size() ? statements_[j + 1].offset : prepared_.size();
    }
    return prepared_.size();
  }

  // The label is everything behind "GoTo ", searched with its colon in the
  // text that runs; a GoTo in a literal jumps all the same. The first
  // occurrence wins, also inside a longer label or a literal.
  void CheckJump(const Statement& s, std::size_t p, std::string_view slice, std::size_t sliceStart) {
    const std::string label = p + 5 <= s.text.size() ? s.text.substr(p + 5) : std::string();
    if (EndsWith(label, ":")) {
      Report(s, "GoTo: Label can't have character : (colon)!");
      return;
    }
    const auto found = slice.find(label + ":");
    if (found == std::string_view::npos) {
      Report(s, "GoTo: Label not found: " + label + ":");
      return;
    }
    const Statement& target = StatementAt(sliceStart + found);
    if (target.text != label + ":") {
      Report(s, "GoTo " + label + " lands on \"" + target.text + "\" (unit " + std::to_string(target.unit) +
                    ", line " + std::to_string(target.line) + "), where \"" + label + ":\" stands first");
    }
  }

  // The statement whose line holds position `at` of the prepared text.
  const Statement& StatementAt(std::size_t at) const {
    auto next = std::upper_bound(statements_.begin(), statements_.end(), at,
                                 [](std::size_t position, const Statement& s) { return position < s.offset; });
    return *std::prev(next);
  }

  // The control forms that the executor takes before the statement dispatch.
  bool TakenByAForm(const Statement& s) const {
    static constexpr std::string_view kAnywhere[] = {"ENDPROGRAM", "ENDFUNCTION", "ENDWINDOW", "NEWWINDOW"};
    for (auto word : kAnywhere) {
      if (s.upper.find(word) != std::string::npos) return true;
    }
    if (EndsWith(s.text, "++") || EndsWith(s.text, "--")) return true;
    if (s.text.find("+ = ") != std::string::npos || s.text.find("- = ") != std::string::npos) return true;
    if (s.text.find("GoTo") != std::string::npos) return true;
    for (auto tag : {"While[", "Loop[", "EndIf[", "If[", "Else["}) {
      if (s.text.find(tag) != std::string::npos) return true;
    }
    return OpensFunction(s) || OpensSub(s) || EndsSub(s);
  }

  bool IsVariable(const std::string& word) const {
    const std::string name = Upper(word.substr(0, word.find('(')));
    if (variables_.count(name) != 0) return true;
    // name.Txt and name.Value belong to objects that commands create; a
    // prefix that stands elsewhere in the program is taken for one.
    const auto dot = name.find('.');
    if (dot == std::string::npos) return false;
    const std::string prefix = name.substr(0, dot);
    if (databases_.count(prefix) != 0) return true;
    const auto count = wordCounts_.find(prefix);
    return count != wordCounts_.end() && count->second > 1;
  }

  void CheckStatementWord(const Statement& s) {
    const std::string word = FirstWord(s.text);
    const std::string upper = Upper(word);
    if (upper == "VAR" || upper == "VARIABLE" || upper == "RETURN") return;
    for (const auto& sub : subs_) {
      if (sub == word) return;
    }
    if (IsVariable(word)) return;
    if (StartsWith(upper, "REP.") || IsKeyword(upper) || EndsWith(upper, ":")) return;
    for (const auto& block : {"If", "Else", "EndIf", "While", "Loop"}) {
      if (upper == Upper(block)) {
        Report(s, "\"" + word + "\" is no block word here and does nothing: block words are spelt " + block);
        return;
      }
    }
    if (IsCommandWord(word)) {
      Report(s, "\"" + word + "\" begins like a block word and does nothing");
      return;
    }
    Report(s, "Error: variable undeclared: " + word);
  }

  // Names followed by "(" that are neither keywords, functions, arrays nor
  // subroutines: a call the run-time cannot make.
  void CheckCalls(const Statement& s) {
    const std::string first = Upper(FirstWord(s.text));
    if (first == "VAR" || first == "VARIABLE") return;
    const std::string code = CodeOnly(s.text);
    for (std::size_t i = 0; i < code.size(); ++i) {
      if (code[i] != '(' || i == 0 || !IsNameChar(code[i - 1])) continue;
      auto start = i;
      while (start > 0 && (IsNameChar(code[start - 1]) || code[start - 1] == '.')) --start;
      const std::string name = code.substr(start, i - start);
      if (start == 0 || std::isdigit(static_cast<unsigned char>(name[0])) != 0) continue;  // the statement word: CheckStatementWord names it
      if (const auto spelling = KeywordSpelling(name); !spelling.empty() && spelling != name) {
        Report(s, "\"" + name + "(\" is no call: keywords are found in expressions as spelt, " + spelling);
      } else if (!IsCallable(name)) {
        Report(s, FunctionProblem(name));
      }
    }
  }

  // The keyword that `name` spells in any case, as the list spells it, or
  // nothing.
  static std::string KeywordSpelling(const std::string& name) {
    const std::string upper = Upper(name);
    for (const auto& keyword : KeywordList()) {
      if (Upper(keyword) == upper) return keyword;
    }
    return {};
  }

  bool IsCallable(const std::string& name) const {
    const std::string upper = Upper(name);
    if (IsKeyword(upper) || StartsWith(upper, "REP.") || variables_.count(upper) != 0) return true;
    for (const auto& word : StatementWords()) {
      if (Upper(word) == upper) return true;
    }
    for (const auto& function : functions_) {
      if (function == name) return true;
    }
    for (const auto& sub : subs_) {
      if (StartsWith(sub, name + "(")) return true;
    }
    return false;
  }

  std::string FunctionProblem(const std::string& name) const {
    for (const auto& function : functions_) {
      if (Upper(function) == Upper(name)) {
        return "function called but not declared: " + name + " (declared as " + function +
               "; calls are case-sensitive)";
      }
    }
    return "function called but not declared: " + name;
  }

  std::string prepared_;
  std::vector<Statement> statements_;
  std::vector<CheckFinding> findings_;
  std::set<std::string> variables_;  // upper-cased
  std::set<std::string> databases_;  // upper-cased
  std::map<std::string, int> wordCounts_;
  std::vector<std::string> functions_;  // as declared
  std::vector<std::string> subs_;       // with their brackets, as declared
  std::set<std::size_t> dbLines_;
  std::vector<std::pair<std::size_t, std::string>> fieldLines_;  // statement, field as written
};

}  // namespace

std::vector<CheckFinding> CheckProgram(const std::array<std::string, 7>& codes) { return Checker(codes).Run(); }

}  // namespace tamrix
