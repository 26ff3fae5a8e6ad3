#include "commands/window_settings.h"

#include "core/evaluator.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/paths.h"

namespace tamrix {
namespace {

int ScreenHeightTwips(Interpreter& in) { return in.Screen().ScreenHeight() * kTwipsPerPixel; }
int ScreenWidthTwips(Interpreter& in) { return in.Screen().ScreenWidth() * kTwipsPerPixel; }

}  // namespace

void ApplySize(Interpreter& in, RunTimeWindow& window, const std::string& lines, const std::string& columns) {
  TwipRect outer = window.Outer();
  if (EqualsNoCase(lines, "MAX")) {
    outer.top = 0;
    outer.height = ScreenHeightTwips(in);
  } else {
    outer.height = ToInt32(NumberOf(lines) * kTwipsPerLine + kFrameTwips);
  }
  if (EqualsNoCase(columns, "MAX")) {
    outer.left = 0;
    outer.width = ScreenWidthTwips(in);
  } else {
    outer.width = ToInt32(NumberOf(columns) * kTwipsPerColumn);
  }
  window.SetOuter(outer);
}

void ApplyPosition(Interpreter& in, RunTimeWindow& window, const std::string& rawLine,
                   const std::string& rawColumn) {
  TwipRect outer = window.Outer();
  outer.top = EqualsNoCase(rawLine, "CENTER") ? ToInt32((ScreenHeightTwips(in) - outer.height) / 2.0)
                                              : ToInt32(Val(rawLine) * kTwipsPerLine);
  outer.left = EqualsNoCase(rawColumn, "CENTER") ? ToInt32((ScreenWidthTwips(in) - outer.width) / 2.0)
                                                 : ToInt32(Val(rawColumn) * kTwipsPerColumn);
  window.SetOuter(outer);
}

void ApplyResolution(Interpreter& in, RunTimeWindow& window, double lines, double columns) {
  if (lines == 0) lines = 1;
  if (columns == 0) columns = 1;
  Geometry& geometry = in.Coordinates();
  geometry.linSize = window.Drawing().ClientHeight() / lines;
  geometry.colSize = window.Drawing().ClientWidth() / columns;
  VariableStore& vars = in.Variables();
  vars.SetVariable("LinSize", geometry.linSize, false);
  vars.SetVariable("ColSize", geometry.colSize, false);
  vars.SetVariable("ScreenHeight", in.Screen().ScreenHeight() / geometry.linSize, false);
  vars.SetVariable("ScreenWidth", in.Screen().ScreenWidth() / geometry.colSize, false);
}

bool SetBackground(Interpreter& in, RunTimeWindow& window, const std::string& rawValue, double line,
                   double column) {
  if (const auto colour = ParseRegionalNumber(rawValue)) {
    window.SetBackColor(ToInt32(*colour));
    return true;
  }
  VariableStore& vars = in.Variables();
  if (vars.VarIndex(rawValue) >= 0) {
    window.SetBackColor(ToInt32(NumberOf(vars.GetVariable(rawValue))));
    return true;
  }
  if (EqualsNoCase(StripQuotes(rawValue), "NULL")) return window.SetPicture("");
  bool numeric = false;
  const std::string file = TextOf(EvaluateText(in, rawValue, numeric));
  const std::string path = ResolvePath(file, in.Launch().programPath);
  if (path.empty()) {
    in.Box({BoxButtons::Ok, BoxIcon::None, "Tamrix",
            in.State().errorPosition + "\rBackground - Image file not found:\r" + file, BoxAnswer::Ok});
    return false;
  }
  if (line != 0 && column != 0) {
    const Geometry& geometry = in.Coordinates();
    return window.PaintPicture(path, ToInt32(column * geometry.colSize), ToInt32(line * geometry.linSize));
  }
  return window.SetPicture(path);
}

bool WindowErrorBox(Interpreter& in, const std::string& words) {
  return in.QueryBox(in.State().errorPosition + "\r\n" + words);
}

}  // namespace tamrix
