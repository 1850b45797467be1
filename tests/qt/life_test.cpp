#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QEventLoop>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <utility>

#include "test_panel.h"

namespace qrn::qt {
namespace {

/// Lets the event loop delete what was put away.
void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class Life : public PanelTest {
 protected:
  /// Removes a control from within what is noted as `when`.
  void removeWhen(const std::string& when, const std::string& name) {
    panel->listener = [this, when, name](const std::string& what) {
      if (what == when) panel->controls().remove(name);
    };
  }
};

TEST_F(Life, TheControlMayGoFirst) {
  panel->text().SetFocus();
  const QPointer<QWidget> watched = canvas;
  panel.reset();
  EXPECT_TRUE(canvas->isHidden());
  window->grab();
  settle();
  EXPECT_FALSE(watched);
}

TEST_F(Life, TheWindowMayGoFirst) {
  panel->text().SetFocus();
  window.reset();
  panel->text().SetText("still here");
  panel->bar().SetValue(5);
  panel->second().SetFocus();
  panel->Move(0, 0, 300, 300);
  panel->SetVisible(false);
  EXPECT_EQ(panel->input().focus(), &panel->second());
}

TEST_F(Life, AfterItsWindowThePanelShowsInAnotherOne) {
  panel->text().SetFocus();
  window.reset();
  window = std::make_unique<QWidget>();
  canvas = platform.widget(*panel);
  canvas->setParent(window.get());
  window->show();
  window->activateWindow();  // without a window manager nobody else does
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  EXPECT_EQ(shownWidgets(), 2);
  ASSERT_TRUE(shown<QLineEdit>());
  QTest::keyClicks(shown<QLineEdit>(), "x");
  EXPECT_EQ(panel->text().Text(), "xalpha beta");
}

TEST_F(Life, OneControlHasOneCanvas) { EXPECT_EQ(platform.widget(*panel), canvas); }

TEST_F(Life, TheFocusedTextBoxMayGoInItsChange) {
  removeWhen("text Change \"xalpha beta\"", "text");
  panel->text().SetFocus();
  QTest::keyClicks(shown<QLineEdit>(), "x");
  EXPECT_FALSE(shown<QLineEdit>());
  settle();
  EXPECT_EQ(canvas->findChildren<QLineEdit*>().size(), 0);
}

TEST_F(Life, TheFocusedTextBoxMayGoInItsKey) {
  removeWhen("text KeyDown 88 0", "text");
  panel->text().SetFocus();
  QTest::keyClicks(shown<QLineEdit>(), "x");
  EXPECT_FALSE(shown<QLineEdit>());
  settle();
}

TEST_F(Life, TheEditorMayGoInThePressThatMakesIt) {
  removeWhen("text GotFocus", "text");
  click(panel->text());
  EXPECT_FALSE(shown<QLineEdit>());
  settle();
}

TEST_F(Life, TheEditorMayGoAsItLosesTheFocus) {
  removeWhen("text LostFocus", "text");
  panel->text().SetFocus();
  after->setFocus();
  EXPECT_FALSE(shown<QLineEdit>());
  EXPECT_EQ(QApplication::focusWidget(), after);
  settle();
}

TEST_F(Life, TheCheckBoxMayGoInItsClick) {
  removeWhen("check Click", "check");
  click(panel->check());
  EXPECT_FALSE(shown<QCheckBox>());
  settle();
}

TEST_F(Life, TheDropListMayGoInItsChange) {
  removeWhen("combo Change", "combo");
  click(panel->combo());
  auto* view = shown<QComboBox>()->view();
  QTest::keyClick(view, Qt::Key_Down);
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_FALSE(shown<QComboBox>());
  settle();
}

TEST_F(Life, TheDropListMayGoWhileItIsOpen) {
  click(panel->combo());
  const QPointer<QWidget> view = shown<QComboBox>()->view();
  ASSERT_TRUE(view->isVisible());
  panel->controls().remove("combo");
  EXPECT_FALSE(view->isVisible());
  settle();
  EXPECT_FALSE(view);
}

TEST_F(Life, TheListMayGoInItsItemCheck) {
  removeWhen("list ItemCheck 0", "list");
  const Rect at = panel->list().onSurface();
  clickAt({static_cast<int>(at.left) + 8, static_cast<int>(at.top) + 8});
  EXPECT_TRUE(heard("list ItemCheck 0"));
  settle();
}

TEST_F(Life, TheScrollBarMayGoInItsChange) {
  removeWhen("bar Change 10", "bar");
  shown<QScrollBar>()->setValue(10);
  EXPECT_FALSE(shown<QScrollBar>());
  settle();
}

TEST_F(Life, ThePanelMayGoInAKeyOfItsEditor) {
  panel->text().SetFocus();
  panel->listener = [this](const std::string& what) {
    if (what == "text KeyPress 120") panel.reset();
  };
  QTest::keyClicks(shown<QLineEdit>(), "x");
  settle();
  EXPECT_FALSE(panel);
}

TEST_F(Life, AnErrorOfAListenerEndsAtTheEventLoop) {
  panel->listener = [](const std::string& what) {
    if (what.starts_with("text Change")) throw std::runtime_error("from a listener");
  };
  panel->text().SetFocus();
  QTest::keyClicks(shown<QLineEdit>(), "x");
  EXPECT_EQ(panel->text().Text(), "xalpha beta");
}

TEST_F(Life, AHiddenPanelIsShownAgainOnlyWhenItHidItself) {
  panel->SetVisible(false);
  EXPECT_TRUE(canvas->isHidden());
  panel->SetVisible(true);
  EXPECT_TRUE(canvas->isVisible());
  canvas->hide();
  panel->Move(0, 0, 210, 190);
  EXPECT_TRUE(canvas->isHidden());
}

TEST_F(Life, ThePanelHasTheSizeOfItsWidget) {
  canvas->resize(333, 111);
  EXPECT_EQ(panel->Width(), 333);
  EXPECT_EQ(panel->Height(), 111);
  panel->Move(0, 0, 150, 120);
  EXPECT_EQ(canvas->size(), QSize(150, 120));
}

// ---- listeners with an event loop of their own ----

/// A listener opens a dialog, and what it listens to goes while that runs.
class Dialogs : public Life {
 protected:
  void openWhen(const std::string& when, std::function<void()> inside) {
    panel->listener = [this, when, inside = std::move(inside)](const std::string& what) {
      if (what != when || std::exchange(opened_, true)) return;
      QEventLoop dialog;
      QTimer::singleShot(0, [&] {
        inside();
        QTimer::singleShot(0, [&] { QTimer::singleShot(0, &dialog, &QEventLoop::quit); });
      });
      dialog.exec();
    };
  }

