#include "platform/qt/qt_editor_painter.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <typeinfo>

#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/command_button.h"
#include "host/list_box.h"
#include "host/text_box.h"
#include "host/user_control.h"
#include "host/v_scroll_bar.h"
#include "platform/qt/qt_color.h"
#include "platform/qt/qt_field_frame.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_list_item.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_surface.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_text_box_peer.h"

namespace qrn::qt {
namespace {

// Beside the bits of each kind's own.
constexpr int kRightToLeft = 1 << 8;
// What a line edit keeps free beside its text, within the frame.
constexpr int kTextMargin = 2;

QStyle& style() { return *QApplication::style(); }

// The state of a widget of an active window that has no focus.
void setState(QStyleOption& option, const QRect& place, const QPalette& palette, bool enabled) {
  option.rect = place;
  option.palette = palette;
  option.palette.setCurrentColorGroup(enabled ? QPalette::Active : QPalette::Disabled);
  option.state = QStyle::State_Active;
  option.state.setFlag(QStyle::State_Enabled, enabled);
  option.direction = QGuiApplication::layoutDirection();
}

QStyleOptionFrame lineEditOption(const QRect& place, const QPalette& palette, const host::TextBox& box) {
  QStyleOptionFrame option;
  setState(option, place, palette, box.enabledUpToSurface());
  option.lineWidth = style().pixelMetric(QStyle::PM_DefaultFrameWidth, &option);
  option.midLineWidth = 0;
  option.state |= QStyle::State_Sunken;
  option.state.setFlag(QStyle::State_ReadOnly, box.Locked());
  return option;
}

// A line edit shows characters without a glyph as blanks.
QString displayed(const host::TextBox& box) {
  QString text = toQString(box.Text());
  if (const QChar hidden = passwordCharacter(box); !hidden.isNull()) return text.fill(hidden);
  for (QChar& c : text) {
    const bool blank = (c.unicode() < 0x20 && c != QChar::Tabulation) || c == QChar::LineSeparator ||
                       c == QChar::ParagraphSeparator || c == QChar::ObjectReplacementCharacter;
    if (blank) c = QChar::Space;
  }
  return text;
}

// How far a line edit moves a text of this width to the left; one that is too wide starts at its beginning.
int scrolledBy(Qt::Alignment alignment, int width, int room) {
  if (width > room || alignment == Qt::AlignLeft) return 0;
  return alignment == Qt::AlignRight ? width - room + 1 : (width - room) / 2;
}

QColor textColor(const QPalette& palette, bool enabled) {
  return palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Text);
}

// Drawn at the origin, which is where styles expect it.
void drawScrollBar(QPainter& painter, QStyleOptionSlider option) {
  option.orientation = Qt::Vertical;
  option.subControls = QStyle::SC_All;
  painter.save();
  painter.translate(option.rect.topLeft());
  option.rect.moveTo(0, 0);
  painter.setClipRect(option.rect, Qt::IntersectClip);  // the slider's outline is a pixel too wide
  style().drawComplexControl(QStyle::CC_ScrollBar, &option, &painter);
  painter.restore();
}

QStyleOptionComboBox comboOption(const QRect& place, const QPalette& palette, bool enabled,
                                 const QFont& font) {
  QStyleOptionComboBox option;
  setState(option, place, palette, enabled);
  option.fontMetrics = QFontMetrics(font);
  option.editable = false;
  option.frame = true;
  option.subControls = QStyle::SC_All;
  option.iconSize = QSize(1, 1) * style().pixelMetric(QStyle::PM_SmallIconSize, &option);
  return option;
}

/// The surface's painter for what changes its pen, font or clip, which are put back afterwards.
class StyledPainter {
 public:
  explicit StyledPainter(QtSurface& surface) : painter_(surface.clippedPainter()) { painter_.save(); }
  StyledPainter(const StyledPainter&) = delete;
  StyledPainter& operator=(const StyledPainter&) = delete;
  ~StyledPainter() { painter_.restore(); }
  QPainter& operator*() const { return painter_; }
  QPainter* operator->() const { return &painter_; }

