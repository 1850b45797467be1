#pragma once

#include <filesystem>
#include <iosfwd>

#include "device_panels.h"
#include "platform/qt/qt_platform.h"

namespace qrn::eddpanel {

/// Writes a PNG of each panel into a folder, at the application's scale and palette, and prints the names.
/// Answers whether all could be written.
bool writePictures(qt::QtPlatform& platform, DevicePanels& panels, const std::filesystem::path& folder,
                   std::ostream& out, std::ostream& errors);

}  // namespace qrn::eddpanel
