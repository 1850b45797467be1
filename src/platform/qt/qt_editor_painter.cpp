#include "platform/qt/qt_editor_painter.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

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

constexpr std::size_t kMostFrames = 256;
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

bool isLatin(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x100; });
}

}  // namespace

void QtEditorPainter::paint(QtSurface& surface, const host::Control& control) {
  const Size size = control.pixelSize();
  const Point at = surface.origin();
  const QRect place = toPixels({at.x, at.y, size.width, size.height});
  if (place.isEmpty()) return;
  QPainter& painter = surface.clippedPainter();
  painter.save();
  if (const auto* box = dynamic_cast<const host::TextBox*>(&control))
    paintText(painter, place, *box);
  else if (const auto* check = dynamic_cast<const host::CheckBox*>(&control))
    paintCheck(painter, place, *check);
  else if (const auto* combo = dynamic_cast<const host::ComboBox*>(&control))
    paintCombo(painter, place, *combo);
  else if (const auto* button = dynamic_cast<const host::CommandButton*>(&control))
    paintButton(painter, place, *button);
  else if (const auto* list = dynamic_cast<const host::ListBox*>(&control))
    paintList(painter, place, *list);
  else if (const auto* bar = dynamic_cast<const host::VScrollBar*>(&control))
    paintScrollBar(painter, place, *bar);
  painter.restore();
}

// Kept with what lies behind it, as an opaque picture is drawn many times faster than the style's frame.
void QtEditorPainter::paintFrame(QPainter& painter, const QRect& place, const host::Editor& editor, char kind,
                                 int state, const DrawFrame& draw) {
  const double scale = painter.deviceTransform().m11();
  const host::Color behind = platform_.resolve(editor.Parent()->backColor());
  const qint64 palette = platform_.palettes().of(editor).cacheKey();
  // At a scale of 1.5 every other pixel starts in the middle of one of the device's, and so does the frame.
  const QPointF start = painter.deviceTransform().map(QPointF(place.topLeft()));
  const QPointF whole(std::floor(start.x()), std::floor(start.y())), rest = (start - whole) / scale;
  const FrameKey key{kind, state, place.width(), place.height(), scale, rest.x(), rest.y(), palette, behind};
  if (frames_.size() >= kMostFrames) frames_.clear();
  QPixmap& frame = frames_[key];
  if (frame.isNull()) {
    frame = QPixmap(QSize(static_cast<int>(std::ceil((place.width() + rest.x()) * scale)),
                          static_cast<int>(std::ceil((place.height() + rest.y()) * scale))));
    frame.setDevicePixelRatio(scale);
    frame.fill(toQColor(behind));
    QPainter framePainter(&frame);
    framePainter.translate(rest);
    draw(framePainter, QRect(QPoint(0, 0), place.size()));
  }
  painter.drawPixmap(QPointF(place.topLeft()) - rest, frame);
}

void QtEditorPainter::paintText(QPainter& painter, const QRect& place, const host::TextBox& box) {
  const QPalette& palette = platform_.palettes().of(box);
  const int state = (box.enabledUpToSurface() ? 1 : 0) | (box.Locked() ? 2 : 0);
  paintFrame(painter, place, box, 't', state, [&](QPainter& into, const QRect& at) {
    const QStyleOptionFrame option = lineEditOption(at, palette, box);
    style().drawPrimitive(QStyle::PE_PanelLineEdit, &option, &into);
  });
  if (box.Text().empty()) return;

  const QStyleOptionFrame option = lineEditOption(place, palette, box);
  const QRect inside = style().subElementRect(QStyle::SE_LineEditContents, &option);
  QtFontMetrics& metrics = platform_.metrics(*box.Font());
  const QString text = displayed(box);
  const Qt::Alignment alignment = horizontalAlignment(box.Alignment());
  const int room = inside.width() - 2 * kTextMargin, left = inside.x() + kTextMargin;
  const auto topOf = [&](int height) { return inside.y() + (inside.height() - height + 1) / 2; };
  painter.setClipRect(inside, Qt::IntersectClip);
  painter.setPen(textColor(palette, box.enabledUpToSurface()));
  const int height = static_cast<int>(metrics.height());
  if (isLatin(text)) {
    const std::string shown = toUtf8(text);
    const int scrolled = scrolledBy(alignment, qRound(metrics.advance(shown)) + 1, room);
    drawText(painter, QPointF(left - scrolled, topOf(height) + metrics.ascent()), shown, metrics);
    return;
  }
  // Letters of other fonts may be taller; a line edit centres the whole line and rounds what they add.
  QTextLayout layout(text, metrics.font());
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  const int scrolled = scrolledBy(alignment, qRound(line.naturalTextWidth()) + 1, room);
  const double added = qRound(line.ascent()) - metrics.ascent();
  layout.draw(&painter, QPointF(left - scrolled, topOf(std::max(height, qRound(line.height()))) - added));
}

