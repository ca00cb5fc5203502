#pragma once

#include <string>

#include "nga_Picture.h"

namespace nga {

/// A picture for a terminal: about 60 columns of dots (Unicode's braille patterns, eight dots a
/// character) and 16 rows, with numbers at both axes, the axes' names and the note. Several
/// lines have letters at their ends, in the order of their names below. No line of the text has
/// blanks at its end. \p picture is one that there is.
std::string PlotText(Picture const& picture);

}  // namespace nga
