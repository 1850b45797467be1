#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include "host/command_button.h"
#include "picture_of.h"

namespace qrn::qt {
namespace {

QPalette darkPalette() {
  QPalette palette(QColor(0x35, 0x35, 0x35));
  palette.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
  palette.setColor(QPalette::Text, Qt::white);
  palette.setColor(QPalette::WindowText, Qt::white);
  palette.setColor(QPalette::ButtonText, Qt::white);
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x80, 0x80, 0x80));
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
  return palette;
}

struct Case {
  const char* name;
  void (*prepare)(TestPanel&);
  host::Editor& (*editor)(TestPanel&);
};

host::Editor& text(TestPanel& panel) { return panel.text(); }
host::Editor& check(TestPanel& panel) { return panel.check(); }
host::Editor& combo(TestPanel& panel) { return panel.combo(); }
host::Editor& list(TestPanel& panel) { return panel.list(); }

// In the place of the check box.
host::Editor& button(TestPanel& panel) {
  if (host::Control* made = panel.controls().find("button")) return static_cast<host::Editor&>(*made);
  auto* added = new host::CommandButton;
  panel.controls().add(host::Owned<host::Control>(added), "button", panel.box());
  panel.check().SetVisible(false);
  added->Move(TestPanel::kLeft, 68, 90, 26);
  added->SetCaption("&Apply");
  return *added;
}

void lock(TestPanel& panel) {
  panel.text().SetLocked(true);
  panel.text().SetBackColor(host::kButtonFace);
  panel.combo().SetLocked(true);
  panel.combo().SetBackColor(host::kButtonFace);
}

const Case kCases[] = {
    {"Text", [](TestPanel&) {}, text},
    {"TextLocked", lock, text},
    {"TextDisabled", [](TestPanel& p) { p.text().SetEnabled(false); }, text},
    {"TextPassword", [](TestPanel& p) { p.text().SetPasswordChar("*"); }, text},
    {"TextPasswordOfAnotherCharacter",
     [](TestPanel& p) {
       p.text().SetPasswordChar("#");
       p.text().SetAlignment(host::kAlignRight);
     },
     text},
    {"TextRight", [](TestPanel& p) { p.text().SetAlignment(host::kAlignRight); }, text},
    {"TextCentred", [](TestPanel& p) { p.text().SetAlignment(host::kAlignCentre); }, text},
    {"TextColoured", [](TestPanel& p) { p.text().SetForeColor(host::rgb(0, 0, 255)); }, text},
    {"TextEmpty", [](TestPanel& p) { p.text().SetText(""); }, text},
    {"TextTooLong", [](TestPanel& p) { p.text().SetText("a very long text indeed that is cut off"); }, text},
    {"TextTooLongRight",
     [](TestPanel& p) {
       p.text().SetText("a very long text indeed that is cut off");
       p.text().SetAlignment(host::kAlignRight);
     },
     text},
    {"TextForeign", [](TestPanel& p) { p.text().SetText("\u00b0C \u03a9 \u4e2d AV fi \U0001F600"); }, text},
    {"TextBold",
     [](TestPanel& p) { p.text().SetFont(std::make_shared<host::Font>("DejaVu Sans", 8.25, true)); }, text},
    {"Check", [](TestPanel&) {}, check},
    {"CheckTicked", [](TestPanel& p) { p.check().SetValue(1); }, check},
    {"CheckDisabled", [](TestPanel& p) { p.check().SetEnabled(false); }, check},
    {"CheckTickedDisabled",
     [](TestPanel& p) {
       p.check().SetValue(1);
       p.check().SetEnabled(false);
     },
     check},
    {"CheckOnAColour",
     [](TestPanel& p) {
       p.setBackColor(host::rgb(200, 255, 200));
       p.check().SetBackColor(host::rgb(200, 255, 200));
     },
     check},
    {"Combo", [](TestPanel&) {}, combo},
    {"ComboLocked", lock, combo},
    {"ComboDisabled", [](TestPanel& p) { p.combo().SetEnabled(false); }, combo},
    {"ComboNoneChosen", [](TestPanel& p) { p.combo().SetListIndex(-1); }, combo},
    {"ComboColoured", [](TestPanel& p) { p.combo().SetForeColor(host::rgb(255, 0, 0)); }, combo},
    {"ComboAnotherChosen", [](TestPanel& p) { p.combo().SetListIndex(1); }, combo},
    {"ComboBold",
     [](TestPanel& p) { p.combo().SetFont(std::make_shared<host::Font>("DejaVu Sans", 8.25, true)); }, combo},
    {"ComboTooLong", [](TestPanel& p) { p.combo().SetList(0, "a very long entry indeed that is cut off"); },
     combo},
    {"Button", [](TestPanel&) {}, button},
    {"ButtonDisabled", [](TestPanel& p) { button(p).SetEnabled(false); }, button},
    {"ButtonColoured", [](TestPanel& p) { button(p).SetForeColor(host::rgb(0, 0, 255)); }, button},
    {"ButtonOnAColour", [](TestPanel& p) { button(p).SetBackColor(host::rgb(200, 255, 200)); }, button},
    {"ButtonBold",
     [](TestPanel& p) { button(p).SetFont(std::make_shared<host::Font>("DejaVu Sans", 8.25, true)); },
     button},
    {"ButtonTooNarrow", [](TestPanel& p) { button(p).SetWidth(24); }, button},
    {"List", [](TestPanel&) {}, list},
    {"ListTicked",
     [](TestPanel& p) {
       p.list().SetSelected(0, true);
       p.list().SetSelected(2, true);
     },
     list},
    {"ListDisabled", [](TestPanel& p) { p.list().SetEnabled(false); }, list},
    {"ListLocked", [](TestPanel& p) { p.list().SetBackColor(host::kButtonFace); }, list},
    {"ListTooLong",
     [](TestPanel& p) {
       for (const char* entry : {"four", "five", "six"}) p.list().AddItem(entry);
     },
     list},
};