void QtEditorPainter::paintCheck(QPainter& painter, const QRect& place, const host::CheckBox& box) {
  const int state = (box.enabledUpToSurface() ? 1 : 0) | (box.Value() != 0 ? 2 : 0);
  paintFrame(painter, place, box, 'c', state, [&](QPainter& into, const QRect& at) {
    QStyleOptionButton option;
    setState(option, at, platform_.palettes().of(box), box.enabledUpToSurface());
    option.state |= box.Value() != 0 ? QStyle::State_On : QStyle::State_Off;
    style().drawControl(QStyle::CE_CheckBox, &option, &into);
  });
}

void QtEditorPainter::paintCombo(QPainter& painter, const QRect& place, const host::ComboBox& box) {
  const QFont& font = platform_.metrics(*box.Font()).font();
  const QPalette& palette = platform_.palettes().of(box);
  QStyleOptionComboBox option;
  setState(option, place, palette, box.enabledUpToSurface());
  option.fontMetrics = QFontMetrics(font);
  option.editable = false;
  option.frame = true;
  option.subControls = QStyle::SC_All;
  option.iconSize = QSize(1, 1) * style().pixelMetric(QStyle::PM_SmallIconSize, &option);
  const int state = (box.enabledUpToSurface() ? 1 : 0) | (box.Locked() ? 2 : 0);
  paintFrame(painter, place, box, 'o', state, [&](QPainter& into, const QRect& at) {
    QStyleOptionComboBox frame = option;
    frame.rect = at;
    if (box.Locked()) {
      frame.state |= QStyle::State_ReadOnly;
      return drawFieldFrame(into, frame);
    }
    style().drawComplexControl(QStyle::CC_ComboBox, &frame, &into);
  });
  option.currentText = toQString(box.Text());
  painter.setFont(font);
  painter.setPen(textColor(palette, box.enabledUpToSurface()));
  style().drawControl(QStyle::CE_ComboBoxLabel, &option, &painter);
}

void QtEditorPainter::paintButton(QPainter& painter, const QRect& place, const host::CommandButton& button) {
  const QFont& font = platform_.metrics(*button.Font()).font();
  QStyleOptionButton option;
  setState(option, place, platform_.palettes().of(button), button.enabledUpToSurface());
  option.state |= QStyle::State_Raised;
  option.fontMetrics = QFontMetrics(font);
  option.iconSize = QSize(1, 1) * style().pixelMetric(QStyle::PM_ButtonIconSize, &option);
  paintFrame(painter, place, button, 'b', button.enabledUpToSurface() ? 1 : 0,
             [&](QPainter& into, const QRect& at) {
               QStyleOptionButton frame = option;
               frame.rect = at;
               style().drawControl(QStyle::CE_PushButtonBevel, &frame, &into);
             });
  option.text = toQString(button.Caption());
  option.rect = style().subElementRect(QStyle::SE_PushButtonContents, &option);
  painter.setFont(font);
  style().drawControl(QStyle::CE_PushButtonLabel, &option, &painter);
}

void QtEditorPainter::paintList(QPainter& painter, const QRect& place, const host::ListBox& list) {
  const QPalette& palette = platform_.palettes().of(list);
  QStyleOption frame;
  setState(frame, place, palette, list.enabledUpToSurface());
  paintFrame(painter, place, list, 'l', list.enabledUpToSurface() ? 1 : 0,
             [&](QPainter& into, const QRect& at) {
               QStyleOption field = frame;
               field.rect = at;
               drawFieldFrame(into, field);
             });
  const int edge = style().pixelMetric(QStyle::PM_DefaultFrameWidth, &frame);
  const QRect inside = place.adjusted(edge, edge, -edge, -edge);

  const QFont& font = platform_.metrics(*list.Font()).font();
  const int height = listItemHeight(font), all = height * list.ListCount();
  QRect entries = inside.adjusted(kListMargin, kListMargin, -kListMargin, -kListMargin);
  if (all > entries.height()) {
    const int width = style().pixelMetric(QStyle::PM_ScrollBarExtent, &frame);
    QStyleOptionSlider bar;
    setState(bar, QRect(inside.right() + 1 - width, inside.y(), width, inside.height()), palette,
             list.enabledUpToSurface());
    bar.maximum = all - entries.height();
    bar.pageStep = entries.height();
    drawScrollBar(painter, bar);
    entries.setRight(entries.right() - width);
  }
  painter.setClipRect(entries, Qt::IntersectClip);
  for (int i = 0, top = entries.top(); i < list.ListCount() && top <= entries.bottom(); ++i, top += height) {
    const QtListItem item{toQString(list.List(i)), list.Selected(i), list.enabledUpToSurface(), false};
    item.paint(painter, QRect(entries.left(), top, entries.width(), height), palette, font);
  }
}

void QtEditorPainter::paintScrollBar(QPainter& painter, const QRect& place, const host::VScrollBar& bar) {
  QStyleOptionSlider option;
  setState(option, place, QApplication::palette(), bar.enabledUpToSurface());
  option.minimum = bar.Min();
  option.maximum = std::max(bar.Min(), bar.Max());
  option.sliderPosition = option.sliderValue = bar.Value();
  option.pageStep = bar.LargeChange();
  option.singleStep = bar.SmallChange();
  drawScrollBar(painter, option);
}

}  // namespace qrn::qt
