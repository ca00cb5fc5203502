#include "nga_Svg.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "nga_Names.h"
#include "nga_Scale.h"

namespace nga {

namespace {

constexpr double pageWidth = 720;
constexpr double plotLeft = 90;
constexpr double plotRight = 690;
constexpr double plotTop = 50;
constexpr double plotHeight = 340;
/// Colours that are told apart by those who see few of them, and on paper.
constexpr char const* lineColours[] = {"#0b5394", "#b45309", "#2e7d32",
                                       "#7b1fa2", "#c2185b", "#455a64"};
constexpr std::size_t colourCount = sizeof lineColours / sizeof *lineColours;
constexpr std::size_t maxLegend = 12;
/// How the lines differ whose colours are used up.
constexpr char const* lineDashes[] = {"", "7 4", "2 3", "9 3 2 3"};
constexpr std::size_t dashCount = sizeof lineDashes / sizeof *lineDashes;
/// No narrower, so that a note finds its place below a narrow section.
constexpr double leastWidth = 360;
/// Of the page right of the plot, where a number may reach beyond it.
constexpr double rightMargin = pageWidth - plotRight;
/// About as wide as a letter of the notes, and of the title.
constexpr double letterWidth = 6.2;
constexpr double titleLetterWidth = 8;

std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", value);
    return text;
}

/// What XML can hold of a text: bytes that are no UTF-8 and control characters have no place in it.
std::string Escaped(std::string_view text) {
    std::string escaped;
    while (!text.empty()) {
        std::size_t const length = static_cast<std::size_t>(std::max(Utf8Length(text), 1));
        std::string_view const character = text.substr(0, length);
        unsigned char const c = static_cast<unsigned char>(text[0]);
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (c == '"')
            escaped += "&quot;";
        else if (Utf8Length(text) == 0 || c < 0x20 || character == "\xef\xbf\xbe" ||
                 character == "\xef\xbf\xbf")
            escaped += "\xef\xbf\xbd";
        else
            escaped += character;
        text.remove_prefix(length);
    }
    return escaped;
}

/// At most so many characters: the beginning, dots, and the end.
std::string Shortened(std::string const& text, std::size_t room) {
    std::vector<std::size_t> begins;
    for (std::size_t at = 0; at < text.size();
         at += static_cast<std::size_t>(std::max(Utf8Length(std::string_view(text).substr(at)), 1)))
        begins.push_back(at);
    if (begins.size() <= room) return text;
    return text.substr(0, begins[room / 2]) + "\xe2\x80\xa6" +
           text.substr(begins[begins.size() - room / 2 + 1]);
}

struct Frame {
    Scale across;
    Scale up;
    double left;
    double width;
    double height;
    double page;  ///< width of the page

