#include "commands/common_properties.h"

#include "core/interpreter.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

constexpr std::size_t kValue = 2;

Value SetTruth(ObjectCall& call, void (ObjectControl::*setter)(bool)) {
  const TruthValue truth = ReadTruth(call.args.Number(kValue));
  if (truth != TruthValue::Other) (call.Control().*setter)(truth == TruthValue::True);
  return std::string();
}

Value SetTrueOrElse(ObjectCall& call, void (ObjectControl::*setter)(bool)) {
  (call.Control().*setter)(ReadTruth(call.args.Number(kValue)) == TruthValue::True);
  return std::string();
}

std::int32_t Colour(ObjectCall& call) { return ToInt32(NumberOf(call.args.Number(kValue))); }

}  // namespace

Value EnabledProperty(ObjectCall& call) { return SetTruth(call, &ObjectControl::SetEnabled); }
Value VisibleProperty(ObjectCall& call) { return SetTruth(call, &ObjectControl::SetVisible); }
Value BoldProperty(ObjectCall& call) { return SetTrueOrElse(call, &ObjectControl::SetBold); }
Value ItalicProperty(ObjectCall& call) { return SetTrueOrElse(call, &ObjectControl::SetItalic); }

Value BackColorProperty(ObjectCall& call) {
  call.Control().SetBackColor(Colour(call));
  return std::string();
}

Value ForeColorProperty(ObjectCall& call) {
  call.Control().SetForeColor(Colour(call));
  return std::string();
}

Value FontNameProperty(ObjectCall& call) {
  call.Control().SetFontName(call.args.Text(kValue));
  return std::string();
}

Value FontSizeProperty(ObjectCall& call) {
  call.Control().SetFontSize(NumberOf(call.args.Number(kValue)));
  return std::string();
}

Value TabIndexProperty(ObjectCall& call) {
  call.Control().SetTabIndex(ToInt16(NumberOf(call.args.Number(kValue))));
  return std::string();
}

Value SetFocusProperty(ObjectCall& call) {
  call.Control().TakeFocus();
  return std::string();
}

Value TipProperty(ObjectCall& call) {
  call.Control().SetToolTip(call.args.Text(kValue));
  return std::string();
}

Value ParentProperty(ObjectCall& call) {
  Interpreter& in = call.interpreter;
  const int image = in.Objects().Find(ObjectKind::Image, call.args.Text(kValue));
  if (image >= 0) {
    call.Control().PlaceInto(*in.Objects().Family(ObjectKind::Image).entries[static_cast<std::size_t>(image)].control);
  }
  return std::string();
}

}  // namespace tamrix