 private:
  QPainter& painter_;
};

// What is shown is the text itself, letter by letter.
bool isPlain(const host::TextBox& box) {
  const std::string& text = box.Text();
  return box.PasswordChar().empty() &&
         std::all_of(text.begin(), text.end(), [](char c) { return c >= 0x20 && c < 0x7F; });
}

bool isLatin(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x100; });
}

}  // namespace

void QtEditorPainter::paint(QtSurface& surface, const host::Control& control) {
  const Size size = control.pixelSize();
  const Point at = surface.origin();
  const QRect place = toPixels({at.x, at.y, size.width, size.height});
  if (place.isEmpty() || !surface.isNeeded(fromQt(place.adjusted(-1, -1, 1, 1)))) return;
  // None of them has classes below it, and asking for the class itself is much faster than casting.
  const std::type_info& type = typeid(control);
  if (type == typeid(host::TextBox))
    paintText(surface, place, static_cast<const host::TextBox&>(control));
  else if (type == typeid(host::ComboBox))
    paintCombo(surface, place, static_cast<const host::ComboBox&>(control));
  else if (type == typeid(host::CheckBox))
    paintCheck(surface, place, static_cast<const host::CheckBox&>(control));
  else if (type == typeid(host::CommandButton))
    paintButton(surface, place, static_cast<const host::CommandButton&>(control));
  else if (type == typeid(host::ListBox))
    paintList(surface, place, static_cast<const host::ListBox&>(control));
  else if (type == typeid(host::VScrollBar))
    paintScrollBar(surface, place, static_cast<const host::VScrollBar&>(control));
}

std::size_t QtEditorPainter::KeyHash::operator()(const FrameKey& key) const {
  const auto kind = static_cast<int>(key.kind);
  return qHashMulti(0, kind, key.state, key.width, key.height, key.scale, key.startX, key.startY, key.palette,
                    key.behind, quintptr(key.font), std::hash<std::string>()(key.text));
}

// Kept with what lies behind it, as an opaque picture is drawn many times faster than the style's frame.
template <class Draw>
const QtEditorPainter::Frame& QtEditorPainter::paintFrame(QtSurface& surface, const QRect& place,
                                                          const host::Editor& editor, const QPalette& palette,
                                                          Kind kind, int state, Draw&& draw) {
  const double scale = surface.scale();
  // At a scale of 1.5 every other pixel starts in the middle of one of the device's, and so does the frame.
  const QPointF start = surface.toDevice().map(QPointF(place.topLeft()));
  const QPointF whole(std::floor(start.x()), std::floor(start.y())), rest = (start - whole) / scale;
  key_.kind = kind;
  key_.state = state;
  if (QGuiApplication::layoutDirection() == Qt::RightToLeft) key_.state |= kRightToLeft;
  key_.width = place.width();
  key_.height = place.height();
  key_.scale = scale;
  key_.startX = rest.x();
  key_.startY = rest.y();
  key_.palette = palette.cacheKey();
  key_.behind = platform_.resolve(editor.Parent()->backColor());
  auto known = frames_.find(key_);
  if (known == frames_.end()) {
    Frame frame;
    frame.pixels = QPixmap(QSize(static_cast<int>(std::ceil((place.width() + rest.x()) * scale)),
                                 static_cast<int>(std::ceil((place.height() + rest.y()) * scale))));
    frame.pixels.setDevicePixelRatio(scale);
    frame.pixels.fill(toQColor(key_.behind));
    QPainter framePainter(&frame.pixels);
    framePainter.translate(rest);
    frame.inside = draw(framePainter, QRect(QPoint(0, 0), place.size()));
    framePainter.end();
    known = keep(std::move(frame));
  }
  // At a scale of 1.5 its last column may be one too many.
  const QRect covered = surface.wholeScale() ? place : place.adjusted(-1, -1, 1, 1);
  surface.painterFor(fromQt(covered)).drawPixmap(QPointF(place.topLeft()) - rest, known->second.pixels);
  return known->second;
}

QtEditorPainter::Frames::iterator QtEditorPainter::keep(Frame frame) {
  constexpr std::size_t kMostFrames = 256;
  constexpr qsizetype kMostPixels = 2'000'000;
  const qsizetype pixels = qsizetype(frame.pixels.width()) * frame.pixels.height();
  if (frames_.size() >= kMostFrames || pixels_ + pixels > kMostPixels) forgetFrames();
  pixels_ += pixels;
  return frames_.emplace(key_, std::move(frame)).first;
}

