#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

#include "panels/contenders.h"
#include "panels/qt_window.h"

namespace qrn::bench {
namespace {

struct Icons {
  QPixmap disc = pixmapOf(Icon::Disc), triangle = pixmapOf(Icon::Triangle), square = pixmapOf(Icon::Square);
};
const Icons& icons() {
  static const Icons made;
  return made;
}

/// A widget for each part of each row, in a grid that scrolls.
class WidgetGrid final : public QtForm {
 public:
  explicit WidgetGrid(const FormOptions& options) {
    auto* content = new QWidget;
    grid_ = new QGridLayout(content);
    grid_->setColumnStretch(1, 1);
    captions_.reserve(static_cast<std::size_t>(options.rows));
    editors_.reserve(static_cast<std::size_t>(options.rows));
    statuses_.reserve(static_cast<std::size_t>(options.rows));
    for (int row = 0; row < options.rows; ++row) addRow(row);
    area_.setWidgetResizable(true);
    area_.setWidget(content);
    area_.resize(800, 600);
    showWindow(area_, area_.verticalScrollBar());
  }

  void setCaption(int row, const std::string& caption) override {
    captions_[static_cast<std::size_t>(row)]->setText(QString::fromStdString(caption));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  }
  int captionWidth() const override { return captions_[0]->width(); }
  void write(int row, int generation) override {
    QWidget* editor = editors_[static_cast<std::size_t>(row)];
    switch (kindOf(row)) {
      case Kind::Number:
        static_cast<QLineEdit*>(editor)->setText(QString::number(numberOf(row, generation), 'f', 3));
        break;
      case Kind::Choice: static_cast<QComboBox*>(editor)->setCurrentIndex(choiceOf(row, generation)); break;
      case Kind::Flag: static_cast<QCheckBox*>(editor)->setChecked(flagOf(row, generation)); break;
      case Kind::Hexadecimal:
        static_cast<QLineEdit*>(editor)->setText(QString::asprintf("0x%08X", hexadecimalOf(row, generation)));
        break;
    }
  }
  void blink(int row) override {
    blinking_ = row == 0 ? !blinking_ : blinking_;
    statuses_[static_cast<std::size_t>(row)]->setPixmap(blinking_ ? icons().square : icons().triangle);
  }

 private:
  static QWidget* editorOf(int row) {
    switch (kindOf(row)) {
      case Kind::Choice: {
        static const QStringList choices = [] {
          QStringList all;
          for (const char* choice : kChoices) all << choice;
          return all;
        }();
        auto* box = new QComboBox;
        box->addItems(choices);
        return box;
      }
      case Kind::Flag: return new QCheckBox;
      default: return new QLineEdit;
    }
  }

  static QLabel* iconLabel(const QPixmap& icon) {
    auto* label = new QLabel;
    label->setPixmap(icon);
    return label;
  }

  void addRow(int row) {
    captions_.push_back(new QLabel(QString::fromStdString(captionOf(row))));
    editors_.push_back(editorOf(row));
    statuses_.push_back(iconLabel(row / 4 % 2 == 0 ? icons().triangle : icons().square));
    write(row, 0);
    grid_->addWidget(captions_.back(), row, 0);
    grid_->addWidget(editors_.back(), row, 1);
    grid_->addWidget(iconLabel(icons().disc), row, 2);
    grid_->addWidget(new QLabel(QString::fromUtf8(unitOf(row))), row, 3);
    grid_->addWidget(statuses_.back(), row, 4);
  }

  QScrollArea area_;
  QGridLayout* grid_ = nullptr;
  std::vector<QLabel*> captions_;
  std::vector<QWidget*> editors_;
  std::vector<QLabel*> statuses_;
  bool blinking_ = false;
};

}  // namespace

Contender widgetGrids() {
  return {"grid", displayName(),
          [](const FormOptions& options) { return std::make_unique<WidgetGrid>(options); }};
}

}  // namespace qrn::bench
