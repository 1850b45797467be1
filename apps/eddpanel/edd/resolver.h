#pragma once

#include "edd/parser.h"

namespace qrn::edd {

/// Finds out what the items of all menus are.
/// @throws DescriptionError if an item is not declared, or menus contain themselves or nest too deep
Description resolve(WrittenDescription written, Warnings& warnings);

}  // namespace qrn::edd
