// Controls without a screen: each keeps the state that the object commands
// gave it, so that tests can look at it.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "commands/entries/mask_pattern.h"
#include "core/fault.h"
#include "core/object_controls.h"

namespace tamrix::testing {

class HeadlessControl : public ButtonControl,
                        public TextEntryControl,
                        public MaskControl,
                        public NumberEntryControl,
                        public DateEntryControl,
                        public ChoiceControl,
                        public CaptionControl,
                        public ScrollBarControl {
 public:
  HeadlessControl(ObjectKind k, int i, std::string w) : kind(k), index(i), window(std::move(w)) {}

  void SetVisible(bool v) override { visible = v; }
  void SetEnabled(bool e) override { enabled = e; }
  void SetTop(int p) override { top = p; }
  void SetLeft(int p) override { left = p; }
  void SetHeight(int p) override { height = p; }
  void SetWidth(int p) override { width = p; }
  void SetTabIndex(int i) override { tabIndex = i; }
  void SetToolTip(const std::string& t) override { tip = t; }
  void TakeFocus() override {
    if (!visible || !enabled) Throw(kInvalidCall);
    ++focusTaken;
  }
  void SetBackColor(std::int32_t c) override { backColor = c; }
  void SetForeColor(std::int32_t c) override { foreColor = c; }
  void SetFontName(const std::string& n) override { fontName = n; }
  void SetFontSize(double p) override { fontSize = p; }
  void SetBold(bool b) override { bold = b; }
  void SetItalic(bool i) override { italic = i; }
  void MoveToWindow(const std::string& w) override { window = w; }
  void PlaceInto(ObjectControl& image) override { placedInto = &image; }

  void SetCaption(const std::string& c) override { caption = c; }
  void SetPicture(const PictureSource& p) override {
    if (p.builtIn < 0 && !p.path.empty() && p.path.find("missing") != std::string::npos) Throw(kFileNotFound);
    picture = p;
  }
  void SetStyle(std::int16_t s) override { style = s; }
  void ApplySkin(int n) override { skin = n; }

  // Text, Mask: the text; Label, Frame, Link, Check, Radio: the caption.
  void SetMultiLine(bool m) override { multiLine = m; }
  std::string Text() const override { return text; }
  void SetText(const std::string& t) override {
    if (kind == ObjectKind::Mask) {
      if (t.empty()) {
        text = MaskPattern(mask);
        return;
      }
      if (!FitsMask(mask, t)) Throw(kInvalidPropertyValue);
    }
    text = t;
  }
  std::string RichText() const override { return "{\\rtf1 " + text + "}"; }
  void SetRichText(const std::string& r) override { rich = r; }
  void Select(int s, int l) override { selStart = s, selLength = l; }
  void SelectAll() override { selStart = 0, selLength = static_cast<int>(text.size()); }
  void SetSelectionLook(const SelectionLook& l) override { look = l; }
  void SetAlignment(int a) override { alignment = a; }
  void SetMaxLength(int l) override { maxLength = l; }
  void SetRightMargin(int p) override { rightMargin = p; }
  void SetCursorPosition(int p) override { cursor = p; }
  void SetTag(const std::string& t) override { tag = t; }
  void SetMask(const std::string& m) override {
    mask = m;
    text = MaskPattern(m);
  }
  double Number() const override { return number; }
  void SetNumber(double v) override {
    number = v;
    ++changes;
  }
  void SetDecimals(std::int16_t p) override { decimals = p; }
  double Date() const override { return date; }
  void SetDate(double d) override {
    date = d;
    ++changes;
  }
  void FitToCaption(int extra) override { fitExtra = extra; }
  void SetChoice(int v, bool raise) override {
    choice = v;
    if (raise) ++changes;
  }
  void SetUnderline(bool u) override { underline = u; }
  void SetTarget(const std::string& t) override { target = t; }
  void SetVertical(bool v) override { vertical = v; }
  void SetMaximum(std::int32_t m) override { maximum = m; }
  void SetSmallChange(std::int32_t s) override { smallChange = s; }
  void SetLargeChange(std::int32_t l) override { largeChange = l; }
  std::int32_t Position() const override { return position; }
  void SetPosition(std::int32_t p) override {
    position = p;
    ++changes;
  }

  ObjectKind kind;
  int index;
  std::string window;
  bool visible = false;
  bool enabled = true;
  int top = 0, left = 0, height = 0, width = 0;
  int tabIndex = -1;
  std::string tip;
  int focusTaken = 0;
  std::int32_t backColor = 0, foreColor = 0;
  std::string fontName;
  double fontSize = 0;
  bool bold = false, italic = false;
  ObjectControl* placedInto = nullptr;
  std::string caption = "OK";
  PictureSource picture;
  std::int16_t style = 0;
  int skin = -1;
  bool unloaded = false;

  bool multiLine = false;
  std::string text, rich, tag, mask, target;
  int selStart = -1, selLength = -1, alignment = 0, maxLength = 0, rightMargin = 0, cursor = -1;
  SelectionLook look;
  double number = 0;
  std::int16_t decimals = 2;
  double date = 45000;  // 15/03/2023
  int fitExtra = -1, choice = 0;
  bool underline = false, vertical = false;
  std::int32_t maximum = 100, smallChange = 0, largeChange = 0, position = 0;
  // Values set that raise the control's change or click event.
  int changes = 0;
};

class HeadlessSkins : public ButtonSkinStore {
 public:
  void SetPicture(ButtonState state, const std::string& path) override {
    if (path.find("missing") != std::string::npos) Throw(kFileNotFound);
    pictures[static_cast<std::size_t>(state)] = path;
  }
  void SetBackColor(std::int32_t c) override { backColor = c; }
  void SetForeColor(std::int32_t c) override { foreColor = c; }

  std::array<std::string, 5> pictures;
  std::optional<std::int32_t> backColor, foreColor;
};

// Every control ever loaded stays here, unloaded ones marked, so that a test
// can tell a reused control from a new one. A file whose path holds
// "missing" fails to load.
class HeadlessControls : public ObjectControls {
 public:
  ObjectControl& Load(ObjectKind kind, int index, const std::string& windowName) override {
    if (index == 0) {
      for (auto& control : loaded) {
        if (control->kind == kind && control->index == 0 && control->window == windowName) return *control;
      }
    }
    loaded.push_back(std::make_unique<HeadlessControl>(kind, index, windowName));
    return *loaded.back();
  }
  void Unload(ObjectControl& control) override { dynamic_cast<HeadlessControl&>(control).unloaded = true; }
  ButtonSkinStore& ButtonSkins() override { return skins; }

  std::vector<std::unique_ptr<HeadlessControl>> loaded;
  HeadlessSkins skins;
};

}  // namespace tamrix::testing
