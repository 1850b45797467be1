#pragma once

#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <QWidget>

class QContextMenuEvent;
class QMouseEvent;

namespace qrn::qt {

/// Hands the mouse on to an editor whose widget was made by the press: the press itself, then what follows
/// until the release, which Qt still sends to the widget that was pressed.
class QtPressForwarder {
 public:
  /// An event is being handed on. What the editor does not want comes back to its parent meanwhile.
  bool sending() const { return sending_; }
  bool active() const { return !receiver_.isNull(); }
  QWidget* receiver() const { return receiver_; }

  /// `moved` is how far the editor has gone since the press, which counts until the release: it hits what
  /// was under the mouse.
  void press(QWidget& receiver, const QMouseEvent& event, QPointF moved);
  /// A move or a release; the release of the last button ends it.
  void pass(const QMouseEvent& event);
  /// That a menu is asked for. An editor without one passes it back.
  void passMenu(const QContextMenuEvent& event);
  void end() { receiver_ = nullptr; }

  /// The second click of a double click is a plain press to Qt when the first one went elsewhere. Answers
  /// whether it was handed on as what it is.
  bool completeDoubleClick(QWidget& receiver, const QMouseEvent& press);

 private:
  void send(QWidget& receiver, const QMouseEvent& event, int type, QPointF moved);

  QPointer<QWidget> receiver_;
  QPointF moved_;
  bool sending_ = false;
  bool passingMenu_ = false;

  QPointer<QWidget> firstClick_;
  QPoint firstClickAt_;
  quint64 firstClickTime_ = 0;
};

}  // namespace qrn::qt