void QtEditorPainter::paintText(QtSurface& surface, const QRect& place, const host::TextBox& box) {
  const QPalette& palette = platform_.palettes().of(box);
  const bool enabled = box.enabledUpToSurface();
  const int state = (enabled ? 1 : 0) | (box.Locked() ? 2 : 0);
  const Frame& frame =
      paintFrame(surface, place, box, palette, Kind::Text, state, [&](QPainter& into, const QRect& at) {
        const QStyleOptionFrame option = lineEditOption(at, palette, box);
        style().drawPrimitive(QStyle::PE_PanelLineEdit, &option, &into);
        return style().subElementRect(QStyle::SE_LineEditContents, &option);
      });
  if (box.Text().empty()) return;

  const QRect inside = frame.inside.translated(place.topLeft());
  QtFontMetrics& metrics = platform_.metrics(*box.Font());
  const Qt::Alignment alignment = horizontalAlignment(box.Alignment());
  const int room = inside.width() - 2 * kTextMargin, left = inside.x() + kTextMargin;
  const auto topOf = [&](int height) { return inside.y() + (inside.height() - height + 1) / 2; };
  const QColor color = textColor(palette, enabled);
  const int height = static_cast<int>(metrics.height());
  const auto drawLatin = [&](std::string_view shown) {
    // Where the text starts it needs no measuring.
    const int scrolled =
        alignment == Qt::AlignLeft ? 0 : scrolledBy(alignment, qRound(metrics.advance(shown)) + 1, room);
    surface.text(QPointF(left - scrolled, topOf(height) + metrics.ascent()), shown, metrics, color, inside);
  };
  if (isPlain(box)) return drawLatin(box.Text());
  const QString text = displayed(box);
  if (isLatin(text)) return drawLatin(toUtf8(text));
  // Letters of other fonts may be taller; a line edit centres the whole line and rounds what they add.
  QTextLayout layout(text, metrics.font());
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  const int scrolled = scrolledBy(alignment, qRound(line.naturalTextWidth()) + 1, room);
  const double added = qRound(line.ascent()) - metrics.ascent();
  const StyledPainter painter(surface);
  painter->setClipRect(inside, Qt::IntersectClip);
  painter->setPen(color);
  layout.draw(&*painter, QPointF(left - scrolled, topOf(std::max(height, qRound(line.height()))) - added));
}

void QtEditorPainter::paintCheck(QtSurface& surface, const QRect& place, const host::CheckBox& box) {
  const QPalette& palette = platform_.palettes().of(box);
  const bool enabled = box.enabledUpToSurface();
  const int state = (enabled ? 1 : 0) | (box.Value() != 0 ? 2 : 0);
  paintFrame(surface, place, box, palette, Kind::Check, state, [&](QPainter& into, const QRect& at) {
    QStyleOptionButton option;
    setState(option, at, palette, enabled);
    option.state |= box.Value() != 0 ? QStyle::State_On : QStyle::State_Off;
    style().drawControl(QStyle::CE_CheckBox, &option, &into);
    return QRect();
  });
}

void QtEditorPainter::paintCombo(QtSurface& surface, const QRect& place, const host::ComboBox& box) {
  QtFontMetrics& metrics = platform_.metrics(*box.Font());
  const QPalette& palette = platform_.palettes().of(box);
  const bool enabled = box.enabledUpToSurface();
  const auto drawFrame = [&](QPainter& into, const QRect& at) {
    QStyleOptionComboBox option = comboOption(at, palette, enabled, metrics.font());
    if (box.Locked()) {
      option.state |= QStyle::State_ReadOnly;
      drawFieldFrame(into, option);
    } else {
      style().drawComplexControl(QStyle::CC_ComboBox, &option, &into);
    }
  };
  const auto drawChoice = [&](QPainter& into, const QRect& at) {
    QStyleOptionComboBox option = comboOption(at, palette, enabled, metrics.font());
    option.currentText = toQString(box.Text());
    into.setFont(metrics.font());
    into.setPen(textColor(palette, enabled));
    style().drawControl(QStyle::CE_ComboBoxLabel, &option, &into);
  };
  const int state = (enabled ? 1 : 0) | (box.Locked() ? 2 : 0);
  // Between two scales letters stand elsewhere in the frame than on the surface.
  const bool choiceIsPart = surface.wholeScale();
  if (choiceIsPart) {
    key_.font = &metrics;
    if (box.ListIndex() >= 0) key_.text = box.List(box.ListIndex());
  }
  paintFrame(surface, place, box, palette, Kind::Combo, state, [&](QPainter& into, const QRect& at) {
    drawFrame(into, at);
    if (choiceIsPart) drawChoice(into, at);
    return QRect();
  });
  key_.font = nullptr;
  key_.text.clear();
  if (!choiceIsPart) drawChoice(*StyledPainter(surface), place);
}

