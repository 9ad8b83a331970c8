// Draws the modules and families as a picture.
#pragma once

#include <string>

namespace kesto::tools {

// An SVG, 400 pixels wide, in light and dark colours, whose names are links into <module>.md.
std::string overview_svg();

}   // namespace kesto::tools
