#include "nga_Plot.h"

#include <algorithm>
#include <cmath>

#include "nga_Scale.h"

namespace nga {

namespace {

constexpr int lineWidth = 80;
constexpr int plotColumns = 60;
constexpr std::size_t maxNames = 12;
constexpr int plotRows = 16;

/// Dots in characters: two across and four down in each.
class Dots {
public:
    Dots(int columns, int rows)
        : m_columns(columns),
          m_rows(rows),
          m_bits(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows)) {}

    int Across() const { return m_columns * 2; }
    int Down() const { return m_rows * 4; }

    void Set(int x, int y, bool on = true) {
        if (x < 0 || y < 0 || x >= Across() || y >= Down()) return;
        static constexpr unsigned char bits[4][2] = {
            {0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}};
        unsigned char& cell = m_bits[Index(x / 2, y / 4)];
        unsigned char const bit = bits[y % 4][x % 2];
        cell = static_cast<unsigned char>(on ? cell | bit : cell & ~bit);
    }
    void Line(int x0, int y0, int x1, int y1) {
        int const steps = std::max({std::abs(x1 - x0), std::abs(y1 - y0), 1});
        for (int i = 0; i <= steps; ++i) {
            double const part = static_cast<double>(i) / steps;
            Set(static_cast<int>(std::lround(x0 + part * (x1 - x0))),
                static_cast<int>(std::lround(y0 + part * (y1 - y0))));
        }
    }
    /// Without the blanks at its end, unless \p whole.
    std::string Row(int row, bool whole = false) const {
        std::string text;
        std::size_t used = 0;
        for (int column = 0; column < m_columns; ++column) {
            unsigned const bits = m_bits[Index(column, row)];
            if (bits == 0) {
                text += ' ';
                continue;
            }
            // U+2800 and the bits, in UTF-8.
            text += '\xe2';
            text += static_cast<char>(0xa0 + (bits >> 6));
            text += static_cast<char>(0x80 + (bits & 0x3f));
            used = text.size();
        }
        if (!whole) text.resize(used);
        return text;
    }

private:
    std::size_t Index(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
               static_cast<std::size_t>(column);
    }

    int m_columns;
    int m_rows;
    std::vector<unsigned char> m_bits;
};

struct Axes {
    Scale across;
    Scale up;
    Dots dots;

