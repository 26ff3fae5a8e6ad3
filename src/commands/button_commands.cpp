// Button, in its two create forms and its properties, and ButtonStyle, which
// changes the skin BtnTipo(0) for the buttons made after it.
#include "commands/command_families.h"
#include "commands/common_properties.h"
#include "commands/object_frame.h"
#include "commands/picture_catalogue.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/paths.h"

namespace tamrix {
namespace {

ButtonControl& ButtonAt(Interpreter& in, int index) {
  return dynamic_cast<ButtonControl&>(
      *in.Objects().Family(ObjectKind::Button).entries[static_cast<std::size_t>(index)].control);
}

bool AnyGiven(CommandArguments& args, std::initializer_list<std::size_t> elements) {
  for (std::size_t i : elements) {
    if (!args.Raw(i).empty()) return true;
  }
  return false;
}

// A picture as the program names it: nothing, a built-in name, or a file.
// `resolved` is the file that ResolvePath found, empty when none.
PictureSource SourceOf(Interpreter& in, const std::string& text, std::string& resolved) {
  PictureSource source;
  if (text.empty()) return source;
  source.builtIn = CatalogueNumber(kPicCatalogue, text);
  if (source.builtIn < 0) {
    resolved = ResolvePath(text, in.Launch().programPath);
    source.path = resolved.empty() ? text : resolved;
  }
  return source;
}

// The picture of a new button; false, after the error box, when the file is
// missing, which ends the command.
bool LoadNewPicture(Interpreter& in, ButtonControl& button, const std::string& text, const char* missing) {
  std::string resolved;
  const PictureSource source = SourceOf(in, text, resolved);
  if (!source.Empty() && source.builtIn < 0 && resolved.empty()) {
    CommandErrorBox(in, kCarriageReturn, missing);
    return false;
  }
  button.SetPicture(source);
  return true;
}

// Button <name>, TYPE<n>, <line>, <column>[, <caption>, <picture>, <tip>]
Value CreateSkinnedButton(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Button, args.Text(0));
  ButtonControl& button = ButtonAt(in, index);
  const std::string picture = StripQuotes(args.Raw(5));
  const std::string tip = StripQuotes(args.Raw(6));
  button.SetStyle(1);
  button.SetTop(LinesToPixels(in, args.Number(2)));
  button.SetLeft(ColumnsToPixels(in, args.Number(3)));
  button.SetCaption(AnyGiven(args, {4, 5, 6}) ? args.Text(4) : std::string("OK"));
  if (!LoadNewPicture(in, button, picture, "Error loading picture, path not found!")) return std::string();
  button.SetToolTip(tip);
  const std::int32_t skin = ToInt32(Val(std::string_view(args.Raw(1)).substr(4)));
  if (skin < 0 || skin >= ButtonSkinStore::kSkinCount) Throw(kSubscriptOutOfRange);
  button.ApplySkin(skin);
  FinishObject(in, ObjectKind::Button, index);
  return std::string();
}

// Button <name>, <line>, <column>[, <height>, <width>, <caption>, <picture>, <tip>]
// or, short, Button <name>, <line>, <column>, <caption>.
Value CreateButton(Interpreter& in, CommandArguments& args) {
  if (StartsWith(Upper(args.Raw(1)), "TYPE")) return CreateSkinnedButton(in, args);
  const int index = CreateObject(in, ObjectKind::Button, args.Text(0));
  ButtonControl& button = ButtonAt(in, index);
  const std::string picture = StripQuotes(args.Raw(6));
  const std::string tip = StripQuotes(args.Raw(7));
  button.SetStyle(0);
  button.SetTop(LinesToPixels(in, args.Number(1)));
  button.SetLeft(ColumnsToPixels(in, args.Number(2)));
  if (!args.Raw(4).empty() || !args.Raw(5).empty() || !picture.empty() || !tip.empty()) {
    button.SetHeight(LinesToPixels(in, args.Number(3)));
    button.SetWidth(ColumnsToPixels(in, args.Number(4)));
    button.SetCaption(args.Text(5));
  } else {
    const std::string caption = args.Text(3);
    button.SetCaption(caption.empty() ? std::string("OK") : caption);
  }
  // "não" in the system's 8-bit code page.
  if (!LoadNewPicture(in, button, picture, "Erro ao carregar figura, caminho n\xE3o encontrado!")) {
    return std::string();
  }
  button.SetToolTip(tip);
  FinishObject(in, ObjectKind::Button, index);
  return std::string();
}

Value CaptionProperty(ObjectCall& call) {
  ButtonAt(call.interpreter, call.index).SetCaption(TextOf(call.args.Number(2)));
  return std::string();
}

// As at creation, but a missing file goes to the loader and fails there.
Value PictureProperty(ObjectCall& call) {
  std::string resolved;
  ButtonAt(call.interpreter, call.index).SetPicture(SourceOf(call.interpreter, call.args.Text(2), resolved));
  return std::string();
}

// "VISIBLE" is looked for in the whole first element, before any other word.
constexpr PropertyEntry kButtonProperties[] = {
    {"VISIBLE", VisibleProperty, PropertyMatch::AnywhereInName},
    {".ENABLED", EnabledProperty},
    {".BACKCOLOR", BackColorProperty},
    {".FORECOLOR", ForeColorProperty},
    {".CAPTION", CaptionProperty},
    {".TABINDEX", TabIndexProperty},
    {".PICTURE", PictureProperty},
    {".FONTNAME", FontNameProperty},
    {".FONTSIZE", FontSizeProperty},
    {".BOLD", BoldProperty},
    {".ITALIC", ItalicProperty},
    {".SETFOCUS", SetFocusProperty},
    {".PARENT", ParentProperty},
};

constexpr ObjectCommand kButtonCommand{ObjectKind::Button, CreateButton, kButtonProperties};

struct SkinPictureWord {
  std::string_view word;
  ButtonState state;
};

// Searched as parts of the word, in this order.
constexpr SkinPictureWord kSkinPictureWords[] = {
    {"BTNUP", ButtonState::Up},         {"BTNHIGH", ButtonState::High},
    {"BTNFOCUS", ButtonState::Focus},   {"BTNDOWN", ButtonState::Down},
    {"BTNDISABLED", ButtonState::Disabled},
};

// ButtonStyle <word> = <value>
Value ButtonStyle(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kObjectArgumentCount, true);
  const std::string word = Upper(args.Raw(0));
  ButtonSkinStore& skins = in.Screen().Controls().ButtonSkins();
  for (const SkinPictureWord& picture : kSkinPictureWords) {
    if (Contains(word, picture.word)) {
      const std::string path = args.Text(2);
      const std::string resolved = ResolvePath(path, in.Launch().programPath);
      skins.SetPicture(picture.state, resolved.empty() ? path : resolved);
      return 0.0;
    }
  }
  if (Contains(word, "BACKCOLOR")) {
    skins.SetBackColor(ToInt32(NumberOf(args.Number(2))));
  } else if (Contains(word, "FORECOLOR")) {
    skins.SetForeColor(ToInt32(NumberOf(args.Number(2))));
  }
  return 0.0;
}

}  // namespace

void RegisterButtonCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Button", GuardForm::None, ObjectCommandHandler(kButtonCommand));
  dispatcher.Register("ButtonStyle", GuardForm::None, GuardedHandler("ButtonStyle", kCarriageReturn, ButtonStyle));
}

}  // namespace tamrix
