#include "windows/qt_object_controls.h"

#include <QApplication>
#include <algorithm>

#include "commands/object_events.h"
#include "controls/btn_esp.h"
#include "core/fault.h"
#include "core/window_events.h"
#include "windows/qt_animated_gif_control.h"
#include "windows/qt_button_control.h"
#include "windows/qt_image_control.h"
#include "windows/qt_picture_control.h"
#include "windows/qt_entry_controls.h"
#include "windows/window_metrics.h"

namespace tamrix {
namespace {

// The template BtnNovo: 1215 by 375 twips, the dialog font of the desktop.
constexpr int kButtonWidth = 81;
constexpr int kButtonHeight = 25;
constexpr double kButtonFontPoints = 9;

}  // namespace

QtObjectControls::QtObjectControls(QWidget& mainWindow, QtObjectControl::WindowLookup lookup)
    : main_(mainWindow), lookup_(std::move(lookup)) {}

ObjectControl& QtObjectControls::Load(ObjectKind kind, int index, const std::string& windowName) {
  QWidget& window = lookup_(windowName);
  // Entry 0 is each window's own template, made once.
  if (index == 0) {
    const auto existing = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
      return control->Kind() == kind && control->Index() == 0 && control->Widget() != nullptr &&
             control->Widget()->parentWidget() == &window;
    });
    if (existing != controls_.end()) return **existing;
  }
  if (auto picture = MakePictureKind(kind, index, window)) {
    controls_.push_back(std::move(picture));
    return *controls_.back();
  }
  // The relay is read when an event comes, not when the control is made.
  const EventSink sink = [this](const EventRelay::Event& event) {
    if (relay_ != nullptr) relay_->Deliver(event);
  };
  const bool onMain = &window == &main_;
  std::unique_ptr<QtObjectControl> made = kind == ObjectKind::Button
                                              ? MakeButton(index, window, onMain)
                                              : MakeEntryControl(kind, index, window, onMain, lookup_, sink);
  if (!made) Throw(kInvalidCall);  // a kind without a control yet
  controls_.push_back(std::move(made));
  return *controls_.back();
}

void QtObjectControls::Unload(ObjectControl& control) {
  const auto hit = std::find_if(controls_.begin(), controls_.end(),
                                [&](const auto& owned) { return owned.get() == &control; });
  if (hit != controls_.end()) controls_.erase(hit);
}

QWidget* QtObjectControls::WidgetOf(ObjectControl& control) {
  auto* qtControl = dynamic_cast<QtObjectControl*>(&control);
  return qtControl != nullptr ? qtControl->Widget() : nullptr;
}

std::unique_ptr<QtObjectControl> QtObjectControls::MakePictureKind(ObjectKind kind, int index, QWidget& window) {
  switch (kind) {
    case ObjectKind::Picture: return std::make_unique<QtPictureControl>(index, lookup_);
    case ObjectKind::Image: return std::make_unique<QtImageControl>(window, index, lookup_);
    case ObjectKind::AnimatedGif: return std::make_unique<QtAnimatedGifControl>(window, index, lookup_);
    default: return nullptr;
  }
}

std::unique_ptr<QtObjectControl> QtObjectControls::MakeButton(int index, QWidget& window, bool onMainWindow) {
  auto* button = new BtnEsp(&window);
  button->hide();
  button->resize(kButtonWidth, kButtonHeight);
  // The desktop's own font, not the window's typewriter face.
  QFont font = QApplication::font();
  font.setPixelSize(PointsToPixels(kButtonFontPoints));
  button->setFont(font);

  // The relay is read when the event comes, not when the button is made.
  const auto deliver = [this](const EventRelay::Event& event) {
    if (relay_ != nullptr) relay_->Deliver(event);
  };
  QObject::connect(button, &BtnEsp::Click, button, [deliver, index, onMainWindow] {
    deliver([=](Interpreter& in) { ButtonClicked(in, index, onMainWindow); });
  });
  QObject::connect(button, &BtnEsp::GotFocus, button, [deliver, index] {
    deliver([=](Interpreter& in) { ObjectFocusChanged(in, ObjectKind::Button, index, true); });
  });
  QObject::connect(button, &BtnEsp::LostFocus, button, [deliver, index] {
    deliver([=](Interpreter& in) { ObjectFocusChanged(in, ObjectKind::Button, index, false); });
  });
  QObject::connect(button, &BtnEsp::KeyDown, button, [deliver](int code, int shift) {
    if (code != 0) deliver([=](Interpreter& in) { OnKeyDown(in, code, shift); });
  });
  return std::make_unique<QtButtonControl>(button, index, lookup_, skins_);
}

}  // namespace tamrix
