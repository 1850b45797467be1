#include "platform/qt/qt_locked_combo.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOption>

namespace qrn::qt {

void drawLockedComboFrame(QPainter& painter, const QStyleOptionComboBox& combo) {
  QStyle& style = *QApplication::style();
  QStyleOptionFrame option;
  option.rect = combo.rect;
  option.palette = combo.palette;
  option.direction = combo.direction;
  option.state = combo.state | QStyle::State_Sunken | QStyle::State_ReadOnly;
  option.lineWidth = style.pixelMetric(QStyle::PM_DefaultFrameWidth, &option);
  style.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter);
}

}  // namespace qrn::qt
