// The part of every object's control that any widget can do: place, size,
// show, enable, tab order, tip, focus, font, and moving between windows.
// The kinds' controls add their own parts.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "core/object_controls.h"

namespace tamrix {

class QtObjectControl : public virtual ObjectControl {
 public:
  // Finds a window's widget by its upper-case name.
  using WindowLookup = std::function<QWidget&(const std::string& windowName)>;

  QtObjectControl(QWidget* widget, ObjectKind kind, int index, WindowLookup lookup);
  ~QtObjectControl() override;
  QtObjectControl(const QtObjectControl&) = delete;
  QtObjectControl& operator=(const QtObjectControl&) = delete;

  // Null once the widget has gone with its window.
  QWidget* Widget() const { return widget_; }
  ObjectKind Kind() const { return kind_; }
  int Index() const { return index_; }

  void SetVisible(bool visible) override;
  void SetEnabled(bool enabled) override;
  void SetTop(int pixels) override;
  void SetLeft(int pixels) override;
  void SetHeight(int pixels) override;
  void SetWidth(int pixels) override;
  void SetTabIndex(int index) override;
  void SetToolTip(const std::string& text) override;
  void TakeFocus() override;
  void SetFontName(const std::string& name) override;
  void SetFontSize(double points) override;
  void SetBold(bool bold) override;
  void SetItalic(bool italic) override;
  void MoveToWindow(const std::string& windowName) override;
  void PlaceInto(ObjectControl& image) override;

 private:
  void Reparent(QWidget& parent);
  void ChangeFont(const std::function<void(QFont&)>& change);

  QPointer<QWidget> widget_;
  ObjectKind kind_;
  int index_;
  WindowLookup lookup_;
};

}  // namespace tamrix
