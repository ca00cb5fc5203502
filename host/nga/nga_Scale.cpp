#include "nga_Scale.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>

namespace nga {

namespace {

/// Where less than this part of the numbers themselves lies between them, it is rounding.
constexpr double relativeRest = 1e-10;

std::string TickText(double value, int decimals, bool scientific) {
    char text[64];
    std::snprintf(text, sizeof text, scientific ? "%.*e" : "%.*f", decimals, value);
    return text;
}

/// The step of a logarithmic scale that has room for three ticks a decade.
constexpr double oneTwoFive = 1 / 3.0;

int DecadeOf(double value) { return static_cast<int>(std::floor(std::log10(value))); }

/// The last of 1, 2, 5, 10, 20, ... that is not above a positive number.
double RoundDown(double value) {
    double const decade = std::pow(10.0, DecadeOf(value * (1 + 1e-9)));
    for (double const factor : {5.0, 2.0})
        if (factor * decade <= value * (1 + 1e-9)) return std::min(factor * decade, value);
    return std::min(decade, value);
}

/// The first that is not below it, or the number itself where no number is so great.
double RoundUp(double value) {
    double const decade = std::pow(10.0, DecadeOf(value * (1 - 1e-9)));
    for (double const factor : {1.0, 2.0, 5.0, 10.0})
        if (factor * decade >= value * (1 - 1e-9) && std::isfinite(factor * decade))
            return std::max(factor * decade, value);
    return value;
}

}  // namespace

std::string NumberText(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

Scale::Scale(double low, double high, bool logarithmic)
    : m_low(low), m_high(high), m_logarithmic(logarithmic) {}

Scale Scale::Of(double low, double high, bool logarithmic) {
    if (logarithmic) {
        if (!(high > low * (1 + relativeRest))) {
            low = std::max(low / 10, DBL_MIN);
            high = std::min(high, DBL_MAX / 10) * 10;
        }
        return Scale(std::max(low, DBL_MIN), std::max(high, 2 * DBL_MIN), true);
    }
    double const size = std::max(std::fabs(low), std::fabs(high));
    // Below the normal numbers there are no digits for ticks.
    if (size < 1e-290) return Scale(-1, 1, false);
    if (!(high / 2 - low / 2 > relativeRest * size)) {
        double const middle = low / 2 + high / 2;
        double const around = std::fabs(middle) / 2;
        return Scale(std::max(middle - around, -DBL_MAX), std::min(middle + around, DBL_MAX),
                     false);
    }
    return Scale(low, high, false);
}

Scale Scale::Rounded(double low, double high, int wanted, bool logarithmic) {
    // What differs less is one number to the rounding below.
    if (logarithmic && !(high > low * (1 + 1e-8))) high = low;
    Scale scale = Of(low, high, logarithmic);
    if (logarithmic) {
        double first = std::floor(std::log10(scale.m_low) + 1e-9);
        double last = std::ceil(std::log10(scale.m_high) - 1e-9);
        if (last - first <= 2) {
            scale.m_step = oneTwoFive;
            scale.m_low = std::max(RoundDown(scale.m_low), DBL_MIN);
            scale.m_high = RoundUp(scale.m_high);
            return scale;
        }
        // A few more ticks than wanted serve better than half an axis of nothing.
        double const every = std::ceil((last - first) / (std::max(wanted, 1) + 2));
        first = std::floor(first / every) * every;
        last = std::ceil(last / every) * every;
        // At the end of the numbers there is no room for a whole step.
        scale.m_low = std::min(std::max(std::pow(10.0, first), DBL_MIN), scale.m_low);
        double const above = std::pow(10.0, last);
        if (std::isfinite(above)) scale.m_high = std::max(above, scale.m_high);
        scale.m_step = every;
        return scale;
    }
    double const step = scale.Step(wanted);
    double const below = std::floor(scale.m_low / step + 1e-6) * step;
    double const above = std::ceil(scale.m_high / step - 1e-6) * step;
    if (std::isfinite(below)) scale.m_low = std::min(below, scale.m_low);
    if (std::isfinite(above)) scale.m_high = std::max(above, scale.m_high);
    scale.m_step = step;
    return scale;
}

double Scale::Place(double value) const {
    if (m_logarithmic)
        return std::clamp((std::log10(std::max(value, DBL_MIN)) - std::log10(m_low)) /
                              (std::log10(m_high) - std::log10(m_low)),
                          0.0, 1.0);
    // Halves: the difference of the ends may be too great for a number.
    return std::clamp((value / 2 - m_low / 2) / (m_high / 2 - m_low / 2), 0.0, 1.0);
}

double Scale::Step(int wanted) const {
    if (m_step > 0) return m_step;
    double const rough = (m_high / 2 - m_low / 2) / std::max(wanted, 1) * 2;
    double const decade = std::pow(10.0, DecadeOf(rough));
    for (double const factor : {1.0, 2.0, 5.0})
        if (factor * decade >= rough * (1 - 1e-12)) return factor * decade;
    return 10 * decade;
}

std::vector<Scale::Tick> Scale::Decades(int wanted) const {
    // A power of ten at an end may have lost its last bit.
    int const first = DecadeOf(std::min(m_low, DBL_MAX / 2) * (1 + 1e-9));
    int const last = DecadeOf(std::min(m_high, DBL_MAX / 2) * (1 + 1e-9));
    int const every = m_step > 0 ? std::max(1, static_cast<int>(m_step))
                                 : std::max(1, (last - first + wanted) / wanted);
    std::vector<Tick> ticks;
    for (int decade = first; decade <= last; ++decade) {
        if (every > 1 && (decade % every + every) % every != 0) continue;
        for (int const factor : {1, 2, 5}) {
            bool const crowded = m_step > 0 ? m_step >= 1 : (last - first) * 3 > wanted;
            if (factor > 1 && crowded) break;
            double const value = factor * std::pow(10.0, decade);
            if (value < m_low * (1 - 1e-9) || value > m_high * (1 + 1e-9)) continue;
            bool const plain = std::abs(decade) <= 4;
            ticks.push_back(
                {Place(value), TickText(value, plain ? std::max(-decade, 0) : 0, !plain)});
        }
    }
    return ticks;
}

std::vector<Scale::Tick> Scale::Ticks(int wanted) const {
    if (m_logarithmic && m_step > 0) return Decades(wanted);
    if (m_logarithmic && std::log10(m_high) - std::log10(m_low) >= 0.99) return Decades(wanted);
    // One number at an axis says nothing about its scale.
    for (int tried = wanted;; ++tried) {
        std::vector<Tick> ticks = EvenTicks(tried);
        if (ticks.size() >= 2 || tried >= wanted + 5) return ticks;
    }
}

std::vector<Scale::Tick> Scale::EvenTicks(int wanted) const {
    double const step = Step(wanted);
    double const size = std::max(std::fabs(m_low), std::fabs(m_high));
    bool const scientific = size >= 1e6 || size < 1e-3;
    int const finest = DecadeOf(step * (1 + 1e-12));
    int const decimals = scientific ? std::max(DecadeOf(size) - finest, 0) : std::max(-finest, 0);
    double const first = std::ceil(m_low / step - 1e-6);
    double const last = std::floor(m_high / step + 1e-6);
    std::vector<Tick> ticks;
    for (double k = first; k <= last && ticks.size() < 100; ++k) {
        double const value = k * step;
        if (!std::isfinite(value)) continue;
        ticks.push_back({Place(value), k == 0 ? "0" : TickText(value, decimals, scientific)});
    }
    return ticks;
}

}  // namespace nga
