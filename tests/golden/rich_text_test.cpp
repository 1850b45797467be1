#include "golden/golden_sheet.h"
#include "host/class_table.h"
#include "host/rich_text_box.h"

namespace qrn::golden {
namespace {

constexpr int kWidth = 232;
constexpr int kHeight = 240;

constexpr const char* kEveryFormat = R"({\rtf1\ansi\deff0
{\fonttbl{\f0 DejaVu Sans;}{\f1 DejaVu Serif;}{\f2 DejaVu Sans Mono;}}
{\colortbl ;\red200\green0\blue0;\red0\green0\blue160;\red255\green255\blue255;\red0\green0\blue0;}
\pard\qc\f1\b\fs28 Damping\b0\f0\fs18\par
\pard Smooths the \b output\b0  with a \i time constant\i0  of \ul 0.1\ulnone  to \strike 60\strike0  \cf1 120 s\cf0 .
 Steps in \cf2 blue\cf0 , \cf3 white\cf0  and \cf4 black\cf0  stay readable, whatever lies behind them.\par
\pard\tx600\tx2000 a:\tab x\up10\fs14 2\up0\fs18  + y\dn6\fs14 0\dn0\fs18\tab H\sub 2\nosupersub O\line b:\tab\f2 0.5 \'b5s\f0\tab m\super 3\nosupersub\par
\pard{\*\pn\pnlvlblt}\li300\fi-300 a bullet whose lines hang under the first one\par
{\pntext\'b7\tab}another\par
\pard\li600\fi-300\ri600 hanging and indented on the right, which makes narrow lines\par
\pard\fi400 first line indented, the others start at the left edge again\par
\pard\qr on the right\par
\pard\fs18 12345678901234567890123456789012345678901234567890\par
\pard\fs40 large\fs18  and small\par
})";

/// A user control that a rich text box fills.
class Help final : public host::UserControl {
 public:
  std::string_view typeName() const override { return "Help"; }
  const host::ClassTable& classTable() const override {
    static const host::ClassTable table{"Help", "Test.Help", {}, {}, {}, {}, {}};
    return table;
  }
  host::RichTextBox& box() { return *box_; }

 protected:
  void initialize() override {
    box_ = new host::RichTextBox;
    controls().add(host::Owned<host::Control>(box_), "rtfInfo", *this);
  }
  void resize() override { box_->Move(0, 0, ScaleWidth(), ScaleHeight()); }

 private:
  host::RichTextBox* box_ = nullptr;
};

struct State {
  const char* name;
  void (*apply)(host::RichTextBox&);
};

const State kStates[] = {
    {"usual", [](host::RichTextBox&) {}},
    {"tip colours", [](host::RichTextBox& box) { box.SetBackColor(host::rgb(255, 255, 225)); }},
    {"disabled", [](host::RichTextBox& box) { box.SetEnabled(false); }},
    {"scrolled", [](host::RichTextBox& box) { box.scrollTo(1000); }},
};

QImage pictureOf(const State& state) {
  qt::QtPlatform platform;
  qt::QtSite site(platform);
  const auto help = host::create<Help>(site);
  const std::unique_ptr<QWidget> canvas(platform.widget(*help));
  canvas->resize(kWidth, kHeight);
  help->box().SetTextRTF(kEveryFormat);
  canvas->show();
  state.apply(help->box());
  return canvas->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

Sheet richText() {
  QStringList names;
  QList<QImage> pictures;
  for (const State& state : kStates) {
    names.append(state.name);
    pictures.append(pictureOf(state));
  }
  Sheet sheet(names, kWidth);
  sheet.addRow("formats", pictures, kHeight);
  return sheet;
}

class RichTextSheet : public GoldenSheet {};

TEST_P(RichTextSheet, EveryFormat) { compareSheet("rich_text", richText); }

INSTANTIATE_TEST_SUITE_P(All, RichTextSheet, allLooks(), nameOfLook);

}  // namespace
}  // namespace qrn::golden
