// Functions and subroutines. A scan after preparation lists their names; a
// call finds the declaration again by a text search, cuts the slice up to
// its end keyword and runs it in a new executor frame. Function parameters
// and locals become real variables under names unique to the call.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/call_search_cache.h"
#include "core/expression_plan.h"
#include "core/value.h"

namespace tamrix {

class Interpreter;

// What a function's calls read off its declaration; see Procedures::Declaration.
struct FunctionDeclaration {
  std::vector<std::string> parameters;  // "name Type" entries, as split
  std::string body;                     // the lines behind the declaration line
  bool fixed = true;                    // the same at every call
  bool numericFlag = false;             // as the split of the list left it
};

class Procedures {
 public:
  void Reset();
  // Fills the tables from the Program Text; reports faults in a stop box.
  void ScanDeclarations(Interpreter& interpreter, const std::string& text);

  bool IsSub(std::string_view word) const;
  bool HasTimers() const { return hasTimers_; }

  const std::vector<std::string>& FunctionNames() const { return functionNames_; }
  // True when a function name holds no letter.
  bool NameWithoutLetters() const { return nameWithoutLetters_; }
  const std::vector<std::string>& FunctionReturns() const { return functionReturns_; }
  const std::vector<std::string>& SubNames() const { return subNames_; }
  const std::vector<std::string>& TimerNames() const { return timerNames_; }
  std::vector<std::int16_t>& TimerPeriods() { return timerPeriods_; }

  std::int32_t& CallCounter() { return callCounter_; }
  // Texts known to hold no call of a function of these tables.
  CallSearchCache& FunctionCallCache() { return functionCallCache_; }
  // Evaluate's readings of texts without calls, which hold as long as the
  // function names do.
  ExpressionPlans& Plans() { return plans_; }
  // The declaration of function `name`, read at its first call and kept,
  // as the Program Text never changes; one whose parameter list runs calls
  // when split is read anew at each call, into `unkept`. A missing function
  // shows its stop box and faults.
  const FunctionDeclaration& Declaration(Interpreter& interpreter, const std::string& name,
                                         FunctionDeclaration& unkept);

 private:
  void ScanFunctions(Interpreter& interpreter, const std::string& text);
  void ScanSubs(Interpreter& interpreter, const std::string& text);
  void ScanTimers(const std::string& text);

  std::vector<std::string> functionNames_;
  std::vector<std::string> functionReturns_;
  std::vector<std::string> subNames_;
  std::vector<std::string> timerNames_;
  std::vector<std::int16_t> timerPeriods_;
  bool hasTimers_ = false;
  bool nameWithoutLetters_ = false;
  std::int32_t callCounter_ = 0;
  CallSearchCache functionCallCache_;
  ExpressionPlans plans_;
  std::unordered_map<std::string, FunctionDeclaration> declarations_;
};

// Runs "Sub <name>" ... "EndSub" in a new frame.
void ExecuteSub(Interpreter& interpreter, const std::string& name);
// Runs a function with its argument text; the result is the last Return.
Value CallFunction(Interpreter& interpreter, const std::string& name, const std::string& arguments);
// Renames whole-word occurrences of `oldName` (between "(", blank, CR and
// ",", ")", blank, CR).
void RenameInBody(std::string& body, const std::string& oldName, const std::string& newName);

}  // namespace tamrix
