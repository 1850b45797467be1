#include "qt/stack_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QStatusBar>
#include <algorithm>

namespace qrn::eddpanel {
namespace {

constexpr int kTickInterval = 100;  // milliseconds

}  // namespace

StackWindow::StackWindow(qt::QtPlatform& platform, DevicePages& pages)
    : pages_(pages), stack_(platform.widget(pages.stack())), roots_(new QListWidget) {
  auto* middle = new QWidget;
  auto* layout = new QHBoxLayout(middle);
  layout->addWidget(roots_);
  layout->addWidget(stack_, 1);
  setCentralWidget(middle);
  statusBar();
  resize(760, 720);
  connections_.push_back(pages_.Message.connect(
      [this](const std::string& text) { statusBar()->showMessage(QString::fromStdString(text)); }));
  connections_.push_back(pages_.LastPageClosed.connect([this] { close(); }));
  connect(&timer_, &QTimer::timeout, this, [this] { pages_.tick(); });
  timer_.start(kTickInterval);
  listRoots();
}

StackWindow::~StackWindow() {
  // The widget belongs to the stack, which outlives this window.
  stack_->setParent(nullptr);
}

void StackWindow::listRoots() {
  for (const edd::Menu* menu : pages_.roots()) roots_->addItem(QString::fromStdString(menu->label));
  roots_->setFixedWidth(roots_->sizeHintForColumn(0) + 40);
  roots_->setVisible(roots_->count() > 1);
  connect(roots_, &QListWidget::currentRowChanged, this, &StackWindow::start);
  roots_->setCurrentRow(0);
}

// A page that is kept open keeps its menu chosen.
void StackWindow::start(int root) {
  const auto& all = pages_.roots();
  if (pages_.closeAll()) pages_.open(*all[static_cast<std::size_t>(root)]);
  const auto kept = std::find(all.begin(), all.end(), &pages_.page(1).menu());
  const QSignalBlocker quiet(roots_);
  roots_->setCurrentRow(static_cast<int>(kept - all.begin()));
  setWindowTitle(QString::fromStdString((*kept)->label));
}

void StackWindow::closeEvent(QCloseEvent* event) { event->setAccepted(pages_.closeAll()); }

}  // namespace qrn::eddpanel
