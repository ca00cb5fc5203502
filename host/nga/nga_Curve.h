#pragma once

#include <string>
#include <vector>

#include "kamC_Amplitude.h"
#include "nga_Point.h"

namespace nga {

/// A line of a curve; its name tells it from the others, where there are several.
struct CurveLine {
    std::string name;
    std::vector<Point> points;
};

/// An amplitude as it is drawn: points close enough for straight lines between them, all finite.
struct Curve {
    /// Why there is no curve, in words; empty if there is one.
    std::string none;
    std::string across;          ///< what x is
    std::string up;              ///< what y is
    bool logarithmic = false;    ///< x; then every x is positive
    bool logarithmicUp = false;  ///< y; then every y is positive
    /// Whether x counts from the amplitude's start, which is too far from zero for it; the note
    /// says so.
    bool fromStart = false;
    std::vector<CurveLine> lines;
    /// What the amplitude has and the curve does not show; may be empty.
    std::string note;
};

/// The curve of an amplitude over time, or of a power spectral density or response spectrum over
/// frequency. An amplitude that breaks a rule has none, nor has one whose values nobody knows
/// before the analysis.
///
/// With t the time, and s the time `start`:
///
/// - Tabular and equally spaced: straight lines between the points. The first value holds before
///   the first point, and the last one after the last. Smoothing and baseline correction are the
///   solver's and are *not* applied; the note says so.
/// - Smooth step: between the points (t0, a) and (t1, b), with xi = (t - t0) / (t1 - t0),
///   a + (b - a) xi^3 (10 - 15 xi + 6 xi^2). This is the one polynomial of the fifth degree whose
///   slope and curvature are zero at both ends; K. Perlin, Improving Noise, ACM Transactions on
///   Graphics 21 (2002), blends with it for the same reason. Constant before and after.
/// - Periodic: the Fourier series a_0 + sum of A_n cos(n w (t - s)) + B_n sin(n w (t - s)), and a_0
///   before s: Clough and Penzien, Dynamics of Structures, on the response to periodic loading. Two
///   periods are drawn.
/// - Modulated: initial + magnitude sin(w1 (t - s)) sin(w2 (t - s)), and initial before s. By the
///   formula for the product of two sines this is magnitude / 2 times the difference of two
///   cosines, of the frequencies |w1 - w2| and w1 + w2. Two machines of equal strength, whose sum
///   beats (as in the same book), are the product of a sine at the mean of their frequencies and
///   one at half of their difference. Drawn is the slower of a hump of the envelope and an
///   oscillation of the difference, that is, a time of 2 pi / min(2 min(|w1|, |w2|), ||w1| - |w2||)
///   (without the second if it is zero), or the first forty oscillations of w1 + w2; then the note
///   says that this is the beginning.
/// - Decay: initial + maximum exp(-(t - s) / decayTime), and initial before s: the envelope of a
///   damped free vibration, as in the same book. Five decay times are drawn, after which less than
///   a hundredth is left.
///
/// Densities and spectra go over logarithms on both axes where all numbers are positive; a note
/// says where not. Densities in decibels are logarithms already.
///
/// A frequency of zero makes the sines zero and the cosines one; the curve is then constant after
/// its start.
Curve CurveOf(kamC_Amplitude const& amplitude);

}  // namespace nga
