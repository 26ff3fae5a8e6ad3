// Text: a single-line box, or from three lines on a multi-line rich text
// box. Its variable name.Txt follows the control through Timer2, which the
// first Text starts and which runs while any Text has a name.
#include "commands/common_properties.h"
#include "commands/entries/entry_objects.h"
#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr int kTimer2Milliseconds = 5;
constexpr double kMultiLineFrom = 3;
constexpr double kHeightFrom = 2;
constexpr std::size_t kValue = 2;
constexpr std::string_view kNumericTag = "NUMERIC0";

TextEntryControl& TextAt(Interpreter& in, int index) { return ControlAt<TextEntryControl>(in, ObjectKind::Text, index); }

void MirrorTexts(Interpreter& in) {
  bool anyNamed = false;
  for (const ObjectEntry& entry : in.Objects().Family(ObjectKind::Text).entries) {
    if (entry.name.empty()) continue;
    anyNamed = true;
    in.Variables().SetVariable(entry.name + ".Txt", dynamic_cast<TextEntryControl&>(*entry.control).Text(), false);
  }
  if (!anyNamed) in.Windows().TextTimer()->Stop();
}

void StartTimer2(Interpreter& in) {
  auto& timer = in.Windows().TextTimer();
  if (!timer) timer = in.Screen().CreateTimer([&in] { MirrorTexts(in); });
  timer->Start(kTimer2Milliseconds);
}

// Text <name>, <line>, <column>[, <width>[, <lines>]]
Value CreateText(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Text, args.Text(0));
  ObjectEntry& entry = in.Objects().Family(ObjectKind::Text).entries[static_cast<std::size_t>(index)];
  TextEntryControl& text = TextAt(in, index);
  const double lines = args.Raw(4).empty() ? 0 : NumberOf(args.Number(4));
  entry.multiLine = lines >= kMultiLineFrom;
  text.SetMultiLine(entry.multiLine);
  text.SetTop(LinesToPixels(in, args.Number(1)));
  text.SetLeft(ColumnsToPixels(in, args.Number(2)));
  if (!args.Raw(3).empty()) text.SetWidth(ColumnsToPixels(in, args.Number(3)));
  if (lines >= kHeightFrom) text.SetHeight(LinesToPixels(in, lines));
  text.SetText(std::string());
  FinishObject(in, ObjectKind::Text, index);
  StartTimer2(in);
  return std::string();
}

// The rich-text words have no meaning for the single-line box.
TextEntryControl& RichTextOf(const ObjectCall& call) {
  if (!call.Entry().multiLine) Throw(kNotSupported);
  return ControlOf<TextEntryControl>(call);
}

Value ForeColorText(ObjectCall& call) {
  if (!call.Entry().multiLine) return ForeColorProperty(call);
  TextEntryControl& text = ControlOf<TextEntryControl>(call);
  SelectionLook look;
  look.colour = ToInt32(NumberOf(call.args.Number(kValue)));
  text.SelectAll();
  text.SetSelectionLook(look);
  text.Select(0, 0);
  return std::string();
}

Value TxtProperty(ObjectCall& call) {
  const std::string value = call.args.Text(kValue);
  ControlOf<TextEntryControl>(call).SetText(value);
  call.interpreter.Variables().SetVariable(call.Entry().name + ".Txt", value, false);
  return std::string();
}

// With "=" the rich text is set; alone the word reads it.
Value TextRtfProperty(ObjectCall& call) {
  TextEntryControl& text = RichTextOf(call);
  if (call.args.Raw(1) != "=") return Quoted(text.RichText());
  text.SetRichText(call.args.Text(kValue));
  return std::string();
}

// SELECT alone selects all; SELECT = start, length[, font, size, bold, colour]
// selects from the 1-based start and gives the selection the looks that are
// not empty.
Value SelectProperty(ObjectCall& call) {
  TextEntryControl& text = ControlOf<TextEntryControl>(call);
  CommandArguments& args = call.args;
  if (args.Raw(kValue).empty()) {
    text.SelectAll();
    return std::string();
  }
  const double start = NumberOf(args.Number(kValue)) - 1;
  const double length = NumberOf(args.Number(kValue + 1));
  if (start < 0 || length < 0) Throw(kInvalidPropertyValue);
  text.Select(ToInt32(start), ToInt32(length));
  SelectionLook look;
  if (!args.Raw(kValue + 2).empty()) look.fontName = args.Text(kValue + 2);
  if (!args.Raw(kValue + 3).empty()) look.fontSize = NumberOf(args.Number(kValue + 3));
  if (!args.Raw(kValue + 4).empty()) look.bold = Upper(args.Text(kValue + 4)) == "BOLD";
  if (!args.Raw(kValue + 5).empty()) look.colour = ToInt32(NumberOf(args.Number(kValue + 5)));
  if (look.fontName || look.fontSize || look.bold || look.colour) RichTextOf(call).SetSelectionLook(look);
  return std::string();
}

Value AlignmentProperty(ObjectCall& call) {
  const std::int16_t alignment = ToInt16(NumberOf(call.args.Number(kValue)));
  if (alignment < 0 || alignment > 2) Throw(kInvalidPropertyValue);
  ControlOf<TextEntryControl>(call).SetAlignment(alignment);
  return std::string();
}

Value MaxProperty(ObjectCall& call) {
  ControlOf<TextEntryControl>(call).SetMaxLength(NonNegative(call.args.Number(kValue)));
  return std::string();
}

Value RightMarginProperty(ObjectCall& call) {
  RichTextOf(call).SetRightMargin(ColumnsToPixels(call.interpreter, call.args.Number(kValue)));
  return std::string();
}

Value CursorPosProperty(ObjectCall& call) {
  TextEntryControl& text = ControlOf<TextEntryControl>(call);
  text.SetCursorPosition(NonNegative(call.args.Number(kValue)));
  text.TakeFocus();
  return std::string();
}

Value NumericProperty(ObjectCall& call) {
  const bool numeric = ReadTruth(call.args.Number(kValue)) == TruthValue::True;
  ControlOf<TextEntryControl>(call).SetTag(numeric ? std::string(kNumericTag) : std::string());
  return std::string();
}

constexpr PropertyEntry kTextProperties[] = {
    {".ENABLED", EnabledProperty},       {".VISIBLE", VisibleProperty},
    {".BACKCOLOR", BackColorProperty},   {".FORECOLOR", ForeColorText},
    {".FONTNAME", FontNameProperty},     {".FONTSIZE", FontSizeProperty},
    {".BOLD", BoldProperty},             {".ITALIC", ItalicProperty},
    {".SETFOCUS", SetFocusProperty},     {".TABINDEX", TabIndexProperty},
    {".TXT", TxtProperty},               {".TEXTRTF", TextRtfProperty},
    {".SELECT", SelectProperty},         {".TIP", TipProperty},
    {".ALIGNMENT", AlignmentProperty},   {".MAX", MaxProperty},
    {".RIGHTMARGIN", RightMarginProperty}, {".CURSORPOS", CursorPosProperty},
    {".PARENT", ParentProperty},         {".NUMERIC", NumericProperty},
};

constexpr ObjectCommand kTextCommand{ObjectKind::Text, CreateText, kTextProperties};

}  // namespace

int NonNegative(const Value& value) {
  const std::int32_t number = ToInt32(NumberOf(value));
  if (number < 0) Throw(kInvalidPropertyValue);
  return number;
}

void RegisterTextCommand(Dispatcher& dispatcher) {
  dispatcher.Register("Text", GuardForm::None, ObjectCommandHandler(kTextCommand));
}

}  // namespace tamrix
