#include "windows/qt_entry_controls.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFontMetrics>
#include <QLineEdit>
#include <QRadioButton>
#include <QTextCursor>
#include <QUrl>

#include "commands/dates/date_time.h"
#include "commands/entries/mask_pattern.h"
#include "commands/format/date_format.h"
#include "commands/object_events.h"
#include "controls/calendario.h"
#include "controls/entra_num.h"
#include "controls/mask_box.h"
#include "controls/rich_text_format.h"
#include "controls/rot.h"
#include "controls/scroll_bar.h"
#include "controls/text_box.h"
#include "core/codepage.h"
#include "core/fault.h"
#include "windows/colour_ref.h"
#include "windows/run_time_widget.h"
#include "windows/screen_text.h"

namespace tamrix {
namespace {

QString Wide(const std::string& cp1252) { return QString::fromStdString(Cp1252ToUtf8(cp1252)); }
std::string Narrow(const QString& text) { return Utf8ToCp1252Lossy(text.toStdString()); }

void SetRole(QWidget& widget, QPalette::ColorRole role, std::int32_t colour) {
  QPalette palette = widget.palette();
  palette.setColor(role, ScreenColour(colour));
  widget.setPalette(palette);
  widget.setAutoFillBackground(role == QPalette::Window || widget.autoFillBackground());
}

Qt::Alignment Horizontal(int alignment) {
  switch (alignment) {
    case 1: return Qt::AlignRight;
    case 2: return Qt::AlignHCenter;
    default: return Qt::AlignLeft;
  }
}

// What every control of these kinds passes on alike: focus, clicks, and
// the colours on the widget's palette.
class EntryControlBase : public QtObjectControl {
 public:
  EntryControlBase(QWidget* widget, ObjectKind kind, int index, WindowLookup lookup, EventSink sink, bool onMain)
      : QtObjectControl(widget, kind, index, std::move(lookup)), sink_(std::move(sink)), onMain_(onMain) {}

  void SetBackColor(std::int32_t colour) override {
    if (Widget() == nullptr) return;
    SetRole(*Widget(), QPalette::Base, colour);
    SetRole(*Widget(), QPalette::Window, colour);
  }
  void SetForeColor(std::int32_t colour) override {
    if (Widget() == nullptr) return;
    SetRole(*Widget(), QPalette::Text, colour);
    SetRole(*Widget(), QPalette::WindowText, colour);
  }

 protected:
  void Send(const EventRelay::Event& event) const { sink_(event); }
  void Focus(bool gained) const {
    const ObjectKind kind = Kind();
    const int index = Index();
    Send([=](Interpreter& in) { ObjectFocusChanged(in, kind, index, gained); });
  }
  void Click() const {
    const ObjectKind kind = Kind();
    const int index = Index();
    const bool onMain = onMain_;
    Send([=](Interpreter& in) { ObjectClicked(in, kind, index, onMain); });
  }
  bool OnMain() const { return onMain_; }
  template <class Widget, class Signal>
  void WireFocus(Widget* widget, Signal gotFocus, Signal lostFocus) {
    QObject::connect(widget, gotFocus, widget, [this] { Focus(true); });
    QObject::connect(widget, lostFocus, widget, [this] { Focus(false); });
  }

 private:
  EventSink sink_;
  bool onMain_;
};

class QtTextControl final : public EntryControlBase, public TextEntryControl {
 public:
  QtTextControl(TextBox* box, int index, WindowLookup lookup, EventSink sink, bool onMain)
      : EntryControlBase(box, ObjectKind::Text, index, std::move(lookup), std::move(sink), onMain), box_(box) {
    WireFocus(box, &TextBox::GotFocus, &TextBox::LostFocus);
    QObject::connect(box, &TextBox::Clicked, box, [this] { Click(); });
    QObject::connect(box, &TextBox::DoubleClicked, box, [this] { Click(); });
  }

