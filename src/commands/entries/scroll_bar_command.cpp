// ScrollBar: a vertical bar for type 0, a horizontal one for any other type;
// a free entry takes the orientation of its new type. Its variable
// name.Value follows the bar's change event.
#include "commands/common_properties.h"
#include "commands/entries/entry_objects.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

constexpr std::size_t kValue = 2;
constexpr std::int32_t kDefaultSmallChange = 1;
constexpr std::int32_t kDefaultLargeChange = 10;

std::int32_t Steps(ObjectCall& call) { return NonNegative(call.args.Number(kValue)); }

// ScrollBar <name>, <maximum>, <line>, <column>, <type>, <length>
Value CreateScrollBar(Interpreter& in, CommandArguments& args) {
  const std::int32_t maximum = NonNegative(args.Number(1));
  const int index = CreateObject(in, ObjectKind::ScrollBar, args.Text(0));
  ScrollBarControl& bar = ControlAt<ScrollBarControl>(in, ObjectKind::ScrollBar, index);
  const bool vertical = NumberOf(args.Number(4)) == 0;
  bar.SetVertical(vertical);
  bar.SetTop(LinesToPixels(in, args.Number(2)));
  bar.SetLeft(ColumnsToPixels(in, args.Number(3)));
  if (vertical) {
    bar.SetHeight(LinesToPixels(in, args.Number(5)));
  } else {
    bar.SetWidth(ColumnsToPixels(in, args.Number(5)));
  }
  bar.SetSmallChange(kDefaultSmallChange);
  bar.SetLargeChange(kDefaultLargeChange);
  bar.SetMaximum(maximum);
  FinishObject(in, ObjectKind::ScrollBar, index);
  return std::string();
}

Value MaxProperty(ObjectCall& call) {
  ControlOf<ScrollBarControl>(call).SetMaximum(Steps(call));
  return std::string();
}

Value SmallStepProperty(ObjectCall& call) {
  ControlOf<ScrollBarControl>(call).SetSmallChange(Steps(call));
  return std::string();
}

Value LargeStepProperty(ObjectCall& call) {
  ControlOf<ScrollBarControl>(call).SetLargeChange(Steps(call));
  return std::string();
}

Value ValueProperty(ObjectCall& call) {
  ControlOf<ScrollBarControl>(call).SetPosition(Steps(call));
  return std::string();
}

constexpr PropertyEntry kScrollBarProperties[] = {
    {".ENABLED", EnabledProperty},     {".VISIBLE", VisibleProperty},    {".TABINDEX", TabIndexProperty},
    {".MAX", MaxProperty},             {".SMALLSTEP", SmallStepProperty}, {".LARGESTEP", LargeStepProperty},
    {".VALUE", ValueProperty},         {".PARENT", ParentProperty},
};

constexpr ObjectCommand kScrollBarCommand{ObjectKind::ScrollBar, CreateScrollBar, kScrollBarProperties};

}  // namespace

void RegisterScrollBarCommand(Dispatcher& dispatcher) {
  dispatcher.Register("ScrollBar", GuardForm::None, ObjectCommandHandler(kScrollBarCommand));
}

}  // namespace tamrix