    double X(double value) const { return across.Place(value) * (dots.Across() - 1); }
    double Y(double value) const { return (1 - up.Place(value)) * (dots.Down() - 1); }
};

/// Axes of one unit on as many dots as the narrower way has room for. Dots are as far apart across
/// as down, since characters are about twice as high as wide.
Axes SameScaleAxes(PictureBounds const& bounds, int columns) {
    double const width = bounds.high.x - bounds.low.x;
    double const height = bounds.high.y - bounds.low.y;
    double const unit = std::max(width / (columns * 2 - 1), height / (plotRows * 4 - 1));
    auto const cells = [&](double length, int dots) {
        return std::max(1, (static_cast<int>(std::ceil(length / unit * (1 - 1e-9))) + dots) / dots);
    };
    Dots dots(std::min(cells(width, 2), columns), std::min(cells(height, 4), plotRows));
    auto const fitted = [&](double low, double high, int count) {
        double const spare = ((count - 1) * unit - (high - low)) / 2;
        return Scale::Of(low - std::max(spare, 0.0), high + std::max(spare, 0.0));
    };
    Scale const across = fitted(bounds.low.x, bounds.high.x, dots.Across());
    Scale const up = fitted(bounds.low.y, bounds.high.y, dots.Down());
    return {across, up, std::move(dots)};
}

Axes AxesOf(Picture const& picture, int columns) {
    PictureBounds const bounds = BoundsOf(picture);
    if (picture.sameScale) return SameScaleAxes(bounds, columns);
    return {Scale::Of(bounds.low.x, bounds.high.x, picture.logarithmic),
            Scale::Rounded(bounds.low.y, bounds.high.y, 4, picture.logarithmicUp),
            Dots(columns, plotRows)};
}

/// A contour as a polygon of dots.
std::vector<Point> InDots(Axes const& axes, Contour const& contour) {
    std::vector<Point> points;
    for (Point const& p : contour.polygon) points.push_back({axes.X(p.x), axes.Y(p.y)});
    if (contour.radius > 0) {
        constexpr int corners = 180;
        for (int i = 0; i < corners; ++i) {
            double const angle = 2 * 3.14159265358979323846 * i / corners;
            points.push_back({axes.X(contour.centre.x + contour.radius * std::cos(angle)),
                              axes.Y(contour.centre.y + contour.radius * std::sin(angle))});
        }
    }
    return points;
}

/// Sets or clears the dots within a polygon, row by row: those between each odd crossing of the row
/// with an edge and the next one.
void Fill(Dots& dots, std::vector<Point> const& polygon, bool on) {
    auto const [low, high] = std::minmax_element(
        polygon.begin(), polygon.end(), [](Point const& a, Point const& b) { return a.y < b.y; });
    int const first = static_cast<int>(std::ceil(low->y));
    int const last = static_cast<int>(std::floor(high->y));
    for (int y = first; y <= last; ++y) {
        std::vector<double> crossings;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            Point const& a = polygon[i];
            Point const& b = polygon[(i + 1) % polygon.size()];
            if ((a.y <= y) == (b.y <= y)) continue;
            crossings.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
            for (int x = static_cast<int>(std::ceil(crossings[i]));
                 x <= static_cast<int>(std::floor(crossings[i + 1])); ++x)
                dots.Set(x, y, on);
    }
}

void DrawLine(Dots& dots, std::vector<Point> const& points, bool closed) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        Point const& from = points[i];
        if (i + 1 == points.size() && !closed && i > 0) break;
        Point const& to = points[(i + 1) % points.size()];
        dots.Line(static_cast<int>(std::lround(from.x)), static_cast<int>(std::lround(from.y)),
                  static_cast<int>(std::lround(to.x)), static_cast<int>(std::lround(to.y)));
    }
}

void Draw(Axes& axes, Picture const& picture) {
    // Material, then holes, then outlines, so that a wall thinner than a dot is still there.
    for (bool const hole : {false, true})
        for (Contour const& contour : picture.contours)
            if (contour.hole == hole) Fill(axes.dots, InDots(axes, contour), !hole);
    for (Contour const& contour : picture.contours)
        DrawLine(axes.dots, InDots(axes, contour), true);
    for (CurveLine const& line : picture.lines) {
        std::vector<Point> points;
        for (Point const& p : line.points) points.push_back({axes.X(p.x), axes.Y(p.y)});
        DrawLine(axes.dots, points, false);
    }
}

/// The texts below the axis, each under its tick, as far as there is room.
std::string TicksBelow(std::vector<Scale::Tick> const& ticks, int columns, std::size_t margin) {
    std::string text;
    for (Scale::Tick const& tick : ticks) {
        int const middle = static_cast<int>(margin) +
                           static_cast<int>(std::lround(tick.place * (columns * 2 - 1))) / 2;
        int const size = static_cast<int>(tick.text.size());
        int const begin =
            std::max(0, std::min(middle - size / 2, static_cast<int>(margin) + columns - size));
        if (!text.empty() && static_cast<std::size_t>(begin) < text.size() + 2) continue;
        text.append(static_cast<std::size_t>(begin) - text.size(), ' ');
        text += tick.text;
    }
    return text;
}

/// A text behind a heading, in lines that are set in below it.
std::string Wrapped(std::string const& heading, std::string const& text) {
    std::string wrapped = heading;
    std::size_t column = heading.size();
    for (std::size_t at = 0; at < text.size();) {
        std::size_t const end = std::min(text.find(' ', at), text.size());
        if (column + (end - at) > lineWidth && column > heading.size()) {
            wrapped.back() = '\n';
            wrapped += std::string(heading.size(), ' ');
            column = heading.size();
        }
        wrapped += text.substr(at, end - at) + " ";
        column += end - at + 1;
        at = end + 1;
    }
    wrapped.back() = '\n';
    return wrapped;
}

