// The controls behind the language's objects, as the core sees them. The
// window layer implements them with real widgets; tests use a headless
// double. Positions and sizes are pixels of the owning window; colours are
// 32-bit values with red in the low byte, system colours (0x80000000 and an
// index) included; texts are Windows-1252.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tamrix {

// The object kinds, in the order in which the main window's closing walks
// them.
enum class ObjectKind {
  AnimatedGif,
  Button,
  Text,
  Currency,
  Check,
  Label,
  Link,
  Radio,
  Combo,
  Frame,
  Mask,
  Calendar,
  ScrollBar,
  Box,
  Picture,
  Image,
  Sound,
};
inline constexpr int kObjectKindCount = 17;

// The catalogues of built-in pictures: icons, larger pictures, animations.
enum class Catalogue { Pic, Img, Gif };

// A picture given to a control: nothing, a built-in picture of a catalogue,
// or a file.
struct PictureSource {
  int builtIn = -1;  // catalogue number, -1 for none
  std::string path;  // a file, as the program wrote it
  Catalogue catalogue = Catalogue::Pic;
  bool Empty() const { return builtIn < 0 && path.empty(); }
};

class Surface;

// What every control offers to the object frame.
class ObjectControl {
 public:
  virtual ~ObjectControl() = default;

  virtual void SetVisible(bool visible) = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual void SetTop(int pixels) = 0;
  virtual void SetLeft(int pixels) = 0;
  virtual void SetHeight(int pixels) = 0;
  virtual void SetWidth(int pixels) = 0;
  virtual void SetTabIndex(int index) = 0;
  virtual void SetToolTip(const std::string& text) = 0;
  // Fails with error 5 when the control can't take the focus.
  virtual void TakeFocus() = 0;
  virtual void SetBackColor(std::int32_t colour) = 0;
  virtual void SetForeColor(std::int32_t colour) = 0;
  virtual void SetFontName(const std::string& name) = 0;
  virtual void SetFontSize(double points) = 0;
  virtual void SetBold(bool bold) = 0;
  virtual void SetItalic(bool italic) = 0;
  // Hands a control that was loaded on the main window to another window.
  virtual void MoveToWindow(const std::string& windowName) = 0;
  // Places the control inside an Image object's window; its position now
  // counts from the image's corner.
  virtual void PlaceInto(ObjectControl& image) = 0;
};

// The five looks of a button in style 1.
enum class ButtonState { Up, High, Focus, Down, Disabled };

class ButtonControl : public virtual ObjectControl {
 public:
  virtual void SetCaption(const std::string& caption) = 0;
  // Fails with the run-time's error when a file can't be loaded.
  virtual void SetPicture(const PictureSource& picture) = 0;
  // 0 draws the button with lines, 1 shows the state pictures.
  virtual void SetStyle(std::int16_t style) = 0;
  // Copies the state pictures and colours of the built-in skin `BtnTipo(n)`.
  virtual void ApplySkin(int n) = 0;
};

// The skins `BtnTipo(0)` to `BtnTipo(8)`; `ButtonStyle` changes skin 0.
// Buttons made before a change keep what they had.
class ButtonSkinStore {
 public:
  static constexpr int kSkinCount = 9;

  virtual ~ButtonSkinStore() = default;
  // Fails with the run-time's error when the file can't be loaded.
  virtual void SetPicture(ButtonState state, const std::string& path) = 0;
  virtual void SetBackColor(std::int32_t colour) = 0;
  virtual void SetForeColor(std::int32_t colour) = 0;
};

// Where a sprite of the Picture kind is drawn: not at all, with the ones at
// the back, or with the ones in front.
enum class DrawState : std::int16_t { Off = 0, Back = 1, Front = 2 };

