// Font, Circle, Rectangle, Straight, Point, ReadPoint, Paint and RGB: the
// figures on the Current Window's surface. Positions are language lines
// and columns; each figure is shown at once.
#include <cstdint>

#include "commands/command_arguments.h"
#include "commands/command_families.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"

namespace tamrix {
namespace {

constexpr std::size_t kDrawingArguments = 11;

struct Pixel {
  int x = 0;
  int y = 0;
};

// The arguments of a figure, read in order.
class FigureArguments {
 public:
  explicit FigureArguments(CommandCall& call) : in_(call.interpreter), args_(call, kDrawingArguments) {}

  // A (line, column) pair: top = line * LinSize, left = column * ColSize.
  Pixel Place() {
    const double line = NextNumber();
    const double column = NextNumber();
    return {ToInt32(column * in_.Coordinates().colSize), ToInt32(line * in_.Coordinates().linSize)};
  }
  // A length in columns, so that a circle is round in pixels.
  int Columns() { return ToInt32(NextNumber() * in_.Coordinates().colSize); }
  std::int32_t Colour() { return ToInt32(NextNumber()); }

 private:
  double NextNumber() { return NumberOf(args_.Number(next_++)); }

  Interpreter& in_;
  CommandArguments args_;
  std::size_t next_ = 0;
};

Surface& Drawing(CommandCall& call) { return call.interpreter.Windows().CurrentSurface(); }

// The fill settings stay for later figures.
Value Circle(CommandCall& call) {
  FigureArguments args(call);
  const Pixel centre = args.Place();
  const int radius = args.Columns();
  const std::int32_t colour = args.Colour();
  Surface& surface = Drawing(call);
  surface.SetFill(colour, true);
  surface.DrawCircle(centre.x, centre.y, radius, colour);
  surface.Refresh();
  return std::string();
}

Value Rectangle(CommandCall& call) {
  FigureArguments args(call);
  const Pixel from = args.Place();
  const Pixel to = args.Place();
  const std::int32_t colour = args.Colour();
  Surface& surface = Drawing(call);
  surface.DrawBox(from.x, from.y, to.x, to.y, colour);
  surface.Refresh();
  return std::string();
}

Value Straight(CommandCall& call) {
  FigureArguments args(call);
  const Pixel from = args.Place();
  const Pixel to = args.Place();
  const std::int32_t colour = args.Colour();
  Surface& surface = Drawing(call);
  surface.DrawLine(from.x, from.y, to.x, to.y, colour);
  surface.Refresh();
  return std::string();
}

// The line width that decides between pixel and dot is the main window's,
// whatever the surface.
Value Point(CommandCall& call) {
  FigureArguments args(call);
  const Pixel at = args.Place();
  const std::int32_t colour = args.Colour();
  Surface& surface = Drawing(call);
  if (call.interpreter.Windows().Main().Drawing().DrawWidth() == 1) {
    surface.SetPixel(at.x, at.y, colour);
  } else {
    surface.DrawDot(at.x, at.y, colour);
  }
  surface.Refresh();
  return std::string();
}

Value ReadPoint(CommandCall& call) {
  FigureArguments args(call);
  const Pixel at = args.Place();
  return Drawing(call).GetPixel(at.x, at.y);
}

// Replaces the area of the colour found at the point; the fill is
// transparent afterwards, and nothing is refreshed.
Value Paint(CommandCall& call) {
  FigureArguments args(call);
  const Pixel at = args.Place();
  const std::int32_t colour = args.Colour();
  Surface& surface = Drawing(call);
  surface.SetFill(colour, true);
  surface.FloodFill(at.x, at.y, surface.GetPixel(at.x, at.y));
  surface.SetFill(colour, false);
  return std::string();
}

// Each value is a 16-bit integer of which only the low byte counts.
Value Rgb(CommandCall& call) {
  CommandArguments args(call, kDrawingArguments);
  std::int32_t colour = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    const auto channel = static_cast<std::uint8_t>(ToInt16(NumberOf(args.Number(i))));
    colour |= static_cast<std::int32_t>(channel) << (8 * i);
  }
  return colour;
}

// "<window>.<word> = value"; the words are searched in the whole element,
// so that a window name holding one of them is taken for it.
Value Font(CommandCall& call) {
  Interpreter& in = call.interpreter;
  CommandArguments args(call, kDrawingArguments, true);
  std::string element = args.Raw(0);
  if (element.find('.') == std::string::npos) element = "PARENT." + element;
  const int slot = in.Windows().Find(element.substr(0, element.find('.')));
  if (slot < 0 || in.Windows().Window(slot) == nullptr) return std::string();
  Surface& surface = in.Windows().Window(slot)->Drawing();
  const std::string words = Upper(element);
  const auto isOn = [&] { return Upper(TextOf(args.Number(2))) != "FALSE"; };
  if (Contains(words, "NAME")) surface.SetFontName(args.Text(2));
  if (Contains(words, "SIZE")) {
    surface.SetFontSize(NumberOf(args.Number(2)));
  } else if (Contains(words, "COLOR")) {
    surface.SetForeColor(ToInt32(NumberOf(args.Number(2))));
  } else if (Contains(words, "BOLD")) {
    surface.SetBold(isOn());
  } else if (Contains(words, "ITALIC")) {
    surface.SetItalic(isOn());
  }
  return std::string();
}

}  // namespace

void RegisterDrawingCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Circle", GuardForm::Surface, Circle);
  dispatcher.Register("Rectangle", GuardForm::Surface, Rectangle);
  dispatcher.Register("Straight", GuardForm::Surface, Straight);
  dispatcher.Register("Point", GuardForm::Surface, Point);
  dispatcher.Register("ReadPoint", GuardForm::Surface, ReadPoint);
  dispatcher.Register("Paint", GuardForm::Surface, Paint);
  dispatcher.Register("RGB", GuardForm::Surface, Rgb);
  dispatcher.Register("Font", GuardForm::Surface, Font);
}

}  // namespace tamrix
