#pragma once

#include <string>

#include "nga_Picture.h"

namespace nga {

/// A picture as an SVG document of its own: axes with ticks and numbers, the title, and the note.
/// Units are the model's own, so none are written. A line of many points is thinned to what can be
/// seen. \p picture is one that there is.
std::string SvgText(Picture const& picture);

}  // namespace nga
