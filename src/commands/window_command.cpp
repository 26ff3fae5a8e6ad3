// Window: settings of the main window, several in one command. The scan
// moves one element at a time, so values and "=" are looked at too, and a
// value that spells a keyword is taken as one.
#include <array>
#include <string_view>

#include "commands/command_arguments.h"
#include "commands/command_families.h"
#include "commands/picture_catalogue.h"
#include "commands/window_settings.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/paths.h"

namespace tamrix {
namespace {

constexpr std::size_t kWindowArguments = 51;
constexpr int kMouseGeneralMilliseconds = 50;

// A keyword found at element `at`; its values stand from two further on.
struct WindowSetting {
  Interpreter& in;
  CommandArguments& args;
  std::size_t at;

  const std::string& Raw(std::size_t k) const {
    static const std::string kNone;
    return at + k < args.Count() ? args.Raw(at + k) : kNone;
  }
  std::string Text(std::size_t k) const { return at + k < args.Count() ? args.Text(at + k) : std::string(); }
  std::string Word(std::size_t k) const { return Upper(Text(k)); }
  double Number(std::size_t k) const {
    return NumberOf(at + k < args.Count() ? args.Number(at + k) : Value(std::string()));
  }
  bool IsTrue(std::size_t k) const { return Word(k) == "TRUE"; }
  RunTimeWindow& Main() const { return in.Windows().Main(); }
};

void PointSize(WindowSetting& s) { s.Main().Drawing().SetDrawWidth(ToInt16(s.Number(2))); }

// Acts only when the state really changes.
void Fixed(WindowSetting& s) {
  bool& fixed = s.in.Windows().Modes().fixedWindow;
  const std::string word = s.Word(2);
  if ((word == "TRUE" && !fixed) || (word == "FALSE" && fixed)) {
    fixed = !fixed;
    s.Main().SetSizable(!fixed);
  }
}

// Only "FALSE" in upper case switches the control box off.
void ControlBox(WindowSetting& s) { s.Main().SetControlBox(s.Text(2) != "FALSE"); }

void Enter(WindowSetting& s) { s.Main().SetKeyPreview(s.IsTrue(2)); }

void Cursor(WindowSetting& s) { s.in.Screen().ShowCursor(s.IsTrue(2)); }

void Visible(WindowSetting& s) {
  if (s.IsTrue(2)) {
    s.Main().Show();
  } else {
    s.Main().Hide();
  }
}

// Off leaves Timer3 running idle.
void MouseGeneral(WindowSetting& s) {
  WindowTable& windows = s.in.Windows();
  windows.Modes().mouseGeneral = s.IsTrue(2);
  if (windows.Modes().mouseGeneral) windows.MouseTimer()->Start(kMouseGeneralMilliseconds);
}

// A missing file gives an empty icon, as loading an empty name does.
void MouseIcon(WindowSetting& s) {
  s.in.Windows().Current().SetMouseIcon(ResolvePath(s.Text(2), s.in.Launch().programPath));
}

void Resolution(WindowSetting& s) { ApplyResolution(s.in, s.Main(), s.Number(2), s.Number(3)); }

void Size(WindowSetting& s) { ApplySize(s.in, s.Main(), s.Text(2), s.Text(3)); }

void Position(WindowSetting& s) { ApplyPosition(s.in, s.Main(), s.Raw(2), s.Raw(3)); }

// A name of the `Img` catalogue becomes the window's picture and nothing
// else happens; any other value goes to SetBackground.
void Background(WindowSetting& s) {
  const int builtIn = CatalogueNumber(kImgCatalogue, StripQuotes(s.Raw(2)));
  if (builtIn >= 0) {
    s.in.Windows().Current().SetBuiltInPicture(builtIn);
    return;
  }
  const double line = IsNumeric(s.Raw(3)) ? s.Number(3) : 0;
  const double column = IsNumeric(s.Raw(4)) ? s.Number(4) : 0;
  if (!SetBackground(s.in, s.in.Windows().Current(), s.Raw(2), line, column)) {
    WindowErrorBox(s.in, "Error in the Background property!");
  }
}

// The display mode of the whole screen is the window system's own on
// Linux: the values are read and checked, and the mode stays.
void VideoResolution(WindowSetting& s) {
  static_cast<void>(NumberOf(s.Text(2)));
  static_cast<void>(NumberOf(s.Text(3)));
  static_cast<void>(ToInt16(NumberOf(s.Text(4))));
}

void Border(WindowSetting& s) { s.Main().SetBorderStyle(s.Word(2) == "FALSE" ? 0 : 1); }

struct WindowKeyword {
  std::string_view word;
  void (*apply)(WindowSetting&);
};

constexpr std::array<WindowKeyword, 14> kKeywords = {{
    {"POINTSIZE", PointSize},
    {"FIXED", Fixed},
    {"BOX", ControlBox},
    {"ENTER", Enter},
    {"CURSOR", Cursor},
    {"VISIBLE", Visible},
    {"MOUSEGENERAL", MouseGeneral},
    {"MOUSEICON", MouseIcon},
    {"RES", Resolution},
    {"SIZE", Size},
    {"POS", Position},
    {"BACKGROUND", Background},
    {"VIDEORES", VideoResolution},
    {"BORDER", Border},
}};

Value Window(CommandCall& call) {
  CommandArguments args(call, kWindowArguments, true);
  for (std::size_t i = 0; i < args.Count() && !args.Raw(i).empty(); ++i) {
    const std::string word = Upper(Trim(args.Raw(i)));
    for (const WindowKeyword& keyword : kKeywords) {
      if (word != keyword.word) continue;
      WindowSetting setting{call.interpreter, args, i};
      keyword.apply(setting);
    }
  }
  return std::string();
}

}  // namespace

void RegisterWindowCommand(Dispatcher& dispatcher) {
  dispatcher.Register("Window", GuardForm::Command, Window);
}

}  // namespace tamrix
