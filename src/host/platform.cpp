#include "host/platform.h"

#include <algorithm>
#include <vector>

namespace qrn::host {
namespace {

thread_local std::vector<Platform*> platforms;

}  // namespace

Platform::Platform() { platforms.push_back(this); }

Platform::~Platform() { std::erase(platforms, this); }

Platform* Platform::current() { return platforms.empty() ? nullptr : platforms.back(); }

Windows* Platform::currentWindows() {
  Platform* const platform = current();
  return platform ? &platform->windows() : nullptr;
}

}  // namespace qrn::host
