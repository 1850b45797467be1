#include "qt/panel_window.h"

#include <QStatusBar>
#include <QToolTip>
#include <algorithm>

namespace qrn::eddpanel {
namespace {

constexpr int kTickInterval = 100;  // milliseconds

}  // namespace

PanelWindow::PanelWindow(qt::QtPlatform& platform, DevicePanels& panels, const QString& title)
    : platform_(platform), panels_(panels), list_(new QListWidget), layout_(new QHBoxLayout) {
  setWindowTitle(title);
  auto* middle = new QWidget;
  middle->setLayout(layout_);
  layout_->addWidget(list_);
  setCentralWidget(middle);
  statusBar();
  resize(900, 620);
  listPanels();
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) open(*panels_.menus()[static_cast<std::size_t>(row)]);
  });
  connect(&timer_, &QTimer::timeout, this, [this] { panels_.tick(); });
  timer_.start(kTickInterval);
  list_->setCurrentRow(0);
}

PanelWindow::~PanelWindow() {
  // The panels' widgets belong to the panels, which outlive this window.
  if (shown_) shown_->setParent(nullptr);
}

void PanelWindow::listPanels() {
  for (const edd::Menu* menu : panels_.menus()) list_->addItem(QString::fromStdString(menu->label));
  list_->setFixedWidth(list_->sizeHintForColumn(0) + 40);
}

void PanelWindow::open(const edd::Menu& menu) {
  MenuPanel& panel = panels_.open(menu);
  QWidget* widget = platform_.widget(panel.display());
  if (widget == shown_) return;
  if (shown_) {
    shown_->hide();
    shown_->setParent(nullptr);
  }
  shown_ = widget;
  layout_->addWidget(widget, 1);
  widget->show();
  connections_.clear();
  connections_.push_back(panel.SubmenuChosen.connect([this](const edd::Menu& chosen) {
    const auto& all = panels_.menus();
    const auto found = std::find(all.begin(), all.end(), &chosen);
    if (found != all.end()) list_->setCurrentRow(static_cast<int>(found - all.begin()));
  }));
  connections_.push_back(panel.Message.connect(
      [this](const std::string& text) { statusBar()->showMessage(QString::fromStdString(text)); }));
  connections_.push_back(panel.Help.connect([this, &panel](std::int32_t item, const std::string& text) {
    showHelp(panel.control(item), QString::fromStdString(text));
  }));
}

void PanelWindow::showHelp(const host::Control& item, const QString& text) {
  const Rect at = item.onSurface();
  const QPoint below(static_cast<int>(at.left), static_cast<int>(at.bottom()));
  // Never read as markup, whatever it looks like, but broken into lines as only markup is.
  QToolTip::showText(shown_->mapToGlobal(below), "<span>" + text.toHtmlEscaped() + "</span>", shown_);
}

}  // namespace qrn::eddpanel
