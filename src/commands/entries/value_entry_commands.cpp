// Mask, Currency and Calendar: entry fields whose variable follows the
// control's change event; the Mask's and the Calendar's also follow their
// own ".TXT" at once.
#include "commands/common_properties.h"
#include "commands/dates/date_reading.h"
#include "commands/dates/date_time.h"
#include "commands/entries/entry_objects.h"
#include "commands/entries/mask_pattern.h"
#include "commands/format/date_format.h"
#include "core/fault.h"
#include "core/numbers.h"

namespace tamrix {
namespace {

constexpr std::size_t kValue = 2;

// The month picker shows the days from 1 January 1753 to 31 December 9999.
constexpr std::chrono::sys_days kFirstPickerDay{std::chrono::year{1753} / 1 / 1};

void WriteTxt(Interpreter& in, const ObjectEntry& entry, const std::string& text) {
  in.Variables().SetVariable(entry.name + ".Txt", text, false);
}

Value HeightProperty(ObjectCall& call) {
  call.Control().SetHeight(LinesToPixels(call.interpreter, call.args.Number(kValue)));
  return std::string();
}

// Mask <name>, <mask>, <line>, <column>, <width>
Value CreateMask(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Mask, args.Text(0));
  MaskControl& mask = ControlAt<MaskControl>(in, ObjectKind::Mask, index);
  const std::string pattern = args.Text(1);
  mask.SetMask(pattern);
  mask.SetText(MaskPattern(pattern));
  WriteTxt(in, in.Objects().Family(ObjectKind::Mask).entries[static_cast<std::size_t>(index)], mask.Text());
  mask.SetTop(LinesToPixels(in, args.Number(2)));
  mask.SetLeft(ColumnsToPixels(in, args.Number(3)));
  mask.SetWidth(ColumnsToPixels(in, args.Number(4)));
  FinishObject(in, ObjectKind::Mask, index);
  return std::string();
}

// An empty value gives the field its empty pattern back.
Value MaskTxtProperty(ObjectCall& call) {
  MaskControl& mask = ControlOf<MaskControl>(call);
  mask.SetText(call.args.Text(kValue));
  WriteTxt(call.interpreter, call.Entry(), mask.Text());
  return std::string();
}

Value MaskSelectProperty(ObjectCall& call) {
  ControlOf<MaskControl>(call).SelectAll();
  return std::string();
}

Value MaskProperty(ObjectCall& call) {
  ControlOf<MaskControl>(call).SetMask(call.args.Text(kValue));
  return std::string();
}

constexpr PropertyEntry kMaskProperties[] = {
    {".ENABLED", EnabledProperty},     {".VISIBLE", VisibleProperty},   {".HEIGHT", HeightProperty},
    {".BACKCOLOR", BackColorProperty}, {".FORECOLOR", ForeColorProperty}, {".SETFOCUS", SetFocusProperty},
    {".TABINDEX", TabIndexProperty},   {".TXT", MaskTxtProperty},       {".FONTNAME", FontNameProperty},
    {".FONTSIZE", FontSizeProperty},   {".BOLD", BoldProperty},         {".ITALIC", ItalicProperty},
    {".SELECT", MaskSelectProperty},   {".TIP", TipProperty},           {".MASK", MaskProperty},
    {".PARENT", ParentProperty},
};

// Currency <name>, <line>, <column>, <width>[, <value>]
Value CreateCurrency(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Currency, args.Text(0));
  NumberEntryControl& number = ControlAt<NumberEntryControl>(in, ObjectKind::Currency, index);
  number.SetTop(LinesToPixels(in, args.Number(1)));
  number.SetLeft(ColumnsToPixels(in, args.Number(2)));
  number.SetWidth(ColumnsToPixels(in, args.Number(3)));
  number.SetNumber(args.Raw(4).empty() ? 0.0 : NumberOf(args.Number(4)));
  FinishObject(in, ObjectKind::Currency, index);
  return std::string();
}

Value DecimalPlacesProperty(ObjectCall& call) {
  ControlOf<NumberEntryControl>(call).SetDecimals(ToInt16(NumberOf(call.args.Number(kValue))));
  return std::string();
}

Value CurrencyValueProperty(ObjectCall& call) {
  ControlOf<NumberEntryControl>(call).SetNumber(NumberOf(call.args.Number(kValue)));
  return std::string();
}

constexpr PropertyEntry kCurrencyProperties[] = {
    {".ENABLED", EnabledProperty},     {".VISIBLE", VisibleProperty},
    {".HEIGHT", HeightProperty},       {".BACKCOLOR", BackColorProperty},
    {".FORECOLOR", ForeColorProperty}, {".DECIMALPLACES", DecimalPlacesProperty},
    {".SETFOCUS", SetFocusProperty},   {".TABINDEX", TabIndexProperty},
    {".VALUE", CurrencyValueProperty}, {".TIP", TipProperty},
    {".PARENT", ParentProperty},
};

std::string DateValueText(double serial) { return DateText(FromSerial(serial)); }

// Calendar <name>, <line>, <column>[, <width>]
Value CreateCalendar(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Calendar, args.Text(0));
  DateEntryControl& calendar = ControlAt<DateEntryControl>(in, ObjectKind::Calendar, index);
  calendar.SetTop(LinesToPixels(in, args.Number(1)));
  calendar.SetLeft(ColumnsToPixels(in, args.Number(2)));
  if (!args.Raw(3).empty()) calendar.SetWidth(ColumnsToPixels(in, args.Number(3)));
  WriteTxt(in, in.Objects().Family(ObjectKind::Calendar).entries[static_cast<std::size_t>(index)],
           DateValueText(calendar.Date()));
  FinishObject(in, ObjectKind::Calendar, index);
  return std::string();
}

// The value becomes the picker's day, then is read back.
Value CalendarTxtProperty(ObjectCall& call) {
  const DateTime date = DateArgument(call.args.Text(kValue));
  if (date.day < kFirstPickerDay) Throw(kInvalidPropertyValue);
  DateEntryControl& calendar = ControlOf<DateEntryControl>(call);
  calendar.SetDate(SerialOf(DateTime{date.day}));
  WriteTxt(call.interpreter, call.Entry(), DateValueText(calendar.Date()));
  return std::string();
}

constexpr PropertyEntry kCalendarProperties[] = {
    {".ENABLED", EnabledProperty},   {".VISIBLE", VisibleProperty}, {".SETFOCUS", SetFocusProperty},
    {".TABINDEX", TabIndexProperty}, {".TXT", CalendarTxtProperty}, {".TIP", TipProperty},
    {".PARENT", ParentProperty},
};

constexpr ObjectCommand kMaskCommand{ObjectKind::Mask, CreateMask, kMaskProperties};
constexpr ObjectCommand kCurrencyCommand{ObjectKind::Currency, CreateCurrency, kCurrencyProperties};
constexpr ObjectCommand kCalendarCommand{ObjectKind::Calendar, CreateCalendar, kCalendarProperties};

}  // namespace

void RegisterValueEntryCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Mask", GuardForm::None, ObjectCommandHandler(kMaskCommand));
  dispatcher.Register("Currency", GuardForm::None, ObjectCommandHandler(kCurrencyCommand));
  dispatcher.Register("Calendar", GuardForm::None, ObjectCommandHandler(kCalendarCommand));
}

}  // namespace tamrix
