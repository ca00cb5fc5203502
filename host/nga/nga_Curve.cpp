#include "nga_Curve.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>

#include "kamC_Decay.h"
#include "kamC_EquallySpaced.h"
#include "kamC_Modulated.h"
#include "kamC_Periodic.h"
#include "kamC_PsdDefinition.h"
#include "kamC_SmoothStep.h"
#include "kamC_SolutionDependent.h"
#include "kamC_Spectrum.h"
#include "kamC_Tabular.h"
#include "kamC_UserAmplitude.h"
#include "nga_Check.h"
#include "nga_JsonWriter.h"
#include "nga_Scale.h"

namespace nga {

namespace {

constexpr double maxNumber = std::numeric_limits<double>::max();
constexpr double twoPi = 6.283185307179586476925;
/// More terms than anybody draws; what they cost grows with their square.
constexpr int maxTerms = 2000;
/// Straight lines in which a full oscillation looks round.
constexpr int pointsOfAnOscillation = 24;

std::string const frequencyText = "frequency";

Curve NoCurve(std::string const& why) {
    Curve curve;
    curve.none = why;
    return curve;
}

bool IsFinite(std::vector<Point> const& points) {
    return std::all_of(points.begin(), points.end(),
                       [](Point const& p) { return std::isfinite(p.x) && std::isfinite(p.y); });
}

Curve OverTime(std::vector<Point> points) {
    Curve curve;
    curve.lines.push_back({std::string(), std::move(points)});
    return curve;
}

/// Time and value from the first two columns.
std::vector<Point> Rows(cow_2DArray<double> const& data) {
    std::vector<Point> points;
    if (data.Columns() < 2) return points;
    for (int row = 0; row < data.Rows(); ++row)
        points.push_back({data.Cell(row, 0), data.Cell(row, 1)});
    return points;
}

/// How long before \p start to begin, so that what holds there is seen: no time before zero, unless
/// the start is one.
double LeadBefore(double start, double lead) {
    return start < 0 ? lead : std::min(lead, std::max(start, 0.0));
}

/// Whether so short a time, so long after time zero, leaves no digits for an axis.
bool IsFar(double start, double length) {
    return std::isfinite(start) && length < 1e-6 * std::fabs(start);
}

void AddNote(Curve& curve, std::string const& text) {
    curve.note += (curve.note.empty() ? "" : "; ") + text;
}

void CountFrom(Curve& curve, double start) {
    curve.fromStart = true;
    AddNote(curve, "time counts from " + JsonWriter::DoubleText(start));
}

/// The curve of points whose time counts from \p start.
Curve FromStart(std::vector<Point> points, double start) {
    bool const far = IsFar(start, points.back().x - points.front().x);
    if (!far)
        for (Point& p : points) p.x += start;
    Curve curve = OverTime(std::move(points));
    if (far) CountFrom(curve, start);
    return curve;
}

/// Adds what holds before the first and after the last point: a little of it, and nothing at a
/// negative time that the points do not reach themselves. Their times count from \p zero.
std::vector<Point> WithEnds(std::vector<Point> points, double zero = 0) {
    Point const first = points.front();
    Point const last = points.back();
    double lead = 0.05 * (last.x - first.x);
    if (!(lead > 0)) lead = first.x != 0 ? 0.1 * std::fabs(first.x) : 1.0;
    // At the end of the numbers there is no room for it.
    double const from = std::max(first.x - LeadBefore(first.x + zero, lead), -maxNumber);
    if (from < first.x) points.insert(points.begin(), {from, first.y});
    points.push_back({std::min(last.x + lead, maxNumber), last.y});
    return points;
}

/// The line through points whose times count from \p zero, and on at both ends.
Curve Through(std::vector<Point> points, double zero = 0) {
    double const length = points.back().x - points.front().x;
    if (zero == 0 && length > 0 && IsFar(points.front().x, length)) {
        zero = points.front().x;
        for (Point& p : points) p.x -= zero;
    }
    Curve curve = OverTime(WithEnds(std::move(points), zero));
    if (zero != 0) CountFrom(curve, zero);
    return curve;
}

template <class Recorded>
Curve OfRecord(Recorded const& amplitude, std::vector<Point> points, double zero = 0) {
    if (points.empty()) return NoCurve("the table has no two columns");
    if (!IsFinite(points)) return NoCurve("a point of it is not finite");
    Curve curve = Through(std::move(points), zero);
    if (amplitude.smooth == maxNumber)
        AddNote(curve, "without the smoothing that the solver may apply");
    else if (amplitude.smooth != 0)
        AddNote(curve, "without its smoothing");
    if (amplitude.baselineCorrection.GetPtr()) AddNote(curve, "without its baseline correction");
    return curve;
}

Curve Of(kamC_Tabular const& amplitude) { return OfRecord(amplitude, Rows(amplitude.data)); }

Curve Of(kamC_EquallySpaced const& amplitude) {
    std::vector<Point> points;
    int const size = amplitude.data.Size();
    points.reserve(static_cast<std::size_t>(size));
    double const interval = amplitude.fixedInterval;
    // Before anything is added to the begin, which would round the intervals away.
    bool const far = size > 1 && IsFar(amplitude.begin, (size - 1) * interval);
    for (int i = 0; i < size; ++i)
        points.push_back(
            {(far ? 0.0 : amplitude.begin) + i * interval, amplitude.data.ConstGet(i)});
    return OfRecord(amplitude, std::move(points), far ? amplitude.begin : 0);
}

Curve Of(kamC_SmoothStep const& amplitude) {
    std::vector<Point> const rows = Rows(amplitude.data);
    if (rows.empty()) return NoCurve("the table has no two columns");
    if (!IsFinite(rows)) return NoCurve("a point of it is not finite");
    int const pieces = std::clamp(static_cast<int>(20000 / rows.size()), 4, 40);
    std::vector<Point> points = {rows.front()};
    for (std::size_t i = 1; i < rows.size(); ++i) {
        Point const a = rows[i - 1];
        Point const b = rows[i];
        for (int k = 1; k < pieces; ++k) {
            double const xi = static_cast<double>(k) / pieces;
            double const part = xi * xi * xi * (10 - 15 * xi + 6 * xi * xi);
            points.push_back({a.x + (b.x - a.x) * xi, a.y + (b.y - a.y) * part});
        }
        points.push_back(b);
    }
    return Through(std::move(points));
}

/// One period of a Fourier series, its last point the first of the next.
std::vector<Point> Period(kamC_Periodic const& amplitude, int terms) {
    double const length = twoPi / std::fabs(amplitude.frequency);
    int const count = std::max(200, terms * pointsOfAnOscillation / 2);
    double const turn = amplitude.frequency < 0 ? -twoPi : twoPi;
    std::vector<Point> points;
    for (int k = 0; k <= count; ++k) {
        double const part = static_cast<double>(k) / count;
        std::complex<double> const step = std::polar(1.0, turn * part);
        std::complex<double> power = step;
        double value = amplitude.a_0;
        for (int n = 0; n < terms; ++n) {
            value +=
                amplitude.data.Cell(n, 0) * power.real() + amplitude.data.Cell(n, 1) * power.imag();
            power *= step;
        }
        points.push_back({part * length, value});
    }
    return points;
}

Curve Of(kamC_Periodic const& amplitude) {
    cow_2DArray<double> const& data = amplitude.data;
    if (data.Columns() < 2) return NoCurve("the table has no two columns");
    int terms = data.Rows();
    while (terms > 0 && data.Cell(terms - 1, 0) == 0 && data.Cell(terms - 1, 1) == 0) --terms;
    if (!std::isfinite(amplitude.frequency)) return NoCurve("its frequency is not finite");
    if (terms > maxTerms)
        return NoCurve("the series has more than " + std::to_string(maxTerms) + " terms");
    double const start = amplitude.start;
    if (amplitude.frequency == 0) {
        double after = amplitude.a_0;
        for (int n = 0; n < terms; ++n) after += data.Cell(n, 0);
        std::vector<Point> points = {{start, amplitude.a_0}, {start, after}};
        Curve curve = OverTime(WithEnds(std::move(points)));
        AddNote(curve, "constant after its start, since the frequency is zero");
        return curve;
    }
    std::vector<Point> const period = Period(amplitude, terms);
    double const length = period.back().x;
    std::vector<Point> points;
    points.push_back({-LeadBefore(start, 0.1 * length), amplitude.a_0});
    points.push_back({0, amplitude.a_0});
    points.insert(points.end(), period.begin(), period.end());
    for (Point const& p : period) points.push_back({length + p.x, p.y});
    return FromStart(std::move(points), start);
}

Curve Of(kamC_Modulated const& amplitude) {
    double const w1 = std::fabs(amplitude.frequency1);
    double const w2 = std::fabs(amplitude.frequency2);
    double const start = amplitude.start;
    if (!std::isfinite(w1 + w2)) return NoCurve("a frequency is not finite");
    if (w1 == 0 || w2 == 0 || amplitude.magnitude == 0) {
        std::vector<Point> points = {{start, amplitude.initial}, {start, amplitude.initial}};
        Curve curve = OverTime(WithEnds(std::move(points)));
        AddNote(curve, "constant, since a frequency or the magnitude is zero");
        return curve;
    }
    // What is slow is either the envelope, which has a hump for each half oscillation of the slower
    // sine, or the difference of two frequencies that are nearly equal.
    double const envelope = 2 * std::min(w1, w2);
    double const difference = std::fabs(w1 - w2);
    double const slow = difference > 0 ? std::min(envelope, difference) : envelope;
    double const whole = (w1 + w2) / slow;
    double const oscillations = std::clamp(whole, 3.0, 40.0);
    int const count = static_cast<int>(std::ceil(oscillations * pointsOfAnOscillation));
    double const length = twoPi / (w1 + w2) * oscillations;
    std::vector<Point> points;
    points.push_back({-LeadBefore(start, 0.05 * length), amplitude.initial});
    for (int k = 0; k <= count; ++k) {
        double const t = length * k / count;
        points.push_back(
            {t, amplitude.initial + amplitude.magnitude * std::sin(amplitude.frequency1 * t) *
                                        std::sin(amplitude.frequency2 * t)});
    }
    Curve curve = FromStart(std::move(points), start);
    if (whole > oscillations) AddNote(curve, "the beginning of a beat");
    return curve;
}

Curve Of(kamC_Decay const& amplitude) {
    double const decay = amplitude.decayTime;
    if (!(decay > 0)) return NoCurve("the decay time is not positive");
    std::vector<Point> points;
    double const start = amplitude.start;
    points.push_back({-LeadBefore(start, 0.5 * decay), amplitude.initial});
    points.push_back({0, amplitude.initial});
    constexpr int count = 200;
    for (int k = 0; k <= count; ++k) {
        double const t = 5.0 * k / count;
        points.push_back({t * decay, amplitude.initial + amplitude.maximum * std::exp(-t)});
    }
    return FromStart(std::move(points), start);
}

/// Logarithmic axes, as these are drawn by custom, as far as the numbers have logarithms. Decibels
/// are logarithms themselves.
void OverFrequency(Curve& curve, bool decibels = false) {
    curve.across = frequencyText;
    bool positive = true;
    curve.logarithmic = true;
    for (CurveLine const& line : curve.lines)
        for (Point const& p : line.points) {
            if (!(p.x > 0)) curve.logarithmic = false;
            if (!(p.y > 0)) positive = false;
        }
    curve.logarithmicUp = curve.logarithmic && positive && !decibels;
    if (!curve.logarithmic)
        AddNote(curve, "on plain axes, since a frequency is not positive");
    else if (!positive && !decibels)
        AddNote(curve, "on a plain axis upwards, since a value is not positive");
}

Curve Of(kamC_PsdDefinition const& amplitude) {
    cow_2DArray<double> const& table = amplitude.table;
    if (table.Rows() == 0 || table.Columns() < 3)
        return NoCurve(amplitude.user ? "a subroutine of the user gives it" : "the table is empty");
    Curve curve;
    curve.lines.resize(2);
    curve.lines[0].name = "real part";
    curve.lines[1].name = "imaginary part";
    bool real = true;
    for (int row = 0; row < table.Rows(); ++row) {
        for (int part = 0; part < 2; ++part)
            curve.lines[static_cast<std::size_t>(part)].points.push_back(
                {table.Cell(row, 2), table.Cell(row, part)});
        if (table.Cell(row, 1) != 0) real = false;
    }
    if (real) {
        curve.lines.pop_back();
        curve.lines[0].name.clear();
    }
    bool const decibels = amplitude.type == kamC_PsdDefinition::PsdTypeEnm::DB;
    curve.up = decibels ? "density in dB" : "density";
    OverFrequency(curve, decibels);
    return curve;
}

Curve Of(kamC_Spectrum const& amplitude) {
    cow_2DArray<double> const& table = amplitude.table;
    if (table.Rows() == 0) return NoCurve("the table is empty");
    Curve curve;
    std::vector<double> ratios;
    for (int row = 0; row < table.Rows(); ++row) {
        double const ratio = table.Cell(row, 2);
        if (!std::isfinite(ratio)) return NoCurve("a damping ratio is not finite");
        std::size_t line = 0;
        while (line < ratios.size() && ratios[line] != ratio) ++line;
        if (line == ratios.size()) {
            if (line == 100) return NoCurve("it has lines for more than 100 damping ratios");
            ratios.push_back(ratio);
            curve.lines.push_back({"damping ratio " + NumberText(ratio), {}});
        }
        curve.lines[line].points.push_back({table.Cell(row, 1), table.Cell(row, 0)});
    }
    using Type = kamC_Spectrum::SpectrumTypeEnm;
    curve.up = amplitude.type == Type::DISPLACEMENT ? "displacement"
               : amplitude.type == Type::VELOCITY   ? "velocity"
                                                    : "acceleration";
    OverFrequency(curve);
    return curve;
}

Curve Dispatch(kamC_Amplitude const& amplitude) {
    if (auto const* one = dynamic_cast<kamC_Tabular const*>(&amplitude)) return Of(*one);
    if (auto const* one = dynamic_cast<kamC_EquallySpaced const*>(&amplitude)) return Of(*one);
    if (auto const* one = dynamic_cast<kamC_SmoothStep const*>(&amplitude)) return Of(*one);
    if (auto const* one = dynamic_cast<kamC_Periodic const*>(&amplitude)) return Of(*one);
    if (auto const* one = dynamic_cast<kamC_Modulated const*>(&amplitude)) return Of(*one);
    if (auto const* one = dynamic_cast<kamC_Decay const*>(&amplitude)) return Of(*one);
    if (auto const* one = dynamic_cast<kamC_PsdDefinition const*>(&amplitude)) return Of(*one);
    if (auto const* one = dynamic_cast<kamC_Spectrum const*>(&amplitude)) return Of(*one);
    if (dynamic_cast<kamC_SolutionDependent const*>(&amplitude))
        return NoCurve("the solver finds its values as it goes");
    if (dynamic_cast<kamC_UserAmplitude const*>(&amplitude))
        return NoCurve("a subroutine of the user gives its values");
    return NoCurve("its values come from outside the model during the analysis");
}

}  // namespace

Curve CurveOf(kamC_Amplitude const& amplitude) {
    mdl_Description const* description = mdl_Description::Find(amplitude.DynTypeId());
    if (!description) return NoCurve("its class is not known");
    std::string const broken = BrokenRule(*description, &amplitude);
    if (!broken.empty()) return NoCurve("it breaks a rule: " + broken);
    Curve curve = Dispatch(amplitude);
    if (!curve.none.empty()) return curve;
    for (CurveLine const& line : curve.lines)
        if (!IsFinite(line.points)) return NoCurve("a point of it is not finite");
    if (curve.up.empty()) curve.up = "amplitude";
    bool const total = amplitude.timeSpan == kamC_Amplitude::TimeSpanEnm::TOTAL;
    std::string const time = total ? "total time" : "step time";
    if (curve.across.empty()) curve.across = time;
    if (curve.fromStart) curve.across = time + " from the start";
    return curve;
}

}  // namespace nga
