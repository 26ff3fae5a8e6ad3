#include "commands/object_frame.h"

#include <limits>

#include "core/fault.h"
#include "core/interpreter.h"
#include "core/object_closing.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

// The last index that a control array can load.
constexpr std::size_t kMaxControlIndex = std::numeric_limits<std::int16_t>::max();

std::string CurrentWindowName(Interpreter& in) { return in.Windows().CurrentName(); }

// Where a new instance of the kind is loaded.
std::string LoadingWindow(Interpreter& in, ObjectKind kind) {
  return Traits(kind).home == ObjectHome::CurrentWindow ? CurrentWindowName(in) : std::string("PARENT");
}

Value RunObjectCommand(CommandCall& call, const ObjectCommand& command) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kObjectArgumentCount, true);
  const std::string& element0 = args.Raw(0);
  if (element0.find('.') == std::string::npos) return command.create(in, args);

  const int index = FindObject(in, command.kind, element0);
  if (index < 0) {
    if (command.missing != nullptr) {
      CommandErrorBox(in, kCarriageReturn, command.missing(element0.substr(0, element0.find('.'))));
    }
    return std::string();
  }
  if (Contains(element0, "Remove")) {
    RemoveObject(in, command.kind, index);
    return std::string();
  }
  const std::string property = PropertyName(element0);
  const std::string upperElement0 = Upper(element0);
  for (const PropertyEntry& entry : command.properties) {
    const bool hit = entry.match == PropertyMatch::Exact ? property == entry.word
                                                         : Contains(upperElement0, entry.word);
    if (hit) {
      ObjectCall objectCall{in, args, command.kind, index};
      return entry.handler(objectCall);
    }
  }
  return std::string();
}

}  // namespace

ObjectEntry& ObjectCall::Entry() const {
  return interpreter.Objects().Family(kind).entries[static_cast<std::size_t>(index)];
}

ObjectControl& ObjectCall::Control() const { return *Entry().control; }

CommandHandler ObjectCommandHandler(const ObjectCommand& command) {
  return GuardedHandler(std::string(Traits(command.kind).name), kCarriageReturn,
                        [&command](CommandCall& call) { return RunObjectCommand(call, command); });
}

std::string PropertyName(std::string_view element0) {
  const auto dot = element0.find('.');
  if (dot == std::string_view::npos) return std::string();
  const auto blank = element0.find(' ', dot);
  return Upper(element0.substr(dot, blank == std::string_view::npos ? std::string_view::npos : blank - dot));
}

int FindObject(Interpreter& in, ObjectKind kind, std::string_view element0) {
  std::string name(element0.substr(0, element0.find('.')));
  if (StartsWith(name, "$")) name = TextOf(in.Variables().GetVariable(name));
  return in.Objects().Find(kind, name);
}

void RemoveObject(Interpreter& in, ObjectKind kind, int index) {
  ObjectEntry& entry = in.Objects().Family(kind).entries[static_cast<std::size_t>(index)];
  ReleaseUsedImage(in, entry.control);
  if (index == 0) {
    entry.control->SetVisible(false);
    // A label's template goes back to the main window, enabled.
    if (kind == ObjectKind::Label) {
      entry.control->SetEnabled(true);
      entry.control->MoveToWindow("PARENT");
    }
  } else {
    in.Screen().Controls().Unload(*entry.control);
    entry.control = nullptr;
  }
  for (const ValueVariable& variable : Traits(kind).variables) {
    in.Variables().RemoveVariable(entry.name + std::string(variable.suffix), false);
  }
  entry.name.clear();
  entry.owner.clear();
}

TruthValue ReadTruth(const Value& value) {
  const std::string text = Upper(TextOf(value));
  if (text == "TRUE") return TruthValue::True;
  if (text == "FALSE") return TruthValue::False;
  return TruthValue::Other;
}

int CreateObject(Interpreter& in, ObjectKind kind, const std::string& name) {
  auto& entries = in.Objects().Family(kind).entries;
  std::size_t index = 0;
  while (index < entries.size() && !entries[index].name.empty()) ++index;
  const bool appended = index == entries.size();
  if (appended) {
    if (entries.size() > kMaxControlIndex) Throw(kOverflow);
    entries.emplace_back();
  }
  ObjectEntry& entry = entries[index];
  entry.name = name;
  entry.owner = CurrentWindowName(in);
  entry.control = &in.Screen().Controls().Load(kind, static_cast<int>(index), LoadingWindow(in, kind));
  // A window's own template shows as soon as it is taken.
  if (appended && index == 0) entry.control->SetVisible(true);

  for (const ValueVariable& variable : Traits(kind).variables) {
    if (variable.declaredAtCreation) in.Variables().DeclareScalar(name + std::string(variable.suffix), variable.type);
  }
  if (Traits(kind).home == ObjectHome::MainShown) entry.control->MoveToWindow(entry.owner);
  return static_cast<int>(index);
}

void FinishObject(Interpreter& in, ObjectKind kind, int index) {
  ObjectControl& control = *in.Objects().Family(kind).entries[static_cast<std::size_t>(index)].control;
  control.SetVisible(true);
  if (Traits(kind).takesFocus) control.SetTabIndex(in.Objects().TakeTabIndex());
}

int LinesToPixels(Interpreter& in, const Value& lines) {
  return ToInt32(NumberOf(lines) * in.Coordinates().linSize);
}

int ColumnsToPixels(Interpreter& in, const Value& columns) {
  return ToInt32(NumberOf(columns) * in.Coordinates().colSize);
}

}  // namespace tamrix
