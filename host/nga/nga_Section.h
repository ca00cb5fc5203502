#pragma once

#include <string>
#include <vector>

#include "kbpC_BeamProfile.h"
#include "nga_Point.h"

namespace nga {

/// A closed line around material or around a hole: a circle if it has a radius, and else a polygon,
/// counterclockwise around material and clockwise around a hole.
struct Contour {
    bool hole = false;
    Point centre;
    double radius = 0;
    std::vector<Point> polygon;
};

/// Area, centroid, and second moments about axes through the centroid: i11 the integral of x2^2,
/// i22 that of x1^2, i12 that of x1 x2, polar i11 + i22. Of a round section polar is the torsion
/// constant as well, of no other one.
struct SectionProperties {
    double area = 0;
    Point centroid;
    double i11 = 0;
    double i22 = 0;
    double i12 = 0;
    double polar = 0;
    double j = 0;  ///< only what a profile gives of itself
};

/// A profile's section in its axes 1 (to the right) and 2 (upwards).
struct Section {
    /// Why there are no properties, in words; empty if there are.
    std::string none;
    /// Why there is no outline; empty if there is one.
    std::string noOutline;
    SectionProperties properties;
    /// Whether the profile gives the properties itself: then there is j, and neither a polar moment
    /// nor a centroid, of which nothing tells.
    bool given = false;
    /// In what the section differs from the profile; may be empty.
    std::string note;
    /// Contours may overlap where the segments of a thin-walled section meet.
    std::vector<Contour> contours;
};

/// The section of a profile. One that breaks a rule has neither properties nor outline.
///
/// Corners are sharp: fillets and rounded corners of rolled sections are not in the model.
///
/// - Circles, pipes and rectangles have the closed forms of any table of sections.
/// - Shapes with straight edges have the sums over their edges into which Green's theorem turns the
///   integrals; holes count negative.
/// - An arbitrary profile is a sum of rectangles, one a segment: with L its length, t its thickness
///   and p, q its ends, the area is L t, and the integral of x2^2 is
///   L t (p2^2 + p2 q2 + q2^2) / 3 + L t^3 / 12 (L1 / L)^2, L1 being q1 - p1. Where rectangles
///   meet at an angle, they overlap on one side and leave a gap on the other; for thin walls the
///   error is small, and the note tells of it.
/// - A generalized profile has the properties that it gives, and no outline. What people take its j
///   for is a torsion constant, which polar is not.
///
/// The origin lies in the middle of circles, pipes, hexagons, rectangles and boxes, where the
/// profile says so above the lower edge of I, T and trapezoid, and in the outer corner of an L,
/// from which tables of angles measure as well. The walls of a box count counterclockwise from
/// axis 1: right, upper, left, lower. A hexagon has corners on axis 1.
Section SectionOf(kbpC_BeamProfile const& profile);

}  // namespace nga