  void SetMultiLine(bool multiLine) override {
    if (Widget() != nullptr) box_->SetMultiLine(multiLine);
  }
  std::string Text() const override { return Widget() != nullptr ? Narrow(box_->Text()) : std::string(); }
  void SetText(const std::string& text) override {
    if (Widget() != nullptr) box_->SetText(Wide(text));
  }
  std::string RichText() const override {
    return Widget() != nullptr ? WriteRichText(*box_->Rich().document()) : std::string();
  }
  void SetRichText(const std::string& rtf) override {
    if (Widget() != nullptr) ReadRichText(rtf, *box_->Rich().document());
  }
  void Select(int start, int length) override {
    if (Widget() == nullptr) return;
    if (box_->MultiLine()) {
      QTextCursor cursor = box_->Rich().textCursor();
      const int end = static_cast<int>(box_->Rich().document()->characterCount()) - 1;
      cursor.setPosition(std::min(start, end));
      cursor.setPosition(std::min(start + length, end), QTextCursor::KeepAnchor);
      box_->Rich().setTextCursor(cursor);
    } else {
      const int end = static_cast<int>(box_->Line().text().size());
      box_->Line().setSelection(std::min(start, end), std::min(length, end - std::min(start, end)));
    }
  }
  void SelectAll() override {
    if (Widget() == nullptr) return;
    if (box_->MultiLine()) {
      box_->Rich().selectAll();
    } else {
      box_->Line().selectAll();
    }
  }
  void SetSelectionLook(const SelectionLook& look) override {
    if (Widget() == nullptr) return;
    QTextCharFormat format;
    if (look.fontName) format.setFontFamilies({Wide(*look.fontName)});
    if (look.fontSize) format.setFontPointSize(std::max(*look.fontSize, 1.0));
    if (look.bold) format.setFontWeight(*look.bold ? QFont::Bold : QFont::Normal);
    if (look.colour) format.setForeground(ScreenColour(*look.colour));
    box_->Rich().textCursor().mergeCharFormat(format);
  }
  void SetAlignment(int alignment) override {
    if (Widget() == nullptr) return;
    box_->Line().setAlignment(Horizontal(alignment) | Qt::AlignVCenter);
    box_->Rich().setAlignment(Horizontal(alignment));
  }
  void SetMaxLength(int length) override {
    if (Widget() != nullptr) box_->Line().setMaxLength(length == 0 ? 32767 : length);
  }
  void SetRightMargin(int pixels) override {
    if (Widget() == nullptr) return;
    box_->Rich().setLineWrapMode(pixels > 0 ? QTextEdit::FixedPixelWidth : QTextEdit::WidgetWidth);
    if (pixels > 0) box_->Rich().setLineWrapColumnOrWidth(pixels);
  }
  void SetCursorPosition(int position) override {
    if (Widget() == nullptr) return;
    if (box_->MultiLine()) {
      QTextCursor cursor = box_->Rich().textCursor();
      cursor.setPosition(std::min(position, static_cast<int>(box_->Rich().document()->characterCount()) - 1));
      box_->Rich().setTextCursor(cursor);
    } else {
      box_->Line().setCursorPosition(position);
    }
  }
  void SetTag(const std::string& tag) override {
    if (Widget() != nullptr) box_->SetTag(Wide(tag));
  }

 private:
  TextBox* box_;
};

class QtMaskControl final : public EntryControlBase, public MaskControl {
 public:
  QtMaskControl(MaskBox* box, int index, WindowLookup lookup, EventSink sink, bool onMain)
      : EntryControlBase(box, ObjectKind::Mask, index, std::move(lookup), std::move(sink), onMain), box_(box) {
    WireFocus(box, &MaskBox::GotFocus, &MaskBox::LostFocus);
    QObject::connect(box, &MaskBox::Edited, box, [this] { TextChanged(); });
    QObject::connect(box, &MaskBox::KeyUp, box, [this] { TextChanged(); });
  }

  void SetMask(const std::string& mask) override {
    if (Widget() != nullptr) box_->SetMask(mask);
  }
  std::string Text() const override { return Widget() != nullptr ? box_->Content() : std::string(); }
  // An empty text gives the field its empty pattern back.
  void SetText(const std::string& text) override {
    if (Widget() == nullptr) return;
    if (text.empty()) return box_->SetContent(MaskPattern(box_->Mask()));
    if (!FitsMask(box_->Mask(), text)) Throw(kInvalidPropertyValue);
    box_->SetContent(text);
  }
  void SelectAll() override {
    if (Widget() != nullptr) box_->selectAll();
  }

 private:
  void TextChanged() {
    const std::string text = box_->Content();
    const int index = Index();
    Send([=](Interpreter& in) { ObjectTextChanged(in, ObjectKind::Mask, index, text); });
  }

