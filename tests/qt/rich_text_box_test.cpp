#include "host/rich_text_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include "host/class_table.h"
#include "host/user_control.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_site.h"

namespace qrn::qt {
namespace {

/// A user control that a rich text box fills; Escape is its own.
class Help final : public host::UserControl {
 public:
  std::string_view typeName() const override { return "Help"; }
  const host::ClassTable& classTable() const override {
    static const host::ClassTable table{"Help", "Test.Help", {}, {}, {}, {}, {}};
    return table;
  }
  void childKeyDown(host::Control&, std::int16_t& keyCode, std::int16_t&) override {
    if (keyCode == host::key::Escape) ++escapes;
  }

  host::RichTextBox& box = *new host::RichTextBox;
  int escapes = 0;

 protected:
  void initialize() override { controls().add(host::Owned<host::Control>(&box), "rtfInfo", *this); }
  void resize() override { box.Move(0, 0, ScaleWidth(), ScaleHeight()); }
};

class RichTextBoxes : public testing::Test {
 protected:
  RichTextBoxes() {
    canvas->resize(120, 60);
    std::string lines;
    for (int i = 0; i < 20; ++i) lines += std::to_string(i) + "\r\n";
    help->box.SetText(lines);
    canvas->show();
    canvas->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(canvas.get()));
  }

  QtPlatform platform;
  QtSite site{platform};
  host::Owned<Help> help = host::create<Help>(site);
  std::unique_ptr<QWidget> canvas{platform.widget(*help)};
};

TEST_F(RichTextBoxes, AreFocusedByAPressAndScrolledByKeys) {
  QTest::mouseClick(canvas.get(), Qt::LeftButton, {}, QPoint(20, 20));
  EXPECT_TRUE(help->box.hasFocus());
  QTest::keyClick(canvas.get(), Qt::Key_Down);
  EXPECT_GT(help->box.scrolledBy(), 0);
  QTest::keyClick(canvas.get(), Qt::Key_Home);
  EXPECT_EQ(help->box.scrolledBy(), 0);
}

TEST_F(RichTextBoxes, LeaveEscapeToTheirHolder) {
  help->box.SetFocus();
  QTest::keyClick(canvas.get(), Qt::Key_Escape);
  EXPECT_EQ(help->escapes, 1);
}

TEST_F(RichTextBoxes, AreScrolledByTheWheelWithoutTheFocus) {
  const QPointF at(20, 20);
  QWheelEvent event(at, canvas->mapToGlobal(at), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(canvas.get(), &event);
  EXPECT_TRUE(event.isAccepted());
  EXPECT_GT(help->box.scrolledBy(), 0);
}

TEST_F(RichTextBoxes, PaintAnotherPictureOnceTheyAreScrolled) {
  const QImage top = canvas->grab().toImage();
  help->box.scrollTo(30);
  EXPECT_NE(canvas->grab().toImage(), top);
}

}  // namespace
}  // namespace qrn::qt
