// Label, Link and Frame: controls made on the main window and handed to the
// current one, showing a caption and holding no value of their own.
#include "commands/common_properties.h"
#include "commands/entries/entry_objects.h"
#include "core/fault.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kValue = 2;
// A link is as high as its text plus this.
constexpr int kLinkExtraHeight = 5;

void PlaceBox(Interpreter& in, ObjectControl& control, CommandArguments& args, std::size_t first) {
  control.SetTop(LinesToPixels(in, args.Number(first)));
  control.SetLeft(ColumnsToPixels(in, args.Number(first + 1)));
  control.SetHeight(LinesToPixels(in, args.Number(first + 2)));
  control.SetWidth(ColumnsToPixels(in, args.Number(first + 3)));
}

Value CaptionTxtProperty(ObjectCall& call) {
  ControlOf<CaptionControl>(call).SetCaption(call.args.Text(kValue));
  return std::string();
}

// Label <name>, <caption>, <line>, <column>, <height>, <width>
Value CreateLabel(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Label, args.Text(0));
  CaptionControl& label = ControlAt<CaptionControl>(in, ObjectKind::Label, index);
  label.SetCaption(args.Text(1));
  PlaceBox(in, label, args, 2);
  label.SetFontName("MS Sans Serif");
  label.SetBold(false);
  label.SetFontSize(8);
  FinishObject(in, ObjectKind::Label, index);
  return std::string();
}

Value LabelAlignmentProperty(ObjectCall& call) {
  const std::int16_t alignment = ToInt16(NumberOf(call.args.Number(kValue)));
  if (alignment < 0 || alignment > 2) Throw(kInvalidPropertyValue);
  ControlOf<CaptionControl>(call).SetAlignment(alignment);
  return std::string();
}

constexpr PropertyEntry kLabelProperties[] = {
    {".ENABLED", EnabledProperty},       {".VISIBLE", VisibleProperty},  {".BACKCOLOR", BackColorProperty},
    {".FORECOLOR", ForeColorProperty},   {".FONTNAME", FontNameProperty}, {".FONTSIZE", FontSizeProperty},
    {".BOLD", BoldProperty},             {".ITALIC", ItalicProperty},    {".TABINDEX", TabIndexProperty},
    {".TXT", CaptionTxtProperty},        {".TIP", TipProperty},          {".ALIGNMENT", LabelAlignmentProperty},
    {".PARENT", ParentProperty},
};

// Link <name>, <line>, <column>, <text>, <target>
Value CreateLink(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Link, args.Text(0));
  CaptionControl& link = ControlAt<CaptionControl>(in, ObjectKind::Link, index);
  link.SetTop(LinesToPixels(in, args.Number(1)));
  link.SetLeft(ColumnsToPixels(in, args.Number(2)));
  link.SetCaption(args.Text(3));
  link.SetTarget(args.Text(4));
  link.FitToCaption(kLinkExtraHeight);
  FinishObject(in, ObjectKind::Link, index);
  // The key catcher takes the focus, so that the link's text isn't selected.
  in.Windows().Current().FocusKeyCatcher();
  return std::string();
}

// The value is read as text, then as a number of lines or columns.
Value LinkHeightProperty(ObjectCall& call) {
  call.Control().SetHeight(LinesToPixels(call.interpreter, Val(call.args.Text(kValue))));
  return std::string();
}

Value LinkWidthProperty(ObjectCall& call) {
  call.Control().SetWidth(ColumnsToPixels(call.interpreter, Val(call.args.Text(kValue))));
  return std::string();
}

Value LinkBackColorProperty(ObjectCall& call) {
  BackColorProperty(call);
  ControlOf<CaptionControl>(call).FitToCaption(kLinkExtraHeight);
  return std::string();
}

Value UnderlineProperty(ObjectCall& call) {
  ControlOf<CaptionControl>(call).SetUnderline(ReadTruth(call.args.Number(kValue)) == TruthValue::True);
  return std::string();
}

Value LinkTargetProperty(ObjectCall& call) {
  ControlOf<CaptionControl>(call).SetTarget(call.args.Text(kValue));
  return std::string();
}

constexpr PropertyEntry kLinkProperties[] = {
    {".ENABLED", EnabledProperty},        {".VISIBLE", VisibleProperty},     {".HEIGHT", LinkHeightProperty},
    {".WIDTH", LinkWidthProperty},        {".BACKCOLOR", LinkBackColorProperty}, {".FORECOLOR", ForeColorProperty},
    {".FONTNAME", FontNameProperty},      {".FONTSIZE", FontSizeProperty},   {".BOLD", BoldProperty},
    {".ITALIC", ItalicProperty},          {".UNDERLINE", UnderlineProperty}, {".TXT", CaptionTxtProperty},
    {".LINK", LinkTargetProperty},        {".TIP", TipProperty},
};

// Frame <name>, <caption>, <line>, <column>, <height>, <width>
Value CreateFrame(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Frame, args.Text(0));
  CaptionControl& frame = ControlAt<CaptionControl>(in, ObjectKind::Frame, index);
  frame.SetCaption(args.Text(1));
  PlaceBox(in, frame, args, 2);
  FinishObject(in, ObjectKind::Frame, index);
  return std::string();
}

constexpr PropertyEntry kFrameProperties[] = {
    {".VISIBLE", VisibleProperty},
    {".TIP", TipProperty},
    {".PARENT", ParentProperty},
};

constexpr ObjectCommand kLabelCommand{ObjectKind::Label, CreateLabel, kLabelProperties};
constexpr ObjectCommand kLinkCommand{ObjectKind::Link, CreateLink, kLinkProperties};
constexpr ObjectCommand kFrameCommand{ObjectKind::Frame, CreateFrame, kFrameProperties};

}  // namespace

void RegisterCaptionCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Label", GuardForm::None, ObjectCommandHandler(kLabelCommand));
  dispatcher.Register("Link", GuardForm::None, ObjectCommandHandler(kLinkCommand));
  dispatcher.Register("Frame", GuardForm::None, ObjectCommandHandler(kFrameCommand));
}

}  // namespace tamrix
