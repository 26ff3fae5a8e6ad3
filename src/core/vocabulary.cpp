#include "core/vocabulary.h"

#include "core/text.h"

namespace tamrix {

const std::vector<std::string>& StatementWords() {
  static const std::vector<std::string> words = {
      "If",     "Else",   "EndIf",       "While",      "Loop",      "GoTo",     "Var",
      "Variable", "Sub",  "EndSub",      "Function",   "EndFunction", "Return", "EndProgram",
      "EndWindow", "DB",  "EndDB"};
  return words;
}

const std::vector<std::string>& TypeNames() {
  static const std::vector<std::string> names = {"String", "Integer", "Decimal"};
  return names;
}

std::string_view BuiltInVariableDeclarations() {
  return "RetStr String, RetValue Decimal, MouseX Integer, MouseY Integer, MouseClick String, Blue Integer, "
         "Red Integer, Green Integer, Black Integer, White Integer, Yellow Integer, LightBlue Integer, "
         "DarkBlue Integer, DarkRed Integer, DarkGreen Integer, DarkYellow Integer, FieldReturn Integer, "
         "TotalFonts Integer, WindowsDir String, Desktop String, ProgramDir String, WindowsPrograms String, "
         "TestButton String, ZRDir String, ObjectValue String, ReferenceValue String, SQLPointer String, "
         "LinSize Decimal, ColSize Decimal, GotFocus String, LostFocus String, DefaultBackcolor Integer, "
         "RefIndex Integer, CommandLine String, StartWindowInvisible Integer, ScreenHeight Integer, "
         "ScreenWidth Integer";
}

std::vector<std::string> BuiltInVariableNames() {
  std::vector<std::string> names;
  const std::string_view list = BuiltInVariableDeclarations();
  std::size_t start = 0;
  while (start < list.size()) {
    auto comma = list.find(',', start);
    if (comma == std::string_view::npos) comma = list.size();
    const std::string entry = Trim(std::string(list.substr(start, comma - start)));
    names.push_back(entry.substr(0, entry.find(' ')));
    start = comma + 1;
  }
  return names;
}

}  // namespace tamrix
