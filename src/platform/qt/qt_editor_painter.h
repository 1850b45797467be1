#pragma once

#include <QPixmap>
#include <QRect>
#include <string>
#include <unordered_map>

#include "host/color.h"

class QPainter;
class QPalette;

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

class QtFontMetrics;
class QtPlatform;
class QtSurface;

/// Draws editors that have no widget just as their widgets would look without the focus. Frames, marks and
/// the choices of drop lists are drawn by the style once for each size and state and kept; other texts are
/// drawn each time.
class QtEditorPainter {
 public:
  explicit QtEditorPainter(QtPlatform& platform) : platform_(platform) {}

  void paint(QtSurface& surface, const host::Control& control);
  /// Style, palette or fonts are others now.
  void forgetFrames() {
    frames_.clear();
    pixels_ = 0;
  }
  std::size_t framesKept() const { return frames_.size(); }
  qsizetype pixelsKept() const { return pixels_; }

 private:
  enum class Kind : char { Text, Check, Combo, Button, List };

  struct FrameKey {
    Kind kind;
    int state;
    int width, height;
    double scale, startX, startY;  // where in a device pixel it starts
    qint64 palette;
    host::Color behind;
    const QtFontMetrics* font;  // of the text that is part of it, if any
    std::string text;
    friend bool operator==(const FrameKey&, const FrameKey&) = default;
  };
  struct KeyHash {
    std::size_t operator()(const FrameKey& key) const;
  };
  struct Frame {
    QPixmap pixels;
    QRect inside;  // where the text lies, from the frame's corner
  };

  using Frames = std::unordered_map<FrameKey, Frame, KeyHash>;

  void paintText(QtSurface& surface, const QRect& place, const host::TextBox& box);
  void paintCheck(QtSurface& surface, const QRect& place, const host::CheckBox& box);
  void paintCombo(QtSurface& surface, const QRect& place, const host::ComboBox& box);
  void paintButton(QtSurface& surface, const QRect& place, const host::CommandButton& button);
  void paintList(QtSurface& surface, const QRect& place, const host::ListBox& list);
  void paintScrollBar(QtSurface& surface, const QRect& place, const host::VScrollBar& bar);

  /// What `key_` says of font and text is part of the frame. `draw` draws it when it isn't known yet, and
  /// answers where its text lies. Valid until the next call.
  template <class Draw>
  const Frame& paintFrame(QtSurface& surface, const QRect& place, const host::Editor& editor,
                          const QPalette& palette, Kind kind, int state, Draw&& draw);
  Frames::iterator keep(Frame frame);

  QtPlatform& platform_;
  FrameKey key_{};  // of the frame that is looked for; here so that its text needs no memory of its own
  Frames frames_;
  qsizetype pixels_ = 0;  // of all frames
};

}  // namespace qrn::qt
