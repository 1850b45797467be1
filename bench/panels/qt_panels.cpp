#include "library/library.h"
#include "panels/contenders.h"
#include "panels/panel.h"
#include "panels/qt_window.h"
#include "platform/qt/qt_site.h"

namespace qrn::bench {
namespace {

class PanelForm final : public QtForm {
 public:
  PanelForm(qt::QtSite& site, const FormOptions& options) : panel_(site, options) {
    QWidget* widget = site.platform().widget(panel_.display());
    showWindow(*widget, widget->findChild<QScrollBar*>());
  }

  void setCaption(int row, const std::string& caption) override { panel_.setCaption(row, caption); }
  int captionWidth() const override { return panel_.captionWidth(); }
  bool layOutAgain() override {
    panel_.display().LayoutControls(true);
    return true;
  }
  void write(int row, int generation) override { panel_.write(row, generation); }
  // A dynamic value does so itself.
  void blink(int) override {}

 private:
  Panel panel_;
};

}  // namespace

Contender panels() {
  registerControls();
  auto platform = std::make_shared<qt::QtPlatform>();
  auto site = std::make_shared<qt::QtSite>(*platform);
  return {"panel", displayName(), [platform, site](const FormOptions& options) {
            return std::make_unique<PanelForm>(*site, options);
          }};
}

}  // namespace qrn::bench
