#pragma once

#include <string>
#include <vector>

#include "nga_Curve.h"
#include "nga_JsonWriter.h"
#include "nga_Path.h"
#include "nga_Section.h"

namespace nga {

/// What an object looks like, in numbers: what the plot on a terminal and the SVG are drawn from.
/// Every number is finite.
struct Picture {
    /// Why there is none, in words; empty if there is one.
    std::string none;
    std::string title;
    std::string across;
    std::string up;
    std::string note;
    bool logarithmic = false;    ///< across
    bool logarithmicUp = false;  ///< up
    bool sameScale = false;      ///< the two axes have one unit
    std::vector<CurveLine> lines;
    std::vector<Contour> contours;
    bool hasCentroid = false;
    Point centroid;
};

/// The ends of all that a picture shows.
struct PictureBounds {
    Point low;
    Point high;
};
PictureBounds BoundsOf(Picture const& picture);

/// Whether objects of that class have a picture, or would have one if they were complete.
bool MayHavePicture(Selection const& selection);
/// The picture of what is selected: an amplitude's curve, a profile's section.
Picture PictureOf(Selection const& selection);

/// What show adds for a profile below its fields: the section's properties, or why it has none.
/// Empty for anything else.
std::string SectionText(Selection const& selection);
/// The same as members of the object that is being written.
void WriteSection(JsonWriter& writer, Selection const& selection);

}  // namespace nga
