#include "nga_Section.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "kbpC_ArbitraryProfile.h"
#include "kbpC_BoxProfile.h"
#include "kbpC_CircularProfile.h"
#include "kbpC_GeneralizedProfile.h"
#include "kbpC_HexagonalProfile.h"
#include "kbpC_IbeamProfile.h"
#include "kbpC_LbeamProfile.h"
#include "kbpC_PipeProfile.h"
#include "kbpC_RectangularProfile.h"
#include "kbpC_TbeamProfile.h"
#include "kbpC_TrapezoidalProfile.h"
#include "nga_Check.h"

namespace nga {

namespace {

constexpr double pi = 3.141592653589793238463;

bool AreFinite(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

/// Integrals over an area of 1, x, y, y^2, x^2 and x y.
struct Integrals {
    double area = 0;
    double x = 0;
    double y = 0;
    double yy = 0;
    double xx = 0;
    double xy = 0;

    void Add(Integrals const& other) {
        area += other.area;
        x += other.x;
        y += other.y;
        yy += other.yy;
        xx += other.xx;
        xy += other.xy;
    }
};

/// Over a polygon; negative where it runs clockwise. \p scale brings its points near to 1.
Integrals OverPolygon(std::vector<Point> const& polygon, Point middle, double scale) {
    Integrals sum;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        Point const& from = polygon[i];
        Point const& to = polygon[(i + 1) % polygon.size()];
        double const x0 = (from.x - middle.x) * scale;
        double const y0 = (from.y - middle.y) * scale;
        double const x1 = (to.x - middle.x) * scale;
        double const y1 = (to.y - middle.y) * scale;
        double const cross = x0 * y1 - x1 * y0;
        sum.area += cross / 2;
        sum.x += cross * (x0 + x1) / 6;
        sum.y += cross * (y0 + y1) / 6;
        sum.yy += cross * (y0 * y0 + y0 * y1 + y1 * y1) / 12;
        sum.xx += cross * (x0 * x0 + x0 * x1 + x1 * x1) / 12;
        sum.xy += cross * (x0 * y1 + 2 * x0 * y0 + 2 * x1 * y1 + x1 * y0) / 24;
    }
    return sum;
}

/// Differences of what is equal leave a rest of rounding, which would look like a value.
double WithoutRest(double value, double size) {
    return std::fabs(value) < 1e-14 * size ? 0.0 : value;
}

/// Sets the properties of polygons, summed up about the middle of all their points and in the
/// units of their size, so that neither a far origin nor a great or small unit costs digits.
void AddPolygonProperties(Section& section) {
    Point low{INFINITY, INFINITY};
    Point high{-INFINITY, -INFINITY};
    for (Contour const& contour : section.contours)
        for (Point const& p : contour.polygon) {
            low = {std::min(low.x, p.x), std::min(low.y, p.y)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y)};
        }
    Point const middle{low.x / 2 + high.x / 2, low.y / 2 + high.y / 2};
    double const size = std::max(high.x - low.x, high.y - low.y) / 2;
    double const scale = 1 / size;
    Integrals sum;
    for (Contour const& contour : section.contours)
        sum.Add(OverPolygon(contour.polygon, middle, scale));
    double const x = sum.x / sum.area;
    double const y = sum.y / sum.area;
    double const fourth = size * size * size * size;
    SectionProperties& result = section.properties;
    result.area = sum.area * size * size;
    result.centroid = {WithoutRest(middle.x + x * size, size),
                       WithoutRest(middle.y + y * size, size)};
    double const yy = sum.yy - sum.area * y * y;
    double const xx = sum.xx - sum.area * x * x;
    result.i11 = yy * fourth;
    result.i22 = xx * fourth;
    result.i12 = WithoutRest(sum.xy - sum.area * x * y, xx + yy) * fourth;
}

Contour Polygon(std::vector<Point> points) {
    Contour contour;
    contour.polygon = std::move(points);
    return contour;
}

Contour Hole(std::vector<Point> points) {
    std::reverse(points.begin(), points.end());
    Contour contour = Polygon(std::move(points));
    contour.hole = true;
    return contour;
}

std::vector<Point> Corners(double left, double lower, double right, double upper) {
    return {{left, lower}, {right, lower}, {right, upper}, {left, upper}};
}

Section Polygons(std::vector<Contour> contours) {
    Section section;
    section.contours = std::move(contours);
    AddPolygonProperties(section);
    return section;
}

/// The same with the origin somewhere else, which the moments do not see.
Section Moved(Section section, double by) {
    for (Contour& contour : section.contours)
        for (Point& p : contour.polygon) p.y -= by;
    double& y = section.properties.centroid.y;
    y = WithoutRest(y - by, std::max(std::fabs(y), std::fabs(by)));
    return section;
}

Section NoSection(std::string const& why) {
    Section section;
    section.none = section.noOutline = why;
    return section;
}

Contour Circle(double radius, bool hole) {
    Contour contour;
    contour.radius = radius;
    contour.hole = hole;
    return contour;
}

Section Of(kbpC_CircularProfile const& profile) {
    double const square = profile.r * profile.r;
    Section section;
    section.contours = {Circle(profile.r, false)};
    section.properties.area = pi * square;
    section.properties.i11 = section.properties.i22 = pi * square * square / 4;
    return section;
}

Section Of(kbpC_PipeProfile const& profile) {
    double const outer = profile.r;
    double const inner = profile.r - profile.t;
    Section section;
    section.contours = {Circle(outer, false), Circle(inner, true)};
    // The difference of the squares, without the loss of digits that a thin wall would cost.
    double const squares = profile.t * (outer + inner);
    section.properties.area = pi * squares;
    section.properties.i11 = section.properties.i22 =
        pi * squares * (outer * outer + inner * inner) / 4;
    return section;
}

Section Of(kbpC_RectangularProfile const& profile) {
    double const a = profile.a;
    double const b = profile.b;
    Section section;
    section.contours = {Polygon(Corners(-a / 2, -b / 2, a / 2, b / 2))};
    section.properties.area = a * b;
    section.properties.i11 = a * b * b * b / 12;
    section.properties.i22 = b * a * a * a / 12;
    return section;
}

Section Of(kbpC_TrapezoidalProfile const& profile) {
    double const a = profile.a / 2;
    double const c = profile.c / 2;
    double const b = profile.b;
    return Moved(Polygons({Polygon({{-a, 0}, {a, 0}, {c, b}, {-c, b}})}), profile.d);
}

std::vector<Point> Hexagon(double radius) {
    double const half = radius / 2;
    double const high = radius * std::sqrt(3.0) / 2;
    return {{radius, 0}, {half, high}, {-half, high}, {-radius, 0}, {-half, -high}, {half, -high}};
}

Section Of(kbpC_HexagonalProfile const& profile) {
    // The thickness is measured across the wall, the radius to a corner.
    double const inner = profile.r - profile.t * 2 / std::sqrt(3.0);
    return Polygons({Polygon(Hexagon(profile.r)), Hole(Hexagon(inner))});
}

Section Of(kbpC_BoxProfile const& profile) {
    double const a = profile.a / 2;
    double const b = profile.b / 2;
    bool const uniform = profile.uniformThickness;
    double const right = profile.t1;
    double const upper = uniform ? profile.t1 : profile.t2;
    double const left = uniform ? profile.t1 : profile.t3;
    double const lower = uniform ? profile.t1 : profile.t4;
    return Polygons({Polygon(Corners(-a, -b, a, b)),
                     Hole(Corners(-a + left, -b + lower, a - right, b - upper))});
}

/// An upright web with a flange below and one above, either of which may be as the web.
Section Flanged(double height, double width1, double thickness1, double width2, double thickness2,
                double web) {
    double const w = web / 2;
    std::vector<Point> points;
    double const b1 = width1 > 0 ? width1 / 2 : w;
    double const t1 = width1 > 0 ? thickness1 : 0;
    double const b2 = width2 > 0 ? width2 / 2 : w;
    double const t2 = width2 > 0 ? thickness2 : 0;
    points = {{-b1, 0}, {b1, 0}};
    if (t1 > 0) points.insert(points.end(), {{b1, t1}, {w, t1}});
    if (t2 > 0) points.insert(points.end(), {{w, height - t2}, {b2, height - t2}});
    points.insert(points.end(), {{b2, height}, {-b2, height}});
    if (t2 > 0) points.insert(points.end(), {{-b2, height - t2}, {-w, height - t2}});
    if (t1 > 0) points.insert(points.end(), {{-w, t1}, {-b1, t1}});
    return Polygons({Polygon(std::move(points))});
}

Section Of(kbpC_IbeamProfile const& profile) {
    double const flanges =
        (profile.b1 > 0 ? profile.t1 : 0.0) + (profile.b2 > 0 ? profile.t2 : 0.0);
    // No rule forbids it, but then the flanges would lie in each other.
    if (!(profile.h >= flanges))
        return NoSection("the flanges together are thicker than the height");
    return Moved(Flanged(profile.h, profile.b1, profile.t1, profile.b2, profile.t2, profile.t3),
                 profile.l);
}

Section Of(kbpC_TbeamProfile const& profile) {
    return Moved(Flanged(profile.h, 0, 0, profile.b, profile.tf, profile.tw), profile.l);
}

Section Of(kbpC_LbeamProfile const& profile) {
    double const a = profile.a;
    double const b = profile.b;
    double const t1 = profile.t1;
    double const t2 = profile.t2;
    return Polygons({Polygon({{0, 0}, {a, 0}, {a, t1}, {t2, t1}, {t2, b}, {0, b}})});
}

/// Where a segment ends, and the way from there into it.
struct SegmentEnd {
    Point at;
    Point way;
};

/// Whether anything meets there but two segments that go straight on.
bool HasCorners(std::vector<SegmentEnd> ends) {
    std::sort(ends.begin(), ends.end(), [](SegmentEnd const& a, SegmentEnd const& b) {
        return a.at.x != b.at.x ? a.at.x < b.at.x : a.at.y < b.at.y;
    });
    for (std::size_t i = 1; i < ends.size(); ++i) {
        SegmentEnd const& a = ends[i - 1];
        SegmentEnd const& b = ends[i];
        if (a.at.x != b.at.x || a.at.y != b.at.y) continue;
        if (std::fabs(a.way.x * b.way.y - a.way.y * b.way.x) > 1e-9) return true;
        if (a.way.x * b.way.x + a.way.y * b.way.y > 0) return true;
    }
    return false;
}

Section Of(kbpC_ArbitraryProfile const& profile) {
    cow_2DArray<double> const& table = profile.table;
    std::vector<Contour> contours;
    std::vector<SegmentEnd> ends;
    for (int row = 1; row < table.Rows(); ++row) {
        Point const from{table.Cell(row - 1, 0), table.Cell(row - 1, 1)};
        Point const to{table.Cell(row, 0), table.Cell(row, 1)};
        double const half = table.Cell(row, 2) / 2;
        double const length = std::hypot(to.x - from.x, to.y - from.y);
        // A segment of no thickness leads to where the next one begins.
        if (half == 0 || length == 0) continue;
        double const nx = -(to.y - from.y) / length * half;
        double const ny = (to.x - from.x) / length * half;
        Point const way{(to.x - from.x) / length, (to.y - from.y) / length};
        // What is no number has no order either; such a section is refused for it.
        if (AreFinite({from.x, from.y, to.x, to.y})) {
            ends.push_back({from, way});
            ends.push_back({to, {-way.x, -way.y}});
        }
        contours.push_back(Polygon({{from.x - nx, from.y - ny},
                                    {to.x - nx, to.y - ny},
                                    {to.x + nx, to.y + ny},
                                    {from.x + nx, from.y + ny}}));
    }
    if (contours.empty()) return NoSection("it has no segments");
    Section section = Polygons(std::move(contours));
    if (HasCorners(std::move(ends))) section.note = "approximate where segments meet at an angle";
    return section;
}

Section Of(kbpC_GeneralizedProfile const& profile) {
    Section section;
    section.given = true;
    section.noOutline = "it is given by its properties and not by its shape";
    section.properties.area = profile.area;
    section.properties.i11 = profile.i11;
    section.properties.i22 = profile.i22;
    section.properties.i12 = profile.i12;
    section.properties.j = profile.j;
    return section;
}

Section Dispatch(kbpC_BeamProfile const& profile) {
    if (auto const* one = dynamic_cast<kbpC_CircularProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_PipeProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_RectangularProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_TrapezoidalProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_HexagonalProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_BoxProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_IbeamProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_TbeamProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_LbeamProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_ArbitraryProfile const*>(&profile)) return Of(*one);
    if (auto const* one = dynamic_cast<kbpC_GeneralizedProfile const*>(&profile)) return Of(*one);
    return NoSection("its class has no shape that is known");
}

/// Why nobody can draw these contours; empty for what has a size and lies within sight of its
/// origin.
std::string NoOutline(std::vector<Contour> const& contours) {
    Point low{INFINITY, INFINITY};
    Point high{-INFINITY, -INFINITY};
    auto const include = [&](double x, double y) {
        low = {std::min(low.x, x), std::min(low.y, y)};
        high = {std::max(high.x, x), std::max(high.y, y)};
        return AreFinite({x, y});
    };
    bool finite = true;
    for (Contour const& contour : contours) {
        if (contour.radius != 0)
            finite = include(-contour.radius, -contour.radius) &&
                     include(contour.radius, contour.radius) && finite;
        for (Point const& p : contour.polygon) finite = include(p.x, p.y) && finite;
    }
    double const size = std::max(high.x - low.x, high.y - low.y);
    if (!finite || !(size < 1e300)) return "a dimension of it is not finite or too great";
    if (!(size > 1e-290)) return "it is too small for numbers";
    double const far = std::max({-low.x, -low.y, high.x, high.y});
    if (!(size > 1e-8 * far)) return "it lies too far from its origin";
    return std::string();
}

}  // namespace

Section SectionOf(kbpC_BeamProfile const& profile) {
    mdl_Description const* description = mdl_Description::Find(profile.DynTypeId());
    if (!description) return NoSection("its class is not known");
    std::string const broken = BrokenRule(*description, &profile);
    if (!broken.empty()) return NoSection("it breaks a rule: " + broken);
    Section section = Dispatch(profile);
    // What is given is shown as it is.
    if (!section.none.empty() || !section.noOutline.empty()) return section;
    section.noOutline = NoOutline(section.contours);
    if (!section.noOutline.empty()) section.contours.clear();
    SectionProperties& p = section.properties;
    p.polar = p.i11 + p.i22;
    if (!AreFinite({p.area, p.centroid.x, p.centroid.y, p.i11, p.i22, p.i12, p.polar}) ||
        !(p.area > 0) || !(p.i11 > 0) || !(p.i22 > 0))
        section.none = section.noOutline.empty()
                           ? "its second moments are too great or too small for numbers"
                           : section.noOutline;
    return section;
}

}  // namespace nga
