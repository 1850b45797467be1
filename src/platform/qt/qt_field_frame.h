#pragma once

class QPainter;
class QStyleOption;

namespace qrn::qt {

/// The frame and the ground of a line edit around something else: a drop list that can't be opened, or a
/// list. Taken from the option are the place, the colours and the state.
void drawFieldFrame(QPainter& painter, const QStyleOption& field);

}  // namespace qrn::qt
