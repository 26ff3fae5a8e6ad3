// Image: a drawing surface as an object, with its own picture, cursor and
// mouse state, which can stand in for the Current Window (.USE).
#include <filesystem>

#include "commands/command_families.h"
#include "commands/common_properties.h"
#include "commands/object_frame.h"
#include "commands/picture_sources.h"
#include "core/evaluator.h"
#include "core/fault.h"
#include "core/interpreter.h"
#include "core/numbers.h"
#include "core/text.h"
#include "data/paths.h"

namespace tamrix {
namespace {

// Only objects 0 to 20 have a place in the mouse tables.
constexpr int kMouseTableSize = 21;
constexpr int kDefaultJpegQuality = 75;
constexpr std::size_t kWriteElements = 10;

ImageControl& ImageAt(Interpreter& in, int index) {
  return dynamic_cast<ImageControl&>(
      *in.Objects().Family(ObjectKind::Image).entries[static_cast<std::size_t>(index)].control);
}

ImageControl& Img(ObjectCall& call) { return ImageAt(call.interpreter, call.index); }

int Pixels(ObjectCall& call, std::size_t element) { return ToInt32(NumberOf(call.args.Number(element))); }

// A source as at creation: empty clears, a Pic or Img name, or a file.
// False, after the box, when the file is missing.
bool LoadSource(Interpreter& in, ImageControl& image, const std::string& text) {
  const NamedPicture picture = FindPicture(in, text, {Catalogue::Pic, Catalogue::Img});
  if (picture.missing) {
    CommandErrorBox(in, kCarriageReturn, "Path of picture not found:\r" + text);
    return false;
  }
  image.SetSource(picture.source);
  return true;
}

// Image <name>[, <source>]: made on the main window, handed to the Current
// Window and shown; position and size come from properties.
Value CreateImage(Interpreter& in, CommandArguments& args) {
  const int index = CreateObject(in, ObjectKind::Image, args.Text(0));
  ImageControl& image = ImageAt(in, index);
  image.Rename(Upper(in.Objects().Family(ObjectKind::Image).entries[static_cast<std::size_t>(index)].name));
  image.Drawing().Cursor() = {};
  FinishObject(in, ObjectKind::Image, index);
  LoadSource(in, image, args.Text(1));
  return 0.0;
}

Value HeightProperty(ObjectCall& call) {
  call.Control().SetHeight(LinesToPixels(call.interpreter, call.args.Number(2)));
  return 0.0;
}

Value WidthProperty(ObjectCall& call) {
  call.Control().SetWidth(ColumnsToPixels(call.interpreter, call.args.Number(2)));
  return 0.0;
}

Value LineProperty(ObjectCall& call) {
  call.Control().SetTop(LinesToPixels(call.interpreter, call.args.Number(2)));
  return 0.0;
}

Value ColumnProperty(ObjectCall& call) {
  call.Control().SetLeft(ColumnsToPixels(call.interpreter, call.args.Number(2)));
  return 0.0;
}

// The file's picture at the image's cursor; a missing or damaged file
// fails with the loader's error.
Value ImgProperty(ObjectCall& call) {
  ImageControl& image = Img(call);
  const std::string path = call.args.Text(2);
  const std::string resolved = ResolvePath(path, call.interpreter.Launch().programPath);
  image.PaintFile(resolved.empty() ? path : resolved, ToInt32(image.Drawing().Cursor().x),
                   ToInt32(image.Drawing().Cursor().y));
  return 0.0;
}

Value PosXProperty(ObjectCall& call) {
  Img(call).Drawing().Cursor().x = NumberOf(call.args.Number(2));
  return 0.0;
}

Value PosYProperty(ObjectCall& call) {
  Img(call).Drawing().Cursor().y = NumberOf(call.args.Number(2));
  return 0.0;
}

// A dot of the line width, in pixels of the image.
Value PointProperty(ObjectCall& call) {
  const std::size_t first = FirstValue(call.args);
  Surface& surface = Img(call).Drawing();
  surface.DrawDot(Pixels(call, first), Pixels(call, first + 1), ToInt32(NumberOf(call.args.Number(first + 2))));
  surface.Refresh();
  return 0.0;
}

Value ReadPointProperty(ObjectCall& call) {
  const std::size_t first = FirstValue(call.args);
  return static_cast<double>(Img(call).Drawing().GetPixel(Pixels(call, first), Pixels(call, first + 1)));
}

// The mouse tables hold objects 0 to 20; a later object's index is outside
// them.
const ImageMouse& MouseOf(ObjectCall& call) {
  if (call.index >= kMouseTableSize) Throw(kSubscriptOutOfRange);
  return Img(call).mouse;
}

Value MouseXProperty(ObjectCall& call) { return static_cast<double>(MouseOf(call).x); }
Value MouseYProperty(ObjectCall& call) { return static_cast<double>(MouseOf(call).y); }
Value MouseButtonProperty(ObjectCall& call) { return static_cast<double>(MouseOf(call).button); }

Value PointSizeProperty(ObjectCall& call) {
  Img(call).Drawing().SetDrawWidth(Pixels(call, 2));
  return 0.0;
}

Value MouseIconProperty(ObjectCall& call) {
  const std::string path = call.args.Text(2);
  const std::string resolved = ResolvePath(path, call.interpreter.Launch().programPath);
  Img(call).SetMouseIcon(resolved.empty() ? path : resolved);
  return 0.0;
}

Value AutoSizeProperty(ObjectCall& call) {
  Img(call).SetAutoSize();
  return 0.0;
}

Value ResizeProperty(ObjectCall& call) {
  const std::size_t first = FirstValue(call.args);
  const int height = LinesToPixels(call.interpreter, call.args.Number(first));
  const int width = ColumnsToPixels(call.interpreter, call.args.Number(first + 1));
  Img(call).Rescale(width, height);
  return 0.0;
}

// The text behind the first blank of element 0, then elements 1 to 10 up to
// the first empty one, printed at the image's cursor, which then goes to
// the start of the next line.
Value WriteProperty(ObjectCall& call) {
  Interpreter& in = call.interpreter;
  ImageControl& image = Img(call);
  std::string text;
  const std::string& element0 = call.args.Raw(0);
  const auto blank = element0.find(' ');
  if (blank != std::string::npos) {
    bool numeric = false;
    text = TextOf(EvaluateText(in, Trim(element0.substr(blank + 1)), numeric));
  }
  for (std::size_t i = 1; i <= kWriteElements && !call.args.Raw(i).empty(); ++i) {
    text += TextOf(call.args.Number(i));
  }
  Surface& surface = image.Drawing();
  SurfaceCursor& cursor = surface.Cursor();
  const int x = ToInt32(cursor.x);
  const int y = ToInt32(cursor.y);
  surface.PrintText(x, y, text);
  in.Tracer().Write({"write", surface.Name(), std::to_string(x), std::to_string(y), text});
  cursor.x = 0;
  cursor.y += in.Coordinates().linSize;
  surface.Refresh();
  return 0.0;
}

Value ClsProperty(ObjectCall& call) {
  ImageControl& image = Img(call);
  image.Drawing().Clear();
  image.Drawing().Cursor() = {};
  return 0.0;
}

// ".BMP" anywhere in the name saves a bitmap; ".JPG" a bitmap beside it,
// which becomes the JPEG and goes.
Value SavePictureProperty(ObjectCall& call) {
  const std::size_t first = FirstValue(call.args);
  const std::string file = call.args.Text(first);
  const std::string upper = Upper(file);
  ImageControl& image = Img(call);
  if (Contains(upper, ".BMP")) {
    image.SaveBitmap(file);
    return 0.0;
  }
  const auto jpg = upper.find(".JPG");
  if (jpg == std::string::npos) {
    CommandErrorBox(call.interpreter, kCarriageReturn,
                    "SalvaFigura: o nome do arquivo deve conter extens\xE3o .bmp ou .jpg!");
    return 0.0;
  }
  const int quality = call.args.Raw(first + 1).empty() ? kDefaultJpegQuality
                                                       : ToInt32(NumberOf(call.args.Number(first + 1)));
  std::string bitmap = file;
  bitmap.replace(jpg, 4, ".bmp");
  image.SaveBitmap(bitmap);
  const bool converted = image.ConvertBitmapToJpeg(bitmap, file, quality);
  std::error_code ignored;
  std::filesystem::remove(OsPath(bitmap), ignored);
  if (!converted) Throw(kPathFileAccessError);
  return 0.0;
}

// A line in pixels of the image, in the fore colour unless a colour is
// given.
Value StraightProperty(ObjectCall& call) {
  const std::size_t first = FirstValue(call.args);
  ImageControl& image = Img(call);
  const std::int32_t colour = call.args.Raw(first + 4).empty() ? image.DrawingForeColor()
                                                               : ToInt32(NumberOf(call.args.Number(first + 4)));
  Surface& surface = image.Drawing();
  surface.DrawLine(Pixels(call, first), Pixels(call, first + 1), Pixels(call, first + 2), Pixels(call, first + 3),
                   colour);
  surface.Refresh();
  return 0.0;
}

// Until NewWindow <name>.USE, the drawing commands reach the image.
Value UseProperty(ObjectCall& call) {
  WindowTable& windows = call.interpreter.Windows();
  windows.UseImageSurface(&Img(call).Drawing());
  windows.Modes().imageInUse = true;
  return 0.0;
}

Value OrderProperty(ObjectCall& call) {
  const std::string where = Upper(call.args.Text(FirstValue(call.args)));
  if (where == "FRONT") Img(call).SetOrder(true);
  if (where == "BACK") Img(call).SetOrder(false);
  return 0.0;
}

Value HwndProperty(ObjectCall& call) { return static_cast<double>(Img(call).WindowHandle()); }
Value HdcProperty(ObjectCall& call) { return static_cast<double>(Img(call).DrawingHandle()); }

std::string MissingImage(std::string_view name) { return "Image does not exist: '" + std::string(name) + "'"; }

constexpr PropertyEntry kImageProperties[] = {
    {".HEIGHT", HeightProperty},
    {".WIDTH", WidthProperty},
    {".LIN", LineProperty},
    {".COL", ColumnProperty},
    {".IMG", ImgProperty},
    {".POSX", PosXProperty},
    {".POSY", PosYProperty},
    {".POINT", PointProperty},
    {".READPOINT", ReadPointProperty},
    {".MOUSEX", MouseXProperty},
    {".MOUSEY", MouseYProperty},
    {".MOUSEBUTTON", MouseButtonProperty},
    {".POINTSIZE", PointSizeProperty},
    {".MOUSEICON", MouseIconProperty},
    {".AUTOSIZE", AutoSizeProperty},
    {".RESIZE", ResizeProperty},
    {".WRITE", WriteProperty},
    {".CLS", ClsProperty},
    {".SAVEPICTURE", SavePictureProperty},
    {".BACKCOLOR", BackColorProperty},
    {".FORECOLOR", ForeColorProperty},
    {".FONTNAME", FontNameProperty},
    {".FONTSIZE", FontSizeProperty},
    {".VISIBLE", VisibleProperty},
    {".BOLD", BoldProperty},
    {".STRAIGHT", StraightProperty},
    {".USE", UseProperty},
    {".ORDER", OrderProperty},
    {".PARENT", ParentProperty},
    {".HWND", HwndProperty},
    {".HDC", HdcProperty},
};

constexpr ObjectCommand kImageCommand{ObjectKind::Image, CreateImage, kImageProperties, MissingImage};

}  // namespace

void RegisterImageCommands(Dispatcher& dispatcher) {
  dispatcher.Register("Image", GuardForm::None, ObjectCommandHandler(kImageCommand));
}

}  // namespace tamrix
