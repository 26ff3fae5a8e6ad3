// The Qt side of the object frame: loads the kinds' controls on the
// run-time windows, keeps them, and hands their events to the core.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "core/object_controls.h"
#include "windows/button_skins.h"
#include "windows/event_relay.h"
#include "windows/qt_object_control.h"

namespace tamrix {

class QtObjectControls : public ObjectControls {
 public:
  // `lookup` finds a window's widget by its upper-case name; `mainWindow`
  // is the main window's, whose buttons also report their index.
  QtObjectControls(QWidget& mainWindow, QtObjectControl::WindowLookup lookup);
  // Controls that go now hand their last focus changes to no one.
  ~QtObjectControls() override { relay_ = nullptr; }
  QtObjectControls(const QtObjectControls&) = delete;
  QtObjectControls& operator=(const QtObjectControls&) = delete;

  // Where the controls' events go; without a core they are dropped.
  void SetRelay(const EventRelay* relay) { relay_ = relay; }

  ObjectControl& Load(ObjectKind kind, int index, const std::string& windowName) override;
  void Unload(ObjectControl& control) override;
  ButtonSkinStore& ButtonSkins() override { return skins_; }

  // The widget behind a control; nullptr for none or one that has gone.
  static QWidget* WidgetOf(ObjectControl& control);

 private:
  std::unique_ptr<QtObjectControl> MakeButton(int index, QWidget& window, bool onMainWindow);
  // The controls of Picture, Image and AnimatedGif; nullptr for other kinds.
  std::unique_ptr<QtObjectControl> MakePictureKind(ObjectKind kind, int index, QWidget& window);

  QWidget& main_;
  QtObjectControl::WindowLookup lookup_;
  const EventRelay* relay_ = nullptr;
  tamrix::ButtonSkins skins_;
  std::vector<std::unique_ptr<QtObjectControl>> controls_;
};

}  // namespace tamrix
