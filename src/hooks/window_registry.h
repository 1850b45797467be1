#pragma once

#include "host/windows.h"

namespace qrn {

class clsSubClass;

/// The subclassed windows of this thread: one clsWndSubClass for each window that somebody watches.
void registerWatcher(host::WindowHandle window, clsSubClass& watcher);
void unregisterWatcher(host::WindowHandle window, const clsSubClass& watcher);
int watchedWindows();

}  // namespace qrn
