// AnimatedGif: an animation in the window (type 0) or floating over the
// desktop (any other type), stepped or played.
#include "commands/command_families.h"
#include "commands/common_properties.h"
#include "commands/object_frame.h"
#include "commands/picture_sources.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

AnimatedGifControl& GifAt(Interpreter& in, int index) {
  return dynamic_cast<AnimatedGifControl&>(
      *in.Objects().Family(ObjectKind::AnimatedGif).entries[static_cast<std::size_t>(index)].control);
}

AnimatedGifControl& Gif(ObjectCall& call) { return GifAt(call.interpreter, call.index); }

bool Floating(const AnimatedGifControl& gif) { return gif.gifType != 0; }

// A `Gif` name, for type 0 only, or a file. False, after the box, when the
// source can't be used.
bool LoadSource(Interpreter& in, AnimatedGifControl& gif, const std::string& text) {
  const NamedPicture picture = FindPicture(in, text, {Catalogue::Gif});
  if (picture.source.builtIn >= 0 && Floating(gif)) {
    CommandErrorBox(in, kCarriageReturn, "Invalid gif for type = 1 (float)!");
    return false;
  }
  if (picture.missing || picture.source.Empty()) {
    CommandErrorBox(in, kCarriageReturn, "Animated gif path file not found:\r" + text);
    return false;
  }
  gif.SetSource(picture.source);
  gif.Stop();
  gif.ShowFrame(0);
  return true;
}

// AnimatedGif <name>, <source>, <type>
Value CreateAnimatedGif(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::AnimatedGif, args.Text(0));
  AnimatedGifControl& gif = GifAt(in, index);
  gif.gifType = ToInt16(NumberOf(args.Number(2)));
  if (Floating(gif)) gif.SetFloating();
  if (!LoadSource(in, gif, args.Text(1))) return std::string();
  FinishObject(in, ObjectKind::AnimatedGif, index);
  return std::string();
}

Value LineProperty(ObjectCall& call) {
  call.Control().SetTop(LinesToPixels(call.interpreter, call.args.Number(2)));
  return std::string();
}

Value ColumnProperty(ObjectCall& call) {
  call.Control().SetLeft(ColumnsToPixels(call.interpreter, call.args.Number(2)));
  return std::string();
}

// In the window the picture is stretched to the size; floating it keeps
// its own.
Value SizeProperty(ObjectCall& call, const char* word) {
  AnimatedGifControl& gif = Gif(call);
  if (Floating(gif)) {
    CommandErrorBox(call.interpreter, kCarriageReturn,
                    std::string("Float mode does not support the ") + word + " property!");
    return std::string();
  }
  gif.SetStretch(true);
  if (std::string_view(word) == "Height") {
    gif.SetHeight(LinesToPixels(call.interpreter, call.args.Number(2)));
  } else {
    gif.SetWidth(ColumnsToPixels(call.interpreter, call.args.Number(2)));
  }
  return std::string();
}

Value HeightProperty(ObjectCall& call) { return SizeProperty(call, "Height"); }
Value WidthProperty(ObjectCall& call) { return SizeProperty(call, "Width"); }

// After the last frame comes frame 0, before frame 0 the last.
Value NextFrameProperty(ObjectCall& call) {
  AnimatedGifControl& gif = Gif(call);
  const int count = gif.FrameCount();
  if (count > 0) gif.ShowFrame((gif.CurrentFrame() + 1) % count);
  return std::string();
}

Value PreviousFrameProperty(ObjectCall& call) {
  AnimatedGifControl& gif = Gif(call);
  const int count = gif.FrameCount();
  if (count > 0) gif.ShowFrame((gif.CurrentFrame() + count - 1) % count);
  return std::string();
}

// A frame outside the animation is error 380, as the control's own was.
Value FrameNumberProperty(ObjectCall& call) {
  AnimatedGifControl& gif = Gif(call);
  const int frame = ToInt32(NumberOf(call.args.Number(FirstValue(call.args))));
  if (frame < 0 || frame >= gif.FrameCount()) throw RuntimeFault(380, "Invalid property value");
  gif.ShowFrame(frame);
  return std::string();
}

Value BackProperty(ObjectCall& call) {
  Gif(call).SetOrder(false);
  return std::string();
}

Value FrontProperty(ObjectCall& call) {
  Gif(call).SetOrder(true);
  return std::string();
}

Value PlayProperty(ObjectCall& call) {
  Gif(call).Play();
  return std::string();
}

Value StopProperty(ObjectCall& call) {
  Gif(call).Stop();
  return std::string();
}

// "0" plays once; any other value again and again.
Value LoopProperty(ObjectCall& call) {
  Gif(call).SetLoop(Trim(call.args.Text(2)) == "0" ? 0 : -1);
  return std::string();
}

Value ImageProperty(ObjectCall& call) {
  LoadSource(call.interpreter, Gif(call), call.args.Text(2));
  return std::string();
}

constexpr PropertyEntry kAnimatedGifProperties[] = {
    {".LIN", LineProperty},
    {".COL", ColumnProperty},
    {".HEIGHT", HeightProperty},
    {".WIDTH", WidthProperty},
    {".NEXTFRAME", NextFrameProperty},
    {".PREVIOUSFRAME", PreviousFrameProperty},
    {".FRAMENUMBER", FrameNumberProperty},
    {".BACK", BackProperty},
    {".FRONT", FrontProperty},
    {".PLAY", PlayProperty},
    {".STOP", StopProperty},
    {".LOOP", LoopProperty},
    {".IMAGE", ImageProperty},
    {".VISIBLE", VisibleProperty},
};

constexpr ObjectCommand kAnimatedGifCommand{ObjectKind::AnimatedGif, CreateAnimatedGif, kAnimatedGifProperties};

}  // namespace

void RegisterAnimatedGifCommands(Dispatcher& dispatcher) {
  dispatcher.Register("AnimatedGif", GuardForm::None, ObjectCommandHandler(kAnimatedGifCommand));
}

}  // namespace tamrix
