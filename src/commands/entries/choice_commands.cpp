// Check and Radio. Their variable name.Value is written by the click event
// only, which a new ".VALUE" raises too; at creation it stays 0. All the
// Radio objects of a window are one group.
#include "commands/common_properties.h"
#include "commands/entries/entry_objects.h"
#include "core/fault.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

constexpr std::size_t kValue = 2;
// The box and its gap beside the caption.
constexpr int kCaptionExtraPixels = 25;
constexpr int kGrey = 2;

ChoiceControl& MakeChoice(Interpreter& in, ObjectKind kind, CommandArguments& args, int& index) {
  index = CreateObject(in, kind, args.Text(0));
  ChoiceControl& choice = ControlAt<ChoiceControl>(in, kind, index);
  choice.SetTop(LinesToPixels(in, args.Number(1)));
  choice.SetLeft(ColumnsToPixels(in, args.Number(2)));
  choice.SetCaption(args.Text(3));
  choice.FitToCaption(kCaptionExtraPixels);
  return choice;
}

int CheckValue(const Value& value) {
  const std::int16_t number = ToInt16(NumberOf(value));
  if (number < 0 || number > kGrey) Throw(kInvalidPropertyValue);
  return number;
}

// Check <name>, <line>, <column>, <caption>, <value>
Value CreateCheck(Interpreter& in, CommandArguments& args) {
  int index = 0;
  ChoiceControl& check = MakeChoice(in, ObjectKind::Check, args, index);
  check.SetChoice(CheckValue(args.Number(4)), false);
  FinishObject(in, ObjectKind::Check, index);
  return std::string();
}

// Radio <name>, <line>, <column>, <caption>
Value CreateRadio(Interpreter& in, CommandArguments& args) {
  int index = 0;
  MakeChoice(in, ObjectKind::Radio, args, index);
  FinishObject(in, ObjectKind::Radio, index);
  return std::string();
}

Value CheckValueProperty(ObjectCall& call) {
  ControlOf<ChoiceControl>(call).SetChoice(CheckValue(call.args.Number(kValue)), true);
  return std::string();
}

// 0 turns the option off, anything else on.
Value RadioValueProperty(ObjectCall& call) {
  ControlOf<ChoiceControl>(call).SetChoice(NumberOf(call.args.Number(kValue)) != 0 ? 1 : 0, true);
  return std::string();
}

constexpr PropertyEntry kCheckProperties[] = {
    {".ENABLED", EnabledProperty},     {".VISIBLE", VisibleProperty},  {".BACKCOLOR", BackColorProperty},
    {".FORECOLOR", ForeColorProperty}, {".SETFOCUS", SetFocusProperty}, {".TABINDEX", TabIndexProperty},
    {".VALUE", CheckValueProperty},    {".TIP", TipProperty},          {".PARENT", ParentProperty},
};

constexpr PropertyEntry kRadioProperties[] = {
    {".ENABLED", EnabledProperty},     {".VISIBLE", VisibleProperty},  {".BACKCOLOR", BackColorProperty},
    {".FORECOLOR", ForeColorProperty}, {".SETFOCUS", SetFocusProperty}, {".TABINDEX", TabIndexProperty},
    {".VALUE", RadioValueProperty},    {".TIP", TipProperty},          {".PARENT", ParentProperty},
};

constexpr ObjectCommand kCheckCommand{ObjectKind::Check, CreateCheck, kCheckProperties};
constexpr ObjectCommand kRadioCommand{ObjectKind::Radio, CreateRadio, kRadioProperties};

}  // namespace

void RegisterChoiceCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Check", GuardForm::None, ObjectCommandHandler(kCheckCommand));
  dispatcher.Register("Radio", GuardForm::None, ObjectCommandHandler(kRadioCommand));
}

}  // namespace tamrix
