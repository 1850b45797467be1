#include "platform/qt/qt_platform.h"

#include <QApplication>
#include <QCursor>
#include <QFontInfo>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

#include "host/user_control.h"
#include "platform/qt/qt_accessible.h"
#include "platform/qt/qt_canvas_peer.h"
#include "platform/qt/qt_check_box_peer.h"
#include "platform/qt/qt_color.h"
#include "platform/qt/qt_combo_box_peer.h"
#include "platform/qt/qt_command_button_peer.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_list_box_peer.h"
#include "platform/qt/qt_menu.h"
#include "platform/qt/qt_scroll_bar_peer.h"
#include "platform/qt/qt_surface.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_text_box_peer.h"

namespace qrn::qt {
namespace {

// Points at 96 to the inch, as controls count them.
host::FontPtr applicationFont() {
  const QFont font = QApplication::font();
  constexpr double kPointsToAPixel = 72.0 / 96;
  return std::make_shared<host::Font>(toUtf8(font.family()), QFontInfo(font).pixelSize() * kPointsToAPixel,
                                      font.bold(), font.italic());
}

QtCanvas* canvasOf(const host::Control& control) {
  // Every peer of a surface was made here.
  auto* peer = static_cast<QtCanvasPeer*>(control.root().peer());
  return peer ? peer->canvas() : nullptr;
}

bool widgetIsGone(const host::Control& control) {
  const auto* peer = static_cast<const QtPeer*>(control.peer());
  return peer && !peer->widget();
}

// What has a widget wherever its surface has one: scroll bars. What nobody has looked at shows none.
void realiseInside(host::ContainerControl& container) {
  for (host::Control* control : container.inside()) {
    if (widgetIsGone(*control)) control->dropPeer();
    const bool wished = control->peerPolicy() == host::PeerPolicy::WhenShown;
    if (wished && control->Visible() && !control->covered()) control->realise();
    if (auto* inner = control->asContainer(); inner && inner->seen()) realiseInside(*inner);
  }
}

void realiseFocused(host::UserControl& surface) {
  host::Control* const focused = surface.input().focus();
  if (!focused || focused->peerPolicy() != host::PeerPolicy::WhenFocused) return;
  if (widgetIsGone(*focused)) focused->dropPeer();
  focused->realise();
  focused->peer()->takeFocus();
}

}  // namespace

QtPlatform::QtPlatform() : defaultFont_(applicationFont()), palettes_(*this), editorPainter_(*this) {
  QAccessible::installFactory(&QtAccessibleWidget::make);
}

QWidget* QtPlatform::widget(host::UserControl& control) {
  if (widgetIsGone(control)) control.dropPeer();
  if (!control.peer()) {
    control.realise();
    realiseInside(control);
    realiseFocused(control);
  }
  return canvasOf(control);
}

std::unique_ptr<host::Peer> QtPlatform::realise(host::Control& control) {
  if (control.peerPolicy() == host::PeerPolicy::Surface)
    return std::make_unique<QtCanvasPeer>(*this, static_cast<host::UserControl&>(control));
  QtCanvas* canvas = canvasOf(control);
  if (!canvas) return nullptr;
  if (auto* box = dynamic_cast<host::TextBox*>(&control))
    return std::make_unique<QtTextBoxPeer>(*canvas, *box);
  if (auto* box = dynamic_cast<host::CheckBox*>(&control))
    return std::make_unique<QtCheckBoxPeer>(*canvas, *box);
  if (auto* box = dynamic_cast<host::ComboBox*>(&control))
    return std::make_unique<QtComboBoxPeer>(*canvas, *box);
  if (auto* list = dynamic_cast<host::ListBox*>(&control))
    return std::make_unique<QtListBoxPeer>(*canvas, *list);
  if (auto* button = dynamic_cast<host::CommandButton*>(&control))
    return std::make_unique<QtCommandButtonPeer>(*canvas, *button);
  if (auto* bar = dynamic_cast<host::VScrollBar*>(&control))
    return std::make_unique<QtScrollBarPeer>(*canvas, *bar);
  return nullptr;
}

QtFontMetrics& QtPlatform::metrics(const host::Font& font) {
  for (auto& [known, metrics] : metrics_) {
    if (known == font) return metrics;
  }
  return metrics_.emplace_back(font, font).second;
}

std::optional<int> QtPlatform::popUp(host::PopupMenu& menu, Point screen) {
  if (!offersAnything(menu)) return std::nullopt;
  ++menusShown_;
  return chooseFrom(menu, screen);
}

Point QtPlatform::cursor() const { return fromQt(QPointF(QCursor::pos())); }

Point QtPlatform::screenPosition(const host::Control& control) const {
  const QtCanvas* canvas = canvasOf(control);
  return canvas ? fromQt(canvas->mapToGlobal(QPointF(0, 0))) : Point{};
}

host::Color QtPlatform::system(host::SystemColor which) const {
  const auto index = static_cast<std::size_t>(which);
  if (index >= kSystemColors) return systemNow(which);
  if (const qint64 palette = QApplication::palette().cacheKey(); palette != palette_) {
    palette_ = palette;
    systemColors_.fill(std::nullopt);
  }
  auto& kept = systemColors_[index];
  if (!kept) kept = systemNow(which);
  return *kept;
}

host::Color QtPlatform::systemNow(host::SystemColor which) const {
  const QPalette palette = QApplication::palette();
  const auto color = [&](QPalette::ColorRole role) { return fromQt(palette.color(QPalette::Active, role)); };
  switch (which) {
    using enum host::SystemColor;
    case WindowBackground: return color(QPalette::Base);
    case WindowText: return color(QPalette::Text);
    case ButtonFace: return color(QPalette::Window);
    case ButtonText: return color(QPalette::WindowText);
    case GrayText: return fromQt(palette.color(QPalette::Disabled, QPalette::Text));
    case ButtonHighlight: return color(QPalette::Light);
    case ButtonShadow: return color(QPalette::Dark);
    case ButtonDarkShadow: return color(QPalette::Shadow);
    // Palettes have no frame: their shadow is lost on a dark window.
    case WindowFrame: return host::mixed(color(QPalette::Window), color(QPalette::WindowText), 0.6);
    case Highlight:
    case ActiveCaption: return color(QPalette::Highlight);
    case HighlightText:
    case ActiveCaptionText: return color(QPalette::HighlightedText);
    // Nor a second caption: a trace of the first one can be told from it and from any window.
    case InactiveCaption: return host::mixed(color(QPalette::Window), color(QPalette::Highlight), 0.2);
    case InactiveCaptionText: return color(QPalette::WindowText);
  }
  return color(QPalette::WindowText);
}

void QtPlatform::paintControl(host::Surface& surface, const host::Control& control) {
  editorPainter_.paint(static_cast<QtSurface&>(surface), control);
}

double QtPlatform::scrollBarWidth() const {
  return QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

double QtPlatform::comboBoxHeight(const host::Font& font) {
  const double text = metrics(font).height();
  QStyleOptionComboBox option;
  option.fontMetrics = QFontMetrics(metrics(font).font());
  const QSize inside(0, static_cast<int>(text));
  const QSize whole = QApplication::style()->sizeFromContents(QStyle::CT_ComboBox, &option, inside);
  return std::max(text + 8, static_cast<double>(whole.height()));
}

void QtPlatform::beep() { QApplication::beep(); }

std::string QtPlatform::applicationName() const { return toUtf8(QApplication::applicationName()); }

void QtPlatform::appearanceChanged() {
  palettes_.forget();
  editorPainter_.forgetFrames();
}

}  // namespace qrn::qt
