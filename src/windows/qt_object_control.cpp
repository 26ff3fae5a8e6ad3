#include "windows/qt_object_control.h"

#include <QVariant>
#include <algorithm>
#include <vector>

#include "core/fault.h"
#include "windows/screen_text.h"
#include "windows/window_metrics.h"

namespace tamrix {
namespace {

// Qt keeps a tab chain, not numbers: each control keeps its number here and
// the chain of its window is rebuilt in that order.
constexpr char kTabIndexProperty[] = "tamrixTabIndex";

void ChainTabOrder(QWidget& parent) {
  std::vector<QWidget*> chain;
  for (QWidget* child : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (child->property(kTabIndexProperty).isValid()) chain.push_back(child);
  }
  std::stable_sort(chain.begin(), chain.end(), [](QWidget* a, QWidget* b) {
    return a->property(kTabIndexProperty).toInt() < b->property(kTabIndexProperty).toInt();
  });
  for (std::size_t i = 1; i < chain.size(); ++i) QWidget::setTabOrder(chain[i - 1], chain[i]);
}

}  // namespace

QtObjectControl::QtObjectControl(QWidget* widget, ObjectKind kind, int index, WindowLookup lookup)
    : widget_(widget), kind_(kind), index_(index), lookup_(std::move(lookup)) {}

QtObjectControl::~QtObjectControl() {
  if (widget_ != nullptr) {
    widget_->hide();
    widget_->deleteLater();
  }
}

void QtObjectControl::SetVisible(bool visible) {
  if (widget_ != nullptr) widget_->setVisible(visible);
}

void QtObjectControl::SetEnabled(bool enabled) {
  if (widget_ != nullptr) widget_->setEnabled(enabled);
}

void QtObjectControl::SetTop(int pixels) {
  if (widget_ != nullptr) widget_->move(widget_->x(), pixels);
}

void QtObjectControl::SetLeft(int pixels) {
  if (widget_ != nullptr) widget_->move(pixels, widget_->y());
}

void QtObjectControl::SetHeight(int pixels) {
  if (widget_ != nullptr) widget_->resize(widget_->width(), std::max(pixels, 0));
}

void QtObjectControl::SetWidth(int pixels) {
  if (widget_ != nullptr) widget_->resize(std::max(pixels, 0), widget_->height());
}

void QtObjectControl::SetTabIndex(int index) {
  if (widget_ == nullptr) return;
  widget_->setProperty(kTabIndexProperty, index);
  if (widget_->parentWidget() != nullptr) ChainTabOrder(*widget_->parentWidget());
}

void QtObjectControl::SetToolTip(const std::string& text) {
  if (widget_ != nullptr) widget_->setToolTip(ScreenText(text));
}

// A hidden or disabled control, or one on a hidden window, refuses.
void QtObjectControl::TakeFocus() {
  if (widget_ == nullptr || !widget_->isVisible() || !widget_->isEnabled()) Throw(kInvalidCall);
  widget_->setFocus(Qt::OtherFocusReason);
}

void QtObjectControl::ChangeFont(const std::function<void(QFont&)>& change) {
  if (widget_ == nullptr) return;
  QFont font = widget_->font();
  change(font);
  widget_->setFont(font);
}

void QtObjectControl::SetFontName(const std::string& name) {
  ChangeFont([&](QFont& font) { font.setFamily(ScreenText(name)); });
}

void QtObjectControl::SetFontSize(double points) {
  ChangeFont([&](QFont& font) { font.setPixelSize(std::max(PointsToPixels(points), 1)); });
}

void QtObjectControl::SetBold(bool bold) {
  ChangeFont([&](QFont& font) { font.setBold(bold); });
}

void QtObjectControl::SetItalic(bool italic) {
  ChangeFont([&](QFont& font) { font.setItalic(italic); });
}

void QtObjectControl::MoveToWindow(const std::string& windowName) { Reparent(lookup_(windowName)); }

void QtObjectControl::PlaceInto(ObjectControl& image) {
  auto* target = dynamic_cast<QtObjectControl*>(&image);
  if (target != nullptr && target->Widget() != nullptr) Reparent(*target->Widget());
}

// The position stays in numbers and now counts from the new parent.
void QtObjectControl::Reparent(QWidget& parent) {
  if (widget_ == nullptr || widget_->parentWidget() == &parent) return;
  const bool visible = !widget_->isHidden();
  const QPoint position = widget_->pos();
  widget_->setParent(&parent);
  widget_->move(position);
  widget_->setVisible(visible);
  if (widget_->property(kTabIndexProperty).isValid()) ChainTabOrder(parent);
}

}  // namespace tamrix