void QtEditorPainter::paintButton(QtSurface& surface, const QRect& place, const host::CommandButton& button) {
  const QFont& font = platform_.metrics(*button.Font()).font();
  const QPalette& palette = platform_.palettes().of(button);
  const bool enabled = button.enabledUpToSurface();
  QStyleOptionButton option;
  setState(option, place, palette, enabled);
  option.state |= QStyle::State_Raised;
  option.fontMetrics = QFontMetrics(font);
  option.iconSize = QSize(1, 1) * style().pixelMetric(QStyle::PM_ButtonIconSize, &option);
  paintFrame(surface, place, button, palette, Kind::Button, enabled ? 1 : 0,
             [&](QPainter& into, const QRect& at) {
               QStyleOptionButton frame = option;
               frame.rect = at;
               style().drawControl(QStyle::CE_PushButtonBevel, &frame, &into);
               return QRect();
             });
  option.text = toQString(button.Caption());
  option.rect = style().subElementRect(QStyle::SE_PushButtonContents, &option);
  const StyledPainter painter(surface);
  painter->setFont(font);
  style().drawControl(QStyle::CE_PushButtonLabel, &option, &*painter);
}

void QtEditorPainter::paintList(QtSurface& surface, const QRect& place, const host::ListBox& list) {
  const QPalette& palette = platform_.palettes().of(list);
  const bool enabled = list.enabledUpToSurface();
  QStyleOption frame;
  setState(frame, place, palette, enabled);
  paintFrame(surface, place, list, palette, Kind::List, enabled ? 1 : 0,
             [&](QPainter& into, const QRect& at) {
               QStyleOption field = frame;
               field.rect = at;
               drawFieldFrame(into, field);
               return QRect();
             });
  const int edge = style().pixelMetric(QStyle::PM_DefaultFrameWidth, &frame);
  const QRect inside = place.adjusted(edge, edge, -edge, -edge);

  const QFont& font = platform_.metrics(*list.Font()).font();
  const int height = listItemHeight(font), all = height * list.ListCount();
  const StyledPainter painter(surface);
  QRect entries = inside.adjusted(kListMargin, kListMargin, -kListMargin, -kListMargin);
  if (all > entries.height()) {
    const int width = style().pixelMetric(QStyle::PM_ScrollBarExtent, &frame);
    QStyleOptionSlider bar;
    setState(bar, QRect(inside.right() + 1 - width, inside.y(), width, inside.height()), palette, enabled);
    bar.maximum = all - entries.height();
    bar.pageStep = entries.height();
    drawScrollBar(*painter, bar);
    entries.setRight(entries.right() - width);
  }
  painter->setClipRect(entries, Qt::IntersectClip);
  for (int i = 0, top = entries.top(); i < list.ListCount() && top <= entries.bottom(); ++i, top += height) {
    const QtListItem item{toQString(list.List(i)), list.Selected(i), enabled, false};
    item.paint(*painter, QRect(entries.left(), top, entries.width(), height), palette, font);
  }
}

void QtEditorPainter::paintScrollBar(QtSurface& surface, const QRect& place, const host::VScrollBar& bar) {
  QStyleOptionSlider option;
  setState(option, place, QApplication::palette(), bar.enabledUpToSurface());
  option.minimum = bar.Min();
  option.maximum = std::max(bar.Min(), bar.Max());
  option.sliderPosition = option.sliderValue = bar.Value();
  option.pageStep = bar.LargeChange();
  option.singleStep = bar.SmallChange();
  drawScrollBar(*StyledPainter(surface), option);
}

}  // namespace qrn::qt
