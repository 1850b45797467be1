#include "library/library.h"
#include "panels/contenders.h"
#include "panels/panel.h"
#include "platform/headless/headless_platform.h"

namespace qrn::bench {
namespace {

/// Painted as lines of text, which is all there is to see without a display.
class HeadlessForm final : public Form {
 public:
  explicit HeadlessForm(const FormOptions& options) : panel_(site_, options) {
    panel_.display().realise();
    paint();
  }

  void paint() override {
    platform_.processMessages();
    headless::RecordingSurface surface(platform_, panel_.display().pixelSize());
    panel_.display().paintTree(surface);
    static_cast<headless::HeadlessPeer&>(*panel_.display().peer()).invalidated.clear();
  }
  void settle() override { platform_.processMessages(); }
  bool run(double, int, const std::function<void()>&) override { return false; }
  void setCaption(int row, const std::string& caption) override { panel_.setCaption(row, caption); }
  int captionWidth() const override { return panel_.captionWidth(); }
  bool layOutAgain() override {
    panel_.display().LayoutControls(true);
    return true;
  }
  void write(int row, int generation) override { panel_.write(row, generation); }
  void blink(int) override {}
  int pages() const override { return bar().Max() / bar().LargeChange() + 1; }
  void toTop() override { bar().userScrolled(0); }
  bool pageDown(int pages) override {
    if (bar().Value() == bar().Max()) return false;
    bar().userScrolled(std::min(bar().Max(), bar().Value() + pages * bar().LargeChange()));
    return true;
  }

 private:
  host::VScrollBar& bar() const { return panel_.display().sbrVertical(); }

  headless::HeadlessPlatform platform_;
  headless::HeadlessSite site_{platform_};
  mutable Panel panel_;
};

}  // namespace

Contender headlessPanels() {
  registerControls();
  return {"panel", "headless",
          [](const FormOptions& options) { return std::make_unique<HeadlessForm>(options); }};
}

}  // namespace qrn::bench
