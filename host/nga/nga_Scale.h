#pragma once

#include <string>
#include <vector>

namespace nga {

/// A number for people, with six digits.
std::string NumberText(double value);

/// One axis of a picture: from numbers to places between 0 and 1, and the numbers that stand at it.
/// Any finite numbers will do, those at the ends of what a double can hold included; where all are
/// equal, or differ by no more than rounding, the axis spreads around them.
class Scale {
public:
    struct Tick {
        double place;
        std::string text;
    };

    /// For numbers from \p low to \p high. On a logarithmic scale both must be positive.
    static Scale Of(double low, double high, bool logarithmic = false);
    /// The same, widened to whole steps between about \p wanted ticks, or to whole decades, so that
    /// a tick stands at either end.
    static Scale Rounded(double low, double high, int wanted, bool logarithmic = false);

    double Place(double value) const;
    /// About \p wanted ticks at round numbers within the axis. A rounded scale keeps the steps that
    /// it was rounded to.
    std::vector<Tick> Ticks(int wanted) const;

private:
    Scale(double low, double high, bool logarithmic);

    double Step(int wanted) const;
    std::vector<Tick> Decades(int wanted) const;
    std::vector<Tick> EvenTicks(int wanted) const;

    double m_low;
    double m_high;
    bool m_logarithmic;
    /// What a rounded scale was rounded to: the distance of its ticks, of decades if logarithmic.
    double m_step = 0;
};

}  // namespace nga