    double X(double value) const { return left + across.Place(value) * width; }
    double Y(double value) const { return plotTop + (1 - up.Place(value)) * height; }
    std::string At(Point p) const { return Number(X(p.x)) + " " + Number(Y(p.y)); }
};

std::vector<Scale::Tick> UpTicks(Scale const& up, double height) {
    return up.Ticks(std::max(1, static_cast<int>(height / 55)));
}

/// About how wide a number is.
double WidthOf(Scale::Tick const& tick) { return 7.5 * static_cast<double>(tick.text.size()); }

/// As many as have room beside each other.
std::vector<Scale::Tick> AcrossTicks(Scale const& across, double width) {
    for (int wanted = std::max(1, static_cast<int>(width / 90));; --wanted) {
        std::vector<Scale::Tick> const ticks = across.Ticks(wanted);
        bool fits = true;
        for (std::size_t i = 1; i < ticks.size(); ++i)
            fits = fits && (ticks[i].place - ticks[i - 1].place) * width >=
                               (WidthOf(ticks[i]) + WidthOf(ticks[i - 1])) / 2;
        if (fits || wanted <= 1) return ticks;
    }
}

/// Where the plot begins, so that the numbers left of it have room.
double LeftOf(Scale const& up, double height) {
    double longest = 0;
    for (Scale::Tick const& tick : UpTicks(up, height)) longest = std::max(longest, WidthOf(tick));
    return std::max(plotLeft, 40 + longest);
}

Frame FrameOf(Picture const& picture) {
    PictureBounds const bounds = BoundsOf(picture);
    if (!picture.sameScale) {
        Scale const up = Scale::Rounded(bounds.low.y, bounds.high.y, 6, picture.logarithmicUp);
        double const left = LeftOf(up, plotHeight);
        return {Scale::Of(bounds.low.x, bounds.high.x, picture.logarithmic),
                up,
                left,
                plotRight - left,
                plotHeight,
                pageWidth};
    }
    double const width = bounds.high.x - bounds.low.x;
    double const height = bounds.high.y - bounds.low.y;
    // A margin around the section, and never so narrow that the numbers find no place.
    double const margin = 0.05 * std::max(width, height);
    double const fullWidth = plotRight - plotLeft - 60;
    double const unit =
        std::max((width + 2 * margin) / fullWidth, (height + 2 * margin) / plotHeight);
    double const across = std::max((width + 2 * margin) / unit, 120.0);
    double const high = std::max((height + 2 * margin) / unit, 60.0);
    double const spareX = (across * unit - width) / 2;
    double const spareY = (high * unit - height) / 2;
    Scale const up = Scale::Of(bounds.low.y - spareY, bounds.high.y + spareY);
    // The plot stands in the middle between equal margins, and the page is no wider than that
    // needs.
    double const left = LeftOf(up, high);
    double const page = std::clamp(across + 2 * left, leastWidth, pageWidth);
    double const begin =
        std::clamp((page - across) / 2, left, std::max(left, page - across - rightMargin));
    return {
        Scale::Of(bounds.low.x - spareX, bounds.high.x + spareX), up, begin, across, high, page};
}

std::string Text(double x, double y, char const* anchor, std::string const& text,
                 std::string const& more = std::string()) {
    return "<text x=\"" + Number(x) + "\" y=\"" + Number(y) + "\" text-anchor=\"" + anchor + "\"" +
           more + ">" + Escaped(text) + "</text>\n";
}

std::string Segment(double x0, double y0, double x1, double y1, char const* style) {
    return "<path d=\"M" + Number(x0) + " " + Number(y0) + "L" + Number(x1) + " " + Number(y1) +
           "\" class=\"" + style + "\"/>\n";
}

std::string AxesText(Frame const& frame, Picture const& picture) {
    double const right = frame.left + frame.width;
    double const bottom = plotTop + frame.height;
    std::string text;
    for (Scale::Tick const& tick : AcrossTicks(frame.across, frame.width)) {
        double const x = frame.left + tick.place * frame.width;
        text += Segment(x, plotTop, x, bottom, "grid") + Segment(x, bottom, x, bottom + 5, "axis") +
                Text(x, bottom + 20, "middle", tick.text);
    }
    for (Scale::Tick const& tick : UpTicks(frame.up, frame.height)) {
        double const y = plotTop + (1 - tick.place) * frame.height;
        text += Segment(frame.left, y, right, y, "grid") +
                Segment(frame.left - 5, y, frame.left, y, "axis") +
                Text(frame.left - 9, y + 4, "end", tick.text);
    }
    double const middle = plotTop + frame.height / 2;
    double const aside = frame.left - LeftOf(frame.up, frame.height) + 18;
    return text + "<rect x=\"" + Number(frame.left) + "\" y=\"" + Number(plotTop) + "\" width=\"" +
           Number(frame.width) + "\" height=\"" + Number(frame.height) + "\" class=\"axis\"/>\n" +
           Text(frame.left + frame.width / 2, bottom + 42, "middle", picture.across) +
           Text(aside, middle, "middle", picture.up,
                " transform=\"rotate(-90 " + Number(aside) + " " + Number(middle) + ")\"");
}

/// The same line with at most four points for each half unit of the page: where it comes in, how
/// far it goes, and where it leaves.
std::vector<Point> Thinned(std::vector<Point> const& points) {
    std::vector<Point> kept;
    std::size_t begin = 0;
    while (begin < points.size()) {
        double const column = std::floor(points[begin].x * 2);
        std::size_t end = begin;
        std::size_t low = begin;
        std::size_t high = begin;
        for (; end < points.size() && std::floor(points[end].x * 2) == column; ++end) {
            if (points[end].y < points[low].y) low = end;
            if (points[end].y > points[high].y) high = end;
        }
        std::size_t order[] = {begin, std::min(low, high), std::max(low, high), end - 1};
        for (std::size_t i = 0; i < 4; ++i)
            if (i == 0 || order[i] != order[i - 1]) kept.push_back(points[order[i]]);
        begin = end;
    }
    return kept;
}

/// Colour and dashes of a line.
std::string StrokeOf(std::size_t number) {
    std::string const dashes = lineDashes[number / colourCount % dashCount];
    return std::string(" stroke=\"") + lineColours[number % colourCount] + "\"" +
           (dashes.empty() ? "" : " stroke-dasharray=\"" + dashes + "\"");
}

std::string LineText(Frame const& frame, CurveLine const& line, std::size_t number) {
    std::string const colour = lineColours[number % colourCount];
    std::vector<Point> points;
    for (Point const& p : line.points) points.push_back({frame.X(p.x), frame.Y(p.y)});
    points = Thinned(points);
    if (points.size() == 1)
        return "<circle cx=\"" + Number(points[0].x) + "\" cy=\"" + Number(points[0].y) +
               "\" r=\"4\" fill=\"" + colour + "\"/>\n";
    std::string text = "<polyline class=\"line\"" + StrokeOf(number) + " points=\"";
    for (std::size_t i = 0; i < points.size(); ++i)
        text += (i == 0 ? "" : " ") + Number(points[i].x) + "," + Number(points[i].y);
    return text + "\"/>\n";
}

/// Material and holes in one path: where holes run the other way round, the nonzero rule cuts them
/// out, and lets rectangles overlap.
std::string ContoursText(Frame const& frame, std::vector<Contour> const& contours) {
    std::string path;
    for (Contour const& contour : contours) {
        if (contour.radius > 0) {
            Point const c = contour.centre;
            double const rx = frame.X(c.x + contour.radius) - frame.X(c.x);
            double const ry = frame.Y(c.y) - frame.Y(c.y + contour.radius);
            // Upwards is down on the page: what is clockwise there is counterclockwise here.
            std::string const arc =
                "A" + Number(rx) + " " + Number(ry) + " 0 1 " + (contour.hole ? "1 " : "0 ");
            Point const right{c.x + contour.radius, c.y};
            Point const left{c.x - contour.radius, c.y};
            path += "M" + frame.At(right) + arc + frame.At(left) + arc + frame.At(right) + "Z";
            continue;
        }
        for (std::size_t i = 0; i < contour.polygon.size(); ++i)
            path += (i == 0 ? "M" : "L") + frame.At(contour.polygon[i]);
        path += "Z";
    }
    return path.empty() ? path : "<path class=\"section\" d=\"" + path + "\"/>\n";
}

std::string CentroidText(Frame const& frame, Point centroid) {
    double const x = frame.X(centroid.x);
    double const y = frame.Y(centroid.y);
    return Segment(x - 7, y, x + 7, y, "centroid") + Segment(x, y - 7, x, y + 7, "centroid");
}

std::string LegendText(Picture const& picture, double top) {
    std::string text;
    for (std::size_t i = 0; i < picture.lines.size() && i < maxLegend; ++i) {
        double const x = plotLeft + static_cast<double>(i % 3) * 200;
        std::size_t const row = i / 3;
        double const y = top + static_cast<double>(row) * 18;
        bool const rest = i + 1 == maxLegend && picture.lines.size() > maxLegend;
        text += "<path d=\"M" + Number(x) + " " + Number(y - 4) + "h20\" class=\"line\"" +
                StrokeOf(i) + "/>\n" +
                Text(x + 26, y, "start",
                     rest ? "and " + std::to_string(picture.lines.size() - i) + " more"
                          : picture.lines[i].name);
    }
    return text;
}

double NotesLeft(Frame const& frame) { return frame.page < pageWidth ? 20 : plotLeft; }

/// A remark in lines that the page has room for.
std::vector<std::string> InLines(std::string const& remark, double page) {
    std::size_t const room = static_cast<std::size_t>((page - 40) / letterWidth);
    std::vector<std::string> lines(1);
    for (std::size_t at = 0; at < remark.size();) {
        std::size_t const end = std::min(remark.find(' ', at), remark.size());
        if (!lines.back().empty() && lines.back().size() + 1 + (end - at) > room)
            lines.emplace_back();
        lines.back() += (lines.back().empty() ? "" : " ") + remark.substr(at, end - at);
        at = end + 1;
    }
    return lines;
}

/// The title as far as there is room: without the document's step first, which all pictures of a
/// model share.
std::string ShortTitle(std::string const& title, double page) {
    std::size_t const room = static_cast<std::size_t>((page - 40) / titleLetterWidth);
    std::size_t const document = title.find("'].");
    if (Shortened(title, room) == title || document == std::string::npos)
        return Shortened(title, room);
    return Shortened(title.substr(document + 3), room);
}

}  // namespace