  MaskBox* box_;
};

class QtCurrencyControl final : public EntryControlBase, public NumberEntryControl {
 public:
  QtCurrencyControl(EntraNum* field, int index, WindowLookup lookup, EventSink sink, bool onMain)
      : EntryControlBase(field, ObjectKind::Currency, index, std::move(lookup), std::move(sink), onMain),
        field_(field) {
    QObject::connect(field, &EntraNum::GotFocus, field, [this] { Focus(true); });
    QObject::connect(field, &EntraNum::LostFocus, field, [this](double value) {
      Focus(false);
      const int at = Index();
      const bool main = OnMain();
      Send([=](Interpreter& in) { NumberLostFocus(in, at, value, main); });
    });
    QObject::connect(field, &EntraNum::Changed, field, [this](double value) {
      const int at = Index();
      const bool main = OnMain();
      Send([=](Interpreter& in) { ValueChanged(in, ObjectKind::Currency, at, value, main); });
    });
    QObject::connect(field, &EntraNum::Clicked, field, [this] { Click(); });
  }

  void SetBackColor(std::int32_t colour) override {
    if (Widget() != nullptr) field_->SetBackColor(ScreenColour(colour));
  }
  void SetForeColor(std::int32_t colour) override {
    if (Widget() != nullptr) field_->SetForeColor(ScreenColour(colour));
  }
  double Number() const override { return Widget() != nullptr ? field_->Value() : 0.0; }
  void SetNumber(double value) override {
    if (Widget() != nullptr) field_->SetValue(value);
  }
  void SetDecimals(std::int16_t places) override {
    if (Widget() != nullptr) field_->SetCasas(places);
  }

 private:
  EntraNum* field_;
};

double SerialOfDate(const QDate& date) {
  return SerialOf(MakeDateTime(date.year(), static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day())));
}

class QtCalendarControl final : public EntryControlBase, public DateEntryControl {
 public:
  QtCalendarControl(Calendario* field, int index, WindowLookup lookup, EventSink sink, bool onMain)
      : EntryControlBase(field, ObjectKind::Calendar, index, std::move(lookup), std::move(sink), onMain),
        field_(field) {
    WireFocus(field, &Calendario::GotFocus, &Calendario::LostFocus);
    QObject::connect(field, &Calendario::Clicked, field, [this] { Click(); });
    QObject::connect(field, &Calendario::Changed, field, [this](const QDate& date) {
      const std::string text = DateText(FromSerial(SerialOfDate(date)));
      const int at = Index();
      Send([=](Interpreter& in) { ObjectTextChanged(in, ObjectKind::Calendar, at, text); });
    });
  }

  double Date() const override { return Widget() != nullptr ? SerialOfDate(field_->Value()) : 0.0; }
  void SetDate(double serial) override {
    if (Widget() == nullptr) return;
    const auto civil = CivilDate(FromSerial(serial));
    const QDate date(static_cast<int>(civil.year()), static_cast<int>(static_cast<unsigned>(civil.month())),
                     static_cast<int>(static_cast<unsigned>(civil.day())));
    if (date < Calendario::FirstDay() || date > Calendario::LastDay()) Throw(kInvalidPropertyValue);
    field_->SetValue(date);
  }

 private:
  Calendario* field_;
};


// Check and Radio: the platform's check box and option button. The option
// buttons of one window are one group, as Qt groups them by their parent.
class QtChoiceControl final : public EntryControlBase, public ChoiceControl {
 public:
  QtChoiceControl(QAbstractButton* button, ObjectKind kind, int index, WindowLookup lookup, EventSink sink,
                  bool onMain)
      : EntryControlBase(button, kind, index, std::move(lookup), std::move(sink), onMain), button_(button) {
    button->installEventFilter(&focus_);
    focus_.control = this;
    if (auto* check = qobject_cast<QCheckBox*>(button)) {
      QObject::connect(check, &QCheckBox::stateChanged, check, [this](int state) {
        Clicked(state == Qt::Checked ? 1 : state == Qt::PartiallyChecked ? 2 : 0);
      });
    } else {
      QObject::connect(button, &QAbstractButton::toggled, button, [this](bool on) {
        if (on) Clicked(1);
      });
    }
  }