// A Picture object: a hidden picture and its mask, painted on a surface by
// DrawPictures.
class PictureControl : public virtual ObjectControl {
 public:
  // Loads the picture over white and builds its mask, in which the white
  // is the transparent part; the white of the picture becomes black. Fails
  // with the loader's error.
  virtual void SetSource(const PictureSource& source) = 0;
  virtual int PictureWidth() const = 0;
  virtual int PictureHeight() const = 0;
  // The mask ANDed onto the surface, then the picture ORed over it.
  virtual void PaintOn(Surface& surface, int x, int y) = 0;

  DrawState drawState = DrawState::Back;
  std::int32_t drawTop = 0;   // pixels
  std::int32_t drawLeft = 0;  // pixels
};

// The mouse over an Image, as its events last left it.
struct ImageMouse {
  std::int32_t button = 0;
  std::int32_t x = 0;
  std::int32_t y = 0;
};

// An Image object: a drawing surface of its own, placed on a window.
class ImageControl : public virtual ObjectControl {
 public:
  // What drawing commands reach while the image is in use.
  virtual Surface& Drawing() = 0;
  // The name of the surface in traces: the object's, upper case.
  virtual void Rename(const std::string& name) = 0;
  // Nothing clears; a file fails with the loader's error.
  virtual void SetSource(const PictureSource& source) = 0;
  // Paints the file's picture at its own size with its corner at (x, y).
  virtual void PaintFile(const std::string& path, int x, int y) = 0;
  // From now on the image takes the size of its picture.
  virtual void SetAutoSize() = 0;
  // The drawing scaled to this size, which the image takes.
  virtual void Rescale(int width, int height) = 0;
  // The drawing as a bitmap file; fails with the codec's errors.
  virtual void SaveBitmap(const std::string& path) = 0;
  virtual void SetMouseIcon(const std::string& path) = 0;
  virtual void SetOrder(bool front) = 0;
  // The native window and a drawing handle for library calls; 0 where the
  // platform has none to give.
  virtual std::int64_t WindowHandle() const = 0;
  virtual std::int64_t DrawingHandle() const = 0;
  // The colour of lines drawn without one.
  virtual std::int32_t DrawingForeColor() const = 0;
  // A bitmap file converted to a JPEG file of that quality; false when it
  // fails.
  virtual bool ConvertBitmapToJpeg(const std::string& bitmap, const std::string& jpeg, int quality) = 0;

  // What the mouse last did over the image.
  ImageMouse mouse;
};

// An AnimatedGif object: in the window (type 0) or floating over the
// desktop in a frameless window that stays on top (any other type).
class AnimatedGifControl : public virtual ObjectControl {
 public:
  // A `Gif` catalogue animation or a file; fails with the loader's error.
  // The animation stops at frame 0.
  virtual void SetSource(const PictureSource& source) = 0;
  virtual int FrameCount() const = 0;
  virtual int CurrentFrame() const = 0;
  virtual void ShowFrame(int frame) = 0;
  virtual void Play() = 0;
  virtual void Stop() = 0;
  // Plays again from the start at its end: 0 never, a count, or -1 always.
  virtual void SetLoop(int times) = 0;
  // The picture stretched to the control's size instead of its own.
  virtual void SetStretch(bool stretch) = 0;
  virtual void SetOrder(bool front) = 0;
  // Off the window into a frameless window that floats over the desktop.
  virtual void SetFloating() = 0;

  std::int16_t gifType = 0;
};

// The look given to the selected part of a Text's rich text; a part left
// empty stays as it is.
struct SelectionLook {
  std::optional<std::string> fontName;
  std::optional<double> fontSize;
  std::optional<bool> bold;
  std::optional<std::int32_t> colour;
};

