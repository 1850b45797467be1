#pragma once

class QPainter;
class QStyleOptionComboBox;

namespace qrn::qt {

/// The frame of a drop list that can't be changed: that of a text to read, without the arrow. Its entry is
/// drawn over it as ever.
void drawLockedComboFrame(QPainter& painter, const QStyleOptionComboBox& combo);

}  // namespace qrn::qt