  void SetCaption(const std::string& caption) override {
    if (Widget() != nullptr) button_->setText(ScreenText(caption));
  }
  void FitToCaption(int extraPixels) override {
    if (Widget() == nullptr) return;
    const QFontMetrics metrics(button_->font());
    button_->resize(metrics.horizontalAdvance(button_->text()) + extraPixels, button_->sizeHint().height());
  }
  void SetChoice(int value, bool raiseClick) override {
    if (Widget() == nullptr) return;
    quiet_ = !raiseClick;
    if (auto* check = qobject_cast<QCheckBox*>(button_)) {
      check->setTristate(value == 2);
      check->setCheckState(value == 2 ? Qt::PartiallyChecked : value == 1 ? Qt::Checked : Qt::Unchecked);
    } else {
      button_->setChecked(value != 0);
    }
    quiet_ = false;
  }

 private:
  struct FocusWatch : QObject {
    EntryControlBase* control = nullptr;
    bool eventFilter(QObject*, QEvent* event) override;
  };

  void Clicked(int value) {
    if (quiet_) return;
    const ObjectKind kind = Kind();
    const int index = Index();
    const bool onMain = OnMain();
    Send([=](Interpreter& in) { ChoiceClicked(in, kind, index, value, onMain); });
  }

  QAbstractButton* button_;
  FocusWatch focus_;
  bool quiet_ = false;
};

// Label, Frame and Link: a caption, and for the link its target.
class QtCaptionControl final : public EntryControlBase, public CaptionControl {
 public:
  QtCaptionControl(QWidget* widget, ObjectKind kind, int index, WindowLookup lookup, EventSink sink, bool onMain)
      : EntryControlBase(widget, kind, index, std::move(lookup), std::move(sink), onMain) {
    if (auto* rot = qobject_cast<Rot*>(widget)) {
      QObject::connect(rot, &Rot::Clicked, rot, [this] { Click(); });
      QObject::connect(rot, &Rot::DoubleClicked, rot, [this] { Click(); });
    }
  }

  void SetCaption(const std::string& caption) override {
    if (auto* label = qobject_cast<QLabel*>(Widget())) label->setText(ScreenText(caption));
    if (auto* frame = qobject_cast<QGroupBox*>(Widget())) frame->setTitle(ScreenText(caption));
    if (auto* link = qobject_cast<QLineEdit*>(Widget())) link->setText(Wide(caption));
  }
  void SetAlignment(int alignment) override {
    if (auto* label = qobject_cast<QLabel*>(Widget())) label->setAlignment(Horizontal(alignment) | Qt::AlignTop);
  }
  void SetUnderline(bool underline) override {
    if (Widget() == nullptr) return;
    QFont font = Widget()->font();
    font.setUnderline(underline);
    Widget()->setFont(font);
  }
  void SetTarget(const std::string& target) override {
    if (Widget() != nullptr) Widget()->setProperty("tamrixTarget", Wide(target));
  }
  void FitToCaption(int extraHeight) override {
    auto* link = qobject_cast<QLineEdit*>(Widget());
    if (link == nullptr) return;
    const QFontMetrics metrics(link->font());
    const QMargins margins = link->textMargins();
    link->resize(metrics.horizontalAdvance(link->text()) + margins.left() + margins.right() + 4,
                 metrics.height() + extraHeight);
  }
};

class QtScrollBarControl final : public EntryControlBase, public ScrollBarControl {
 public:
  QtScrollBarControl(ScrollBar* bar, int index, WindowLookup lookup, EventSink sink, bool onMain)
      : EntryControlBase(bar, ObjectKind::ScrollBar, index, std::move(lookup), std::move(sink), onMain), bar_(bar) {
    WireFocus(bar, &ScrollBar::GotFocus, &ScrollBar::LostFocus);
    QObject::connect(bar, &ScrollBar::Changed, bar, [this](std::int32_t value) {
      const int at = Index();
      const bool main = OnMain();
      Send([=](Interpreter& in) { ValueChanged(in, ObjectKind::ScrollBar, at, value, main); });
    });
  }

  void SetVertical(bool vertical) override {
    if (Widget() != nullptr) bar_->SetVertical(vertical);
  }
  void SetMaximum(std::int32_t max) override {
    if (Widget() != nullptr) bar_->SetMax(max);
  }
  void SetSmallChange(std::int32_t step) override {
    if (Widget() != nullptr) bar_->SetSmallChange(step);
  }
  void SetLargeChange(std::int32_t step) override {
    if (Widget() != nullptr) bar_->SetLargeChange(step);
  }
  std::int32_t Position() const override { return Widget() != nullptr ? bar_->Value() : 0; }
  void SetPosition(std::int32_t value) override {
    if (Widget() != nullptr) bar_->SetValue(value);
  }