// Text: a single-line text box, or a multi-line rich text box. Positions
// count characters from 0; a position beyond the text stands for its end.
class TextEntryControl : public virtual ObjectControl {
 public:
  virtual void SetMultiLine(bool multiLine) = 0;
  virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
  // The text in Rich Text Format, and the text and its looks from it.
  virtual std::string RichText() const = 0;
  virtual void SetRichText(const std::string& rtf) = 0;
  virtual void Select(int start, int length) = 0;
  virtual void SelectAll() = 0;
  virtual void SetSelectionLook(const SelectionLook& look) = 0;
  // 0 left, 1 right, 2 centre.
  virtual void SetAlignment(int alignment) = 0;
  // 0: no limit.
  virtual void SetMaxLength(int length) = 0;
  virtual void SetRightMargin(int pixels) = 0;
  virtual void SetCursorPosition(int position) = 0;
  // The control's Tag; "NUMERICO" turns the numeric key filter on.
  virtual void SetTag(const std::string& tag) = 0;
};

// Mask: a text box whose text always has the form of its mask.
class MaskControl : public virtual ObjectControl {
 public:
  // A new mask empties the field to the mask's pattern.
  virtual void SetMask(const std::string& mask) = 0;
  virtual std::string Text() const = 0;
  // The text must fit the mask.
  virtual void SetText(const std::string& text) = 0;
  virtual void SelectAll() = 0;
};

// Currency: the numeric entry field. A change of its value raises the change
// event, whoever made it.
class NumberEntryControl : public virtual ObjectControl {
 public:
  virtual double Number() const = 0;
  virtual void SetNumber(double value) = 0;
  virtual void SetDecimals(std::int16_t places) = 0;
};

// Calendar: a date field with its month picker. Dates are serial day
// numbers (days since 30 December 1899); a change raises the change event.
class DateEntryControl : public virtual ObjectControl {
 public:
  virtual double Date() const = 0;
  virtual void SetDate(double serial) = 0;
};

// Check and Radio. A new value raises the click event as a user's click
// does, unless `raiseClick` is false.
class ChoiceControl : public virtual ObjectControl {
 public:
  virtual void SetCaption(const std::string& caption) = 0;
  // The width becomes the caption's width in the control's font plus
  // `extra` pixels.
  virtual void FitToCaption(int extraPixels) = 0;
  // Check: 0 off, 1 on, 2 grey; Radio: 0 off, 1 on.
  virtual void SetChoice(int value, bool raiseClick) = 0;
};

// Label, Frame and Link: a caption and no value.
class CaptionControl : public virtual ObjectControl {
 public:
  virtual void SetCaption(const std::string& caption) = 0;
  // 0 left, 1 right, 2 centre.
  virtual void SetAlignment(int alignment) = 0;
  virtual void SetUnderline(bool underline) = 0;
  // Link: what a double click opens.
  virtual void SetTarget(const std::string& target) = 0;
  // Link: width the caption's width, height its height plus `extraHeight`.
  virtual void FitToCaption(int extraHeight) = 0;
};

// ScrollBar: a drawn horizontal or vertical bar. Every change of its value
// raises the change event.
class ScrollBarControl : public virtual ObjectControl {
 public:
  virtual void SetVertical(bool vertical) = 0;
  virtual void SetMaximum(std::int32_t max) = 0;
  virtual void SetSmallChange(std::int32_t step) = 0;
  virtual void SetLargeChange(std::int32_t step) = 0;
  virtual std::int32_t Position() const = 0;
  virtual void SetPosition(std::int32_t value) = 0;
};

// Loads and unloads the instances of the kinds' templates.
class ObjectControls {
 public:
  virtual ~ObjectControls() = default;
  // Instance `index` of the kind's template on the named window (upper-case
  // name, "PARENT" for the main window), hidden. Index 0 is that window's own
  // template, made on first use.
  virtual ObjectControl& Load(ObjectKind kind, int index, const std::string& windowName) = 0;
  // Unloads an instance above index 0; the reference is dead afterwards.
  virtual void Unload(ObjectControl& control) = 0;
  virtual ButtonSkinStore& ButtonSkins() = 0;
};

}  // namespace tamrix
