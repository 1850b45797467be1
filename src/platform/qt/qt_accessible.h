#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "base/weak_ref.h"
#include "host/accessible.h"
#include "host/control.h"

namespace qrn::qt {

class QtAccessibleText;
class QtAccessibleValue;
class QtCanvas;

/// Translates what a control tells to assistive tools. All of it is asked for anew each time; once the
/// control has gone, the interface is invalid and answers nothing.
class QtAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  /// None once the control, or the entry, has gone.
  virtual host::AccessibleNode node() const = 0;
  /// Null only for what is invalid.
  virtual QtCanvas* canvas() const = 0;

  bool isValid() const override { return static_cast<bool>(node()); }
  QWindow* window() const override;
  QAccessibleInterface* focusChild() const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QString text(QAccessible::Text what) const override;
  void setText(QAccessible::Text what, const QString& text) override;
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString& name) const override;

 protected:
  QtAccessible();
  ~QtAccessible() override;

 private:
  host::AccessibleFacts facts() const;

  std::unique_ptr<QtAccessibleText> text_;
  std::unique_ptr<QtAccessibleValue> value_;
};

/// The interface of a widget: the canvas, the real editor of a control, or the list that drops down from one.
class QtAccessibleWidget final : public QtAccessible {
 public:
  explicit QtAccessibleWidget(QWidget& widget) : widget_(&widget) {}

  /// Qt asks it for the interface of every object, the class names of its ancestors included; null for what
  /// is none of ours.
  static QAccessibleInterface* make(const QString& className, QObject* object);

  QObject* object() const override;
  host::AccessibleNode node() const override;
  QtCanvas* canvas() const override;

 private:
  QPointer<QWidget> widget_;
};

/// The interface of a control that is painted, or of an entry of a list.
class QtAccessiblePart final : public QtAccessible {
 public:
  QtAccessiblePart(QtCanvas& canvas, const host::AccessibleNode& node);

  QObject* object() const override { return nullptr; }
  host::AccessibleNode node() const override;
  QtCanvas* canvas() const override { return canvas_; }

 private:
  QtCanvas* canvas_;  // which has this
  WeakRef<host::Control> control_;
  std::int32_t entry_;
};

}  // namespace qrn::qt