 private:
  ScrollBar* bar_;
};

bool QtChoiceControl::FocusWatch::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
    static_cast<QtChoiceControl*>(control)->Focus(event->type() == QEvent::FocusIn);
  }
  return false;
}

// The link's double click opens its target with the desktop's opener, and
// the key catcher takes the focus back.
class LinkBox : public QLineEdit {
 public:
  LinkBox(QWidget* parent, std::function<void()> doubleClicked)
      : QLineEdit(parent), doubleClicked_(std::move(doubleClicked)) {
    setReadOnly(true);
    setFrame(false);
    setCursor(Qt::PointingHandCursor);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    QPalette palette = this->palette();
    palette.setColor(QPalette::Base, parent->palette().color(QPalette::Window));
    palette.setColor(QPalette::Text, QColor(0, 0, 255));
    setPalette(palette);
  }

 protected:
  void mouseDoubleClickEvent(QMouseEvent*) override {
    const QString target = property("tamrixTarget").toString();
    doubleClicked_();
    if (!target.isEmpty()) {
      QDesktopServices::openUrl(QUrl::fromUserInput(target, QDir::currentPath(), QUrl::AssumeLocalFile));
    }
    if (auto* window = dynamic_cast<RunTimeWidget*>(this->window())) window->FocusKeyCatcher();
  }

 private:
  std::function<void()> doubleClicked_;
};

}  // namespace

std::unique_ptr<QtObjectControl> MakeEntryControl(ObjectKind kind, int index, QWidget& window, bool onMainWindow,
                                                  QtObjectControl::WindowLookup lookup, EventSink sink) {
  auto hidden = [](QWidget* widget) {
    widget->hide();
    return widget;
  };
  switch (kind) {
    case ObjectKind::Text:
      return std::make_unique<QtTextControl>(static_cast<TextBox*>(hidden(new TextBox(&window))), index, lookup,
                                             sink, onMainWindow);
    case ObjectKind::Mask:
      return std::make_unique<QtMaskControl>(static_cast<MaskBox*>(hidden(new MaskBox(&window))), index, lookup,
                                             sink, onMainWindow);
    case ObjectKind::Currency: {
      auto* field = new EntraNum(&window);
      field->hide();
      field->resize(field->width(), QLineEdit().sizeHint().height());
      return std::make_unique<QtCurrencyControl>(field, index, lookup, sink, onMainWindow);
    }
    case ObjectKind::Calendar: {
      auto* field = new Calendario(&window);
      field->hide();
      field->resize(QFontMetrics(field->font()).horizontalAdvance(QStringLiteral("00/00/00000")) + 30,
                    QLineEdit().sizeHint().height());
      return std::make_unique<QtCalendarControl>(field, index, lookup, sink, onMainWindow);
    }
    case ObjectKind::Check:
    case ObjectKind::Radio: {
      QAbstractButton* button = kind == ObjectKind::Check ? static_cast<QAbstractButton*>(new QCheckBox(&window))
                                                          : static_cast<QAbstractButton*>(new QRadioButton(&window));
      button->hide();
      return std::make_unique<QtChoiceControl>(button, kind, index, lookup, sink, onMainWindow);
    }
    case ObjectKind::Label:
      return std::make_unique<QtCaptionControl>(hidden(new Rot(&window)), kind, index, lookup, sink, onMainWindow);
    case ObjectKind::Frame: {
      QWidget* frame = hidden(new SpecialFrame(&window));
      frame->lower();
      return std::make_unique<QtCaptionControl>(frame, kind, index, lookup, sink, onMainWindow);
    }
    case ObjectKind::Link: {
      auto* link = new LinkBox(&window, [sink, index, onMainWindow] {
        sink([=](Interpreter& in) { ObjectClicked(in, ObjectKind::Link, index, onMainWindow); });
      });
      link->hide();
      return std::make_unique<QtCaptionControl>(link, kind, index, lookup, sink, onMainWindow);
    }
    case ObjectKind::ScrollBar:
      return std::make_unique<QtScrollBarControl>(static_cast<ScrollBar*>(hidden(new ScrollBar(&window))), index,
                                                  lookup, sink, onMainWindow);
    default: return nullptr;
  }
}

}  // namespace tamrix
