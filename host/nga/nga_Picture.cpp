#include "nga_Picture.h"

#include <algorithm>
#include <cmath>

#include "nga_Scale.h"

namespace nga {

namespace {

bool IsBelow(mdl_Description const* description, mdl_Description const& base) {
    for (; description; description = description->Base())
        if (description == &base) return true;
    return false;
}

/// The selected object if its class is T or below it. T is the root of its objects, so that the
/// address of the whole is that of T.
template <class T>
T const* SelectedAs(Selection const& selection) {
    if (selection.what != Selection::What::Object || !selection.object) return nullptr;
    if (!IsBelow(selection.description, T::Description())) return nullptr;
    return static_cast<T const*>(selection.object);
}

bool HoldsPictures(Collection const& collection) {
    return IsBelow(&collection.Held(), kamC_Amplitude::Description()) ||
           IsBelow(&collection.Held(), kbpC_BeamProfile::Description());
}

/// Why what is selected can have no picture, and what may have been meant.
std::string WhyNone(Selection const& selection) {
    std::string const only = "only amplitudes and profiles have one";
    if (!selection.collection || !HoldsPictures(*selection.collection)) return only;
    if (selection.what == Selection::What::Collection)
        return "a collection has one for each object; name one of its objects";
    return only + ", as a whole; this is a part of " + selection.entry;
}

/// A number for people; what is none as the fields above show it.
std::string FieldText(double value) {
    return std::isfinite(value) ? NumberText(value) : JsonWriter::DoubleText(value);
}

void Include(PictureBounds& bounds, Point p) {
    bounds.low = {std::min(bounds.low.x, p.x), std::min(bounds.low.y, p.y)};
    bounds.high = {std::max(bounds.high.x, p.x), std::max(bounds.high.y, p.y)};
}

}  // namespace

PictureBounds BoundsOf(Picture const& picture) {
    PictureBounds bounds{{INFINITY, INFINITY}, {-INFINITY, -INFINITY}};
    for (CurveLine const& line : picture.lines)
        for (Point const& p : line.points) Include(bounds, p);
    for (Contour const& contour : picture.contours) {
        for (Point const& p : contour.polygon) Include(bounds, p);
        if (!(contour.radius > 0)) continue;
        Point const c = contour.centre;
        Include(bounds, {c.x - contour.radius, c.y - contour.radius});
        Include(bounds, {c.x + contour.radius, c.y + contour.radius});
    }
    return bounds;
}

bool MayHavePicture(Selection const& selection) {
    return SelectedAs<kamC_Amplitude>(selection) || SelectedAs<kbpC_BeamProfile>(selection);
}

Picture PictureOf(Selection const& selection) {
    Picture picture;
    picture.title = selection.path;
    if (auto const* amplitude = SelectedAs<kamC_Amplitude>(selection)) {
        Curve curve = CurveOf(*amplitude);
        picture.none = curve.none;
        picture.across = curve.across;
        picture.up = curve.up;
        picture.note = curve.note;
        picture.logarithmic = curve.logarithmic;
        picture.logarithmicUp = curve.logarithmicUp;
        picture.lines = std::move(curve.lines);
    } else if (auto const* profile = SelectedAs<kbpC_BeamProfile>(selection)) {
        Section section = SectionOf(*profile);
        picture.none = section.noOutline;
        picture.across = "axis 1";
        picture.up = "axis 2";
        picture.note = section.note;
        picture.sameScale = true;
        picture.contours = std::move(section.contours);
        picture.hasCentroid = section.none.empty() && !section.given;
        picture.centroid = section.properties.centroid;
    } else {
        picture.none = WhyNone(selection);
    }
    return picture;
}

std::string SectionText(Selection const& selection) {
    auto const* profile = SelectedAs<kbpC_BeamProfile>(selection);
    if (!profile) return std::string();
    Section const section = SectionOf(*profile);
    if (!section.none.empty()) return "  section: none, since " + section.none + "\n";
    SectionProperties const& p = section.properties;
    std::string text = "  section\n    area      " + FieldText(p.area) + "\n";
    if (!section.given)
        text +=
            "    centroid  [" + FieldText(p.centroid.x) + ", " + FieldText(p.centroid.y) + "]\n";
    text += "    i11       " + FieldText(p.i11) + "\n    i22       " + FieldText(p.i22) +
            "\n    i12       " + FieldText(p.i12) + "\n";
    text += section.given ? "    j         " + FieldText(p.j) + "\n"
                          : "    polar     " + FieldText(p.polar) + "\n";
    if (!section.note.empty()) text += "    note      " + section.note + "\n";
    return text;
}

void WriteSection(JsonWriter& writer, Selection const& selection) {
    auto const* profile = SelectedAs<kbpC_BeamProfile>(selection);
    if (!profile) return;
    Section const section = SectionOf(*profile);
    writer.Key("section");
    if (!section.none.empty()) {
        writer.Null();
        writer.Key("noSection");
        writer.String(section.none);
        return;
    }
    SectionProperties const& p = section.properties;
    writer.BeginObject();
    writer.Key("area");
    writer.Double(p.area);
    if (!section.given) {
        writer.Key("centroid");
        writer.BeginArray(true);
        writer.Double(p.centroid.x);
        writer.Double(p.centroid.y);
        writer.EndArray();
    }
    writer.Key("i11");
    writer.Double(p.i11);
    writer.Key("i22");
    writer.Double(p.i22);
    writer.Key("i12");
    writer.Double(p.i12);
    writer.Key(section.given ? "j" : "polar");
    writer.Double(section.given ? p.j : p.polar);
    if (!section.note.empty()) {
        writer.Key("note");
        writer.String(section.note);
    }
    writer.EndObject();
}

}  // namespace nga
