#pragma once

#include <QImage>

#include "test_panel.h"

namespace qrn::qt {

/// The panel's tree of controls painted at the application's scale factor, without any widget of Qt.
QImage painted(QtPlatform& platform, host::UserControl& control);
/// A canvas with all the widgets on it.
QImage grabbed(QWidget& canvas);
/// The part of a picture where a control lies.
QImage partOf(const QImage& picture, const host::Control& control);
/// Where two pictures differ, for a message; empty when they don't.
std::string difference(const QImage& a, const QImage& b);

}  // namespace qrn::qt
