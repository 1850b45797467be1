#pragma once

#include <QPixmap>
#include <QRect>
#include <functional>
#include <map>
#include <tuple>

#include "host/color.h"

class QPainter;

namespace qrn::host {
class CheckBox;
class ComboBox;
class CommandButton;
class Control;
class Editor;
class ListBox;
class TextBox;
class VScrollBar;
}  // namespace qrn::host

namespace qrn::qt {

class QtPlatform;
class QtSurface;

/// Draws editors that have no widget just as their widgets would look without the focus. Frames and marks are
/// drawn by the style once for each size and state and kept; texts are drawn each time.
class QtEditorPainter {
 public:
  explicit QtEditorPainter(QtPlatform& platform) : platform_(platform) {}

  void paint(QtSurface& surface, const host::Control& control);
  /// Style, palette or fonts are others now.
  void forgetFrames() { frames_.clear(); }

 private:
  using DrawFrame = std::function<void(QPainter&, const QRect&)>;
  // Kind, state, width, height, scale, where in a device pixel it starts, palette and the colour that lies
  // behind.
  using FrameKey = std::tuple<char, int, int, int, double, double, double, qint64, host::Color>;

  void paintText(QPainter& painter, const QRect& place, const host::TextBox& box);
  void paintCheck(QPainter& painter, const QRect& place, const host::CheckBox& box);
  void paintCombo(QPainter& painter, const QRect& place, const host::ComboBox& box);
  void paintButton(QPainter& painter, const QRect& place, const host::CommandButton& button);
  void paintList(QPainter& painter, const QRect& place, const host::ListBox& list);
  void paintScrollBar(QPainter& painter, const QRect& place, const host::VScrollBar& bar);
  void paintFrame(QPainter& painter, const QRect& place, const host::Editor& editor, char kind, int state,
                  const DrawFrame& draw);

  QtPlatform& platform_;
  std::map<FrameKey, QPixmap> frames_;
};

}  // namespace qrn::qt