 private:
  bool opened_ = false;
};

TEST_F(Dialogs, ATextMayGoWhileItsChangeOpensOne) {
  panel->text().SetFocus();
  const QPointer<QLineEdit> line = shown<QLineEdit>();
  openWhen("text Change \"x\"", [&] { panel->controls().remove("text"); });
  line->selectAll();
  QTest::keyClicks(line, "x");
  settle();
  EXPECT_FALSE(line);
}

TEST_F(Dialogs, ADropListMayGoWhileItsClickOpensOne) {
  panel->combo().SetFocus();
  const QPointer<QComboBox> list = shown<QComboBox>();
  openWhen("combo Click", [&] { panel->controls().remove("combo"); });
  QTest::keyClick(list, Qt::Key_Down);
  settle();
  EXPECT_FALSE(list);
}

TEST_F(Dialogs, AListMayGoWhileItsTickOpensOne) {
  panel->list().SetFocus();
  const QPointer<QListWidget> list = shown<QListWidget>();
  openWhen("list ItemCheck 0", [&] { panel->controls().remove("list"); });
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                    list->visualItemRect(list->item(0)).center());
  settle();
  EXPECT_FALSE(list);
}

TEST_F(Dialogs, AnEditorMayLoseTheFocusWhileOneIsOpen) {
  panel->text().SetFocus();
  const QPointer<QLineEdit> line = shown<QLineEdit>();
  openWhen("text Change \"x\"", [&] { panel->check().SetFocus(); });
  line->selectAll();
  QTest::keyClicks(line, "x");
  settle();
  EXPECT_FALSE(line);
  EXPECT_EQ(panel->text().Text(), "x");
}

TEST_F(Dialogs, ThePanelMayGoWhileItsPressOpensOne) {
  const QPointer<QWidget> watched = canvas;
  openWhen("panel MouseDown", [&] { panel.reset(); });
  clickAt({5, 195});
  settle();
  EXPECT_FALSE(panel);
  EXPECT_FALSE(watched);
}

TEST_F(Dialogs, ThePanelMayGoWhileThePressOnAnEditorOpensOne) {
  openWhen("check Click", [&] { panel.reset(); });
  click(panel->check());
  settle();
  EXPECT_FALSE(panel);
}

TEST_F(Life, AnErrorOfAnyKindIsNotTheEndOfTheProgram) {
  panel->listener = [](const std::string& what) {
    if (what.starts_with("text Change")) throw 42;
  };
  panel->text().SetFocus();
  QTest::keyClicks(shown<QLineEdit>(), "x");
  EXPECT_TRUE(heard("text Change \"alpha betax\"") || heard("text Change \"xalpha beta\""));
}

}  // namespace
}  // namespace qrn::qt