std::string SvgText(Picture const& picture) {
    Frame const frame = FrameOf(picture);
    double bottom = plotTop + frame.height + 52;
    std::string legend;
    if (picture.lines.size() > 1) {
        legend = LegendText(picture, bottom + 14);
        std::size_t const rows = (std::min(picture.lines.size(), maxLegend) + 2) / 3;
        bottom += 18 * static_cast<double>(rows);
    }
    std::vector<std::string> remarks;
    if (picture.hasCentroid) remarks.emplace_back("The cross is the centroid.");
    if (!picture.note.empty()) remarks.push_back("note: " + picture.note);
    std::string notes;
    for (std::string const& remark : remarks)
        for (std::string const& line : InLines(remark, frame.page)) {
            notes += Text(NotesLeft(frame), bottom + 16, "start", line);
            bottom += 18;
        }
    std::string const height = Number(bottom + 10);
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
        Number(frame.page) + "\" height=\"" + height + "\" viewBox=\"0 0 " + Number(frame.page) +
        " " + height + "\" font-family=\"sans-serif\" font-size=\"12\" fill=\"#222\">\n<title>" +
        Escaped(picture.title) +
        "</title>\n"
        "<style>.grid{stroke:#ddd;fill:none}.axis{stroke:#444;fill:none}"
        ".line{fill:none;stroke-width:1.6;stroke-linejoin:round}"
        ".section{fill:#c9d8ea;stroke:#0b5394;stroke-width:1.2;fill-rule:nonzero}"
        ".centroid{stroke:#b45309;stroke-width:1.6}</style>\n"
        "<rect width=\"100%\" height=\"100%\" fill=\"#fff\"/>\n";
    text += Text(frame.page / 2, 28, "middle", ShortTitle(picture.title, frame.page),
                 " font-size=\"14\"");
    text += AxesText(frame, picture);
    text += ContoursText(frame, picture.contours);
    for (std::size_t i = 0; i < picture.lines.size(); ++i)
        text += LineText(frame, picture.lines[i], i);
    if (picture.hasCentroid) text += CentroidText(frame, picture.centroid);
    return text + legend + notes + "</svg>\n";
}

}  // namespace nga
