#pragma once

#include <filesystem>
#include <iosfwd>

#include "device_pages.h"
#include "platform/qt/qt_platform.h"

namespace qrn::eddpanel {

/// Writes a PNG of each page into a folder, and of pages on each other: a cascade with help in front, and a
/// dialog. They have the application's scale and palette. Prints the names, and answers whether all could be
/// written.
bool writePictures(qt::QtPlatform& platform, DevicePages& pages, const std::filesystem::path& folder,
                   std::ostream& out, std::ostream& errors);

}  // namespace qrn::eddpanel