/// What stands at a line's end, and before its name below.
char LetterOf(std::size_t line) { return static_cast<char>('a' + line); }

std::string NamesOf(std::vector<CurveLine> const& lines) {
    std::string names;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i == maxNames) return names + " and " + std::to_string(lines.size() - i) + " more";
        names += (i == 0 ? "" : ", ") + std::string(1, LetterOf(i)) + " " + lines[i].name;
    }
    return names;
}

/// The letters of the lines that end in each row.
std::vector<std::string> EndsOf(Axes const& axes, std::vector<CurveLine> const& lines) {
    std::vector<std::string> ends(static_cast<std::size_t>(axes.dots.Down() / 4));
    if (lines.size() < 2) return ends;
    for (std::size_t i = 0; i < lines.size() && i < maxNames; ++i) {
        if (lines[i].points.empty()) continue;
        long const dot = std::lround(axes.Y(lines[i].points.back().y));
        ends[static_cast<std::size_t>(dot / 4)] += LetterOf(i);
    }
    return ends;
}

/// The texts left of the axis, row by row.
struct Labels {
    std::vector<std::string> rows;
    std::size_t width = 0;
};

Labels LabelsOf(Axes const& axes) {
    int const rows = axes.dots.Down() / 4;
    Labels labels;
    labels.rows.resize(static_cast<std::size_t>(rows));
    for (Scale::Tick const& tick : axes.up.Ticks(std::max(1, std::min(4, rows / 2)))) {
        int const row =
            static_cast<int>(std::lround((1 - tick.place) * (axes.dots.Down() - 1))) / 4;
        labels.rows[static_cast<std::size_t>(row)] = tick.text;
        labels.width = std::max(labels.width, tick.text.size());
    }
    return labels;
}

}  // namespace

std::string PlotText(Picture const& picture) {
    Axes axes = AxesOf(picture, plotColumns);
    Labels labels = LabelsOf(axes);
    // Great numbers that hardly differ need many digits.
    int const letters = static_cast<int>(std::min(picture.lines.size(), maxNames));
    int const beside = picture.lines.size() > 1 ? letters + 1 : 0;
    if (int const room = lineWidth - 4 - beside - static_cast<int>(labels.width);
        room < plotColumns) {
        axes = AxesOf(picture, room);
        labels = LabelsOf(axes);
    }
    Draw(axes, picture);
    int const columns = axes.dots.Across() / 2;
    std::size_t const width = labels.width;
    std::string text = "  " + picture.up + "\n";
    std::vector<std::string> const ends = EndsOf(axes, picture.lines);
    for (int row = 0; row < axes.dots.Down() / 4; ++row) {
        std::string const& label = labels.rows[static_cast<std::size_t>(row)];
        std::string const& end = ends[static_cast<std::size_t>(row)];
        text += "  " + std::string(width - label.size(), ' ') + label +
                (label.empty() ? " │" : " ┤") + axes.dots.Row(row, !end.empty()) +
                (end.empty() ? "" : " " + end) + "\n";
    }
    std::vector<Scale::Tick> const across = axes.across.Ticks(std::max(1, columns / 10));
    std::vector<bool> marked(static_cast<std::size_t>(columns));
    for (Scale::Tick const& tick : across)
        marked[static_cast<std::size_t>(std::lround(tick.place * (axes.dots.Across() - 1)) / 2)] =
            true;
    std::size_t const margin = 2 + width + 2;
    text += std::string(margin - 1, ' ') + "└";
    for (bool const mark : marked) text += mark ? "┬" : "─";
    text += "\n" + TicksBelow(across, columns, margin) + "\n";
    std::size_t const room = static_cast<std::size_t>(columns);
    std::size_t const indent =
        room > picture.across.size() ? (room - picture.across.size()) / 2 : 0;
    text += std::string(margin + indent, ' ') + picture.across + "\n";
    if (picture.lines.size() > 1) text += Wrapped("  lines: ", NamesOf(picture.lines));
    if (!picture.note.empty()) text += Wrapped("  note: ", picture.note);
    return text;
}

}  // namespace nga
