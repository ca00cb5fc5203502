#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "nga_Names.h"
#include "nga_Plot.h"
#include "nga_Svg.h"
#include "xml.h"

// What every picture keeps, however odd its numbers.

inline std::vector<std::string> Lines(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

inline std::size_t Width(std::string_view line) {
    std::size_t width = 0;
    while (!line.empty()) {
        int const length = nga::Utf8Length(line);
        EXPECT_GT(length, 0) << "no UTF-8";
        line.remove_prefix(static_cast<std::size_t>(std::max(length, 1)));
        ++width;
    }
    return width;
}

/// The rows of dots alone, behind the axis.
inline std::vector<std::string> Dots(std::string const& plot) {
    std::vector<std::string> rows;
    for (std::string const& line : Lines(plot))
        for (char const* axis : {"│", "┤"})
            if (std::size_t const at = line.find(axis); at != std::string::npos)
                rows.push_back(line.substr(at + std::string(axis).size()));
    return rows;
}

inline void ExpectWellFormed(nga::Picture const& picture) {
    std::string const plot = nga::PlotText(picture);
    EXPECT_EQ(plot.back(), '\n');
    for (std::string const& line : Lines(plot)) {
        EXPECT_LE(Width(line), 80u) << line;
        EXPECT_TRUE(line.empty() || line.back() != ' ') << line;
    }
    EXPECT_LE(Dots(plot).size(), 16u) << plot;
    std::string dots;
    for (std::string const& row : Dots(plot)) dots += row;
    EXPECT_NE(dots, "") << plot;
    std::string const svg = nga::SvgText(picture);
    EXPECT_EQ(XmlMistake(svg), "") << svg;
    for (char const* odd : {"nan", "inf"}) {
        EXPECT_EQ(plot.find(odd), std::string::npos) << plot;
        EXPECT_EQ(svg.find(odd), std::string::npos) << svg;
    }
}
