#include "platform/qt/qt_field_frame.h"

#include <QApplication>
#include <QStyle>
#include <QStyleOption>

namespace qrn::qt {

void drawFieldFrame(QPainter& painter, const QStyleOption& field) {
  QStyle& style = *QApplication::style();
  QStyleOptionFrame option;
  option.rect = field.rect;
  option.palette = field.palette;
  option.direction = field.direction;
  option.state = field.state | QStyle::State_Sunken;
  option.lineWidth = style.pixelMetric(QStyle::PM_DefaultFrameWidth, &option);
  style.drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter);
}

}  // namespace qrn::qt