class PaintedEditor : public PanelTest, public testing::WithParamInterface<std::tuple<Case, bool>> {
 protected:
  PaintedEditor() {
    if (std::get<bool>(GetParam())) QApplication::setPalette(darkPalette());
  }
  ~PaintedEditor() override { QApplication::setPalette(usual_); }

  host::Editor& prepared() {
    const Case& one = std::get<Case>(GetParam());
    one.prepare(*panel);
    return one.editor(*panel);
  }
  // How the painted editor differs from the real one, which is realised without ever having had the focus:
  // nothing is selected and no caret blinks.
  std::string paintedAgainstReal(host::Editor& editor) {
    const QImage asPainted = partOf(painted(platform, *panel), editor);
    editor.realise();
    EXPECT_TRUE(editor.peer());
    return difference(asPainted, partOf(grabbed(*canvas), editor));
  }

  const QPalette usual_ = QApplication::palette();
};

TEST_P(PaintedEditor, LooksLikeTheRealOneWithoutTheFocus) { EXPECT_EQ(paintedAgainstReal(prepared()), ""); }

// At a scale of 1.5 it starts in the middle of a device pixel.
TEST_P(PaintedEditor, LooksLikeTheRealOneAtAnOddPixel) {
  host::Editor& editor = prepared();
  editor.Move(editor.Left() + 1, editor.Top() + 1, editor.Width() + 1, editor.Height() + 1);
  EXPECT_EQ(paintedAgainstReal(editor), "");
}

// What is kept of the panel as it was before is another picture.
TEST_P(PaintedEditor, LooksLikeTheRealOneAfterAChange) {
  QApplication::setPalette(usual_);
  painted(platform, *panel);
  host::Editor& editor = prepared();
  if (std::get<bool>(GetParam())) {
    painted(platform, *panel);
    QApplication::setPalette(darkPalette());
  }
  EXPECT_EQ(paintedAgainstReal(editor), "");
}

using PaintedScrollBar = PanelTest;

TEST_F(PaintedScrollBar, LooksLikeTheRealOne) {
  panel->bar().SetLargeChange(40);
  panel->bar().SetValue(30);
  const QImage asReal = partOf(grabbed(*canvas), panel->bar());
  panel->bar().dropPeer();
  EXPECT_EQ(difference(partOf(painted(platform, *panel), panel->bar()), asReal), "");
}

INSTANTIATE_TEST_SUITE_P(All, PaintedEditor, testing::Combine(testing::ValuesIn(kCases), testing::Bool()),
                         [](const auto& test) {
                           return std::string(std::get<Case>(test.param).name) +
                                  (std::get<bool>(test.param) ? "Dark" : "");
                         });

}  // namespace
}  // namespace qrn::qt
