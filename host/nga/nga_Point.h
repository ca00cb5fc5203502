#pragma once

namespace nga {

/// A point of a picture, in the units of what is drawn.
struct Point {
    double x = 0;
    double y = 0;
};

}  // namespace nga
