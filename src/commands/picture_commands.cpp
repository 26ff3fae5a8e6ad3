// Picture, the sprites, and DrawPictures, which composes them on the
// Current Window.
#include "commands/command_families.h"
#include "commands/object_frame.h"
#include "commands/picture_sources.h"
#include "core/interpreter.h"
#include "core/text.h"

namespace tamrix {
namespace {

PictureControl& SpriteAt(Interpreter& in, int index) {
  return dynamic_cast<PictureControl&>(
      *in.Objects().Family(ObjectKind::Picture).entries[static_cast<std::size_t>(index)].control);
}

PictureControl& Sprite(ObjectCall& call) { return SpriteAt(call.interpreter, call.index); }

// Picture <name>, <source>: a Pic name or a file. The sprite is drawn with
// the ones at the back until told otherwise.
Value CreatePicture(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Picture, args.Text(0));
  PictureControl& sprite = SpriteAt(in, index);
  sprite.drawState = DrawState::Off;
  const std::string text = args.Text(1);
  const NamedPicture picture = FindPicture(in, text, {Catalogue::Pic});
  if (picture.missing || picture.source.Empty()) {
    CommandErrorBox(in, kCarriageReturn, "Picture file path not found:\r" + text);
    return std::string();
  }
  sprite.SetSource(picture.source);
  sprite.drawState = DrawState::Back;
  return std::string();
}

Value HeightProperty(ObjectCall& call) {
  call.Control().SetHeight(LinesToPixels(call.interpreter, call.args.Number(2)));
  return std::string();
}

Value WidthProperty(ObjectCall& call) {
  call.Control().SetWidth(ColumnsToPixels(call.interpreter, call.args.Number(2)));
  return std::string();
}

Value LineProperty(ObjectCall& call) {
  Sprite(call).drawTop = LinesToPixels(call.interpreter, call.args.Number(2));
  return std::string();
}

Value ColumnProperty(ObjectCall& call) {
  Sprite(call).drawLeft = ColumnsToPixels(call.interpreter, call.args.Number(2));
  return std::string();
}

Value OffProperty(ObjectCall& call) {
  Sprite(call).drawState = DrawState::Off;
  return std::string();
}

// Any other word leaves the state alone.
Value PositionProperty(ObjectCall& call) {
  const std::string where = Upper(call.args.Text(2));
  if (where == "BACK") Sprite(call).drawState = DrawState::Back;
  if (where == "FRONT") Sprite(call).drawState = DrawState::Front;
  return std::string();
}

std::string MissingPicture(std::string_view) { return "Picture does not exist!"; }

constexpr PropertyEntry kPictureProperties[] = {
    {".HEIGHT", HeightProperty}, {".WIDTH", WidthProperty}, {".LIN", LineProperty},
    {".COL", ColumnProperty},    {".OFF", OffProperty},     {".POSITION", PositionProperty},
};

constexpr ObjectCommand kPictureCommand{ObjectKind::Picture, CreatePicture, kPictureProperties, MissingPicture};

// DrawPictures [PRESERVE]: the back sprites in index order, then the front
// ones, each where its .LIN and .COL put it.
Value DrawPictures(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kObjectArgumentCount);
  Surface& surface = in.Windows().CurrentSurface();
  if (Upper(args.Raw(0)) != "PRESERVE") {
    surface.Clear();
    surface.Refresh();
  }
  const auto& entries = in.Objects().Family(ObjectKind::Picture).entries;
  for (const DrawState layer : {DrawState::Back, DrawState::Front}) {
    for (const ObjectEntry& entry : entries) {
      if (entry.name.empty() || entry.control == nullptr) continue;
      auto& sprite = dynamic_cast<PictureControl&>(*entry.control);
      if (sprite.drawState == layer) sprite.PaintOn(surface, sprite.drawLeft, sprite.drawTop);
    }
  }
  surface.Refresh();
  return std::string();
}

}  // namespace

void RegisterPictureCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Picture", GuardForm::None, ObjectCommandHandler(kPictureCommand));
  dispatcher.Register("DrawPictures", GuardForm::None,
                      GuardedHandler("DrawPictures", kCarriageReturn, DrawPictures));
}

}  // namespace tamrix
