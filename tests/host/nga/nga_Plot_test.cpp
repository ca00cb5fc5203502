#include "nga_Plot.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <set>
#include <sstream>

#include "nga_Svg.h"
#include "pictures.h"

// A picture of each kind, on a terminal and as SVG.

namespace {

using nga::Contour;
using nga::Picture;
using nga::PlotText;
using nga::Point;
using nga::SvgText;

Picture Curve(std::vector<Point> points) {
    Picture picture;
    picture.title = "documents['d'].amplitudes['a']";
    picture.across = "step time";
    picture.up = "amplitude";
    picture.lines.push_back({std::string(), std::move(points)});
    return picture;
}

Contour Rectangle(double left, double lower, double right, double upper, bool hole = false) {
    Contour contour;
    contour.hole = hole;
    contour.polygon = {{left, lower}, {right, lower}, {right, upper}, {left, upper}};
    if (hole) std::swap(contour.polygon[1], contour.polygon[3]);
    return contour;
}

Contour Circle(double radius, bool hole = false) {
    Contour contour;
    contour.hole = hole;
    contour.radius = radius;
    return contour;
}

Picture Section(std::vector<Contour> contours) {
    Picture picture;
    picture.title = "documents['d'].profiles['p']";
    picture.across = "axis 1";
    picture.up = "axis 2";
    picture.sameScale = true;
    picture.contours = std::move(contours);
    return picture;
}

int Count(std::string const& text, std::string const& word) {
    int count = 0;
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
        ++count;
    return count;
}

}  // namespace

TEST(APlot, OfALineRunsFromCornerToCorner) {
    std::string const plot = PlotText(Curve({{0, 0}, {4, 1}}));
    std::vector<std::string> const lines = Lines(plot);
    EXPECT_EQ(lines[0], "  amplitude");
    EXPECT_EQ(lines[1].rfind("  1.0 ┤", 0), 0u) << plot;
    std::vector<std::string> const dots = Dots(plot);
    ASSERT_EQ(dots.size(), 16u);
    EXPECT_EQ(dots[0], std::string(56, ' ') + "⢀⡠⠔⠊") << plot;
    EXPECT_EQ(dots[15], "⡠⠔⠊⠁") << plot;
    EXPECT_EQ(lines[17].substr(0, 7), "      \xe2");
    EXPECT_EQ(lines[18], "       0              1              2             3              4");
    EXPECT_EQ(lines[19].substr(lines[19].find_first_not_of(' ')), "step time");
}

TEST(APlot, OfAConstantIsAStraightLineInTheMiddle) {
    std::vector<std::string> const dots = Dots(PlotText(Curve({{0, 2}, {1, 2}})));
    int drawn = 0;
    for (std::string const& row : dots) drawn += !row.empty();
    EXPECT_EQ(drawn, 1);
    EXPECT_EQ(dots[0], "");
}

TEST(APlot, OfASquareIsAsWideAsHigh) {
    std::vector<std::string> const dots = Dots(PlotText(Section({Rectangle(-1, -1, 1, 1)})));
    ASSERT_EQ(dots.size(), 16u);
    // Two columns are as wide as one row is high.
    for (std::string const& row : dots) {
        EXPECT_EQ(Width(row), 32u);
        EXPECT_EQ(Count(row, "⣿"), 32) << row;
    }
}

TEST(APlot, OfAFlatSectionHasFewRows) {
    std::string const plot = PlotText(Section({Rectangle(0, 0, 100, 5)}));
    EXPECT_EQ(Dots(plot).size(), 2u) << plot;
    EXPECT_EQ(Width(Dots(plot)[0]), 60u) << plot;
}

TEST(APlot, CutsHolesOut) {
    std::vector<std::string> const dots =
        Dots(PlotText(Section({Rectangle(-4, -4, 4, 4), Rectangle(-3, -3, 3, 3, true)})));
    EXPECT_EQ(dots[8], "⣿⣿⣿⣿⡇" + std::string(22, ' ') + "⢸⣿⣿⣿⣿");
    std::vector<std::string> const pipe = Dots(PlotText(Section({Circle(1), Circle(0.5, true)})));
    EXPECT_NE(pipe[8].find("    "), std::string::npos);
}

TEST(APlot, KeepsWallsThinnerThanADot) {
    std::vector<std::string> const dots = Dots(PlotText(
        Section({Rectangle(-1, -1, 1, 1), Rectangle(-0.9999, -0.9999, 0.9999, 0.9999, true)})));
    for (std::string const& row : dots) EXPECT_NE(row, "");
}

TEST(APlot, NamesItsLinesAndItsNote) {
    Picture picture = Curve({{0, 0}, {1, 1}});
    picture.lines[0].name = "real part";
    picture.lines.push_back({"imaginary part", {{0, 1}, {1, 0}}});
    picture.note = "without its smoothing";
    std::string const plot = PlotText(picture);
    EXPECT_NE(plot.find("\n  lines: a real part, b imaginary part\n"), std::string::npos) << plot;
    EXPECT_NE(plot.find("\n  note: without its smoothing\n"), std::string::npos) << plot;
    std::string const svg = SvgText(picture);
    EXPECT_NE(svg.find(">real part<"), std::string::npos);
    EXPECT_NE(svg.find(">note: without its smoothing<"), std::string::npos);
    EXPECT_EQ(Count(svg, "<polyline"), 2);
    // Each letter stands where its line ends.
    std::vector<std::string> const dots = Dots(plot);
    EXPECT_EQ(dots.front().substr(dots.front().size() - 2), " a") << plot;
    EXPECT_EQ(dots.back().substr(dots.back().size() - 2), " b") << plot;
    EXPECT_EQ(Width(dots.front()), Width(dots.back()));
    EXPECT_EQ(Width(Dots(PlotText(Curve({{0, 0}, {1, 1}})))[0]), 60u) << "no letter for one line";
}

TEST(APlot, GivesLinesOfOneEndTheirLettersBesideEachOther) {
    Picture picture = Curve({{0, 0}, {1, 1}});
    for (int i = 1; i < 12; ++i) picture.lines.push_back({"x", {{0, 0.05 * i}, {1, 1}}});
    ExpectWellFormed(picture);
    std::string const first = Dots(PlotText(picture)).front();
    EXPECT_EQ(first.substr(first.size() - 13), " abcdefghijkl");
}

TEST(APicture, OnLogarithmsIsStraightForAPower) {
    Picture picture = Curve({{1, 0.001}, {10, 0.1}, {100, 10}});
    picture.logarithmic = picture.logarithmicUp = true;
    ExpectWellFormed(picture);
    std::string const plot = PlotText(picture);
    EXPECT_NE(plot.find("\n     10 ┤"), std::string::npos) << plot;
    EXPECT_NE(plot.find("\n  0.001 ┤"), std::string::npos) << plot;
    std::string const svg = SvgText(picture);
    EXPECT_NE(svg.find("points=\"90.00,390.00 390.00,220.00 690.00,50.00\""), std::string::npos)
        << svg;
    for (char const* text : {">0.001<", ">0.01<", ">0.1<", ">1<", ">10<"})
        EXPECT_NE(svg.find(text), std::string::npos) << text << svg;
}

TEST(APlot, NamesManyLinesInSeveralLinesOfText) {
    Picture picture = Curve({{0, 0}, {1, 1}});
    for (int i = 0; i < 20; ++i)
        picture.lines.push_back({"damping ratio 0." + std::to_string(i), {{0, 1}, {1, 0}}});
    picture.lines.erase(picture.lines.begin());
    ExpectWellFormed(picture);
    std::string const plot = PlotText(picture);
    EXPECT_NE(plot.find("  lines: a damping ratio 0.0, b damping ratio 0.1, "), std::string::npos);
    EXPECT_NE(plot.find("\n         "), std::string::npos) << plot;
    EXPECT_NE(plot.find(" and 8 more\n"), std::string::npos) << plot;
    EXPECT_NE(SvgText(picture).find(">and 9 more<"), std::string::npos);
}

TEST(APicture, OfExtremesIsWellFormed) {
    ExpectWellFormed(Curve({{0, 0}}));
    ExpectWellFormed(Curve({{5, 5}, {5, 5}}));
    ExpectWellFormed(Curve({{0, 0}, {0, 1}}));
    ExpectWellFormed(Curve({{-DBL_MAX, -DBL_MAX}, {DBL_MAX, DBL_MAX}}));
    ExpectWellFormed(Curve({{0, DBL_MAX}, {DBL_MAX, DBL_MAX}}));
    ExpectWellFormed(Curve({{0, 0}, {5e-324, 5e-324}}));
    ExpectWellFormed(Curve({{0, DBL_MIN}, {DBL_MIN, 0}}));
    ExpectWellFormed(Curve({{0, 1e-300}, {1e300, -1e300}}));
    ExpectWellFormed(Curve({{1e9, 1}, {1e9 + 1e-6, 1 + 1e-15}}));
    ExpectWellFormed(Curve({{1e5, 123456789}, {1e5 + 1, 123456789.001}}));
    for (double const low : {5e-324, DBL_MIN, 1.0, 1e300}) {
        Picture picture = Curve({{low, 1}, {DBL_MAX, 2}});
        picture.logarithmic = true;
        ExpectWellFormed(picture);
        picture = Curve({{1, low}, {2, DBL_MAX}});
        picture.logarithmicUp = true;
        ExpectWellFormed(picture);
        picture = Curve({{low, 1}});
        picture.logarithmic = true;
        ExpectWellFormed(picture);
    }
    for (double const size : {1e-200, 1.0, 1e200}) {
        ExpectWellFormed(Section({Circle(size), Circle(size / 2, true)}));
        ExpectWellFormed(Section({Rectangle(0, 0, size, size * 1e-12)}));
        ExpectWellFormed(Section({Rectangle(0, 0, size * 1e-12, size)}));
        ExpectWellFormed(Section({Rectangle(1e9 * size, 0, (1e9 + 1) * size, size)}));
        ExpectWellFormed(Section({Rectangle(-size, -size, size, size)}));
    }
}

TEST(APicture, OfAMillionPointsIsThinnedInSvgAndKeepsItsPeak) {
    std::vector<Point> points;
    for (int i = 0; i < 1000000; ++i)
        points.push_back({i * 1e-6, i == 314159 ? 1.0 : 0.001 * (i % 7)});
    std::string const svg = SvgText(Curve(std::move(points)));
    EXPECT_LT(svg.size(), 200000u);
    // The peak reaches the top of the frame.
    EXPECT_NE(svg.find(",50.00"), std::string::npos);
}

TEST(AnSvg, HasTitleAxesAndNumbers) {
    std::string const svg = SvgText(Curve({{0, 0}, {4, 1}}));
    EXPECT_EQ(svg.rfind("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg ", 0), 0u);
    EXPECT_NE(svg.find("<title>documents['d'].amplitudes['a']</title>"), std::string::npos);
    for (char const* text : {">step time<", ">amplitude<", ">0<", ">4<", ">0.2<", ">1.0<"})
        EXPECT_NE(svg.find(text), std::string::npos) << text << svg;
    // The line itself, from the lower left to the upper right corner of the frame.
    EXPECT_NE(svg.find("points=\"90.00,390.00 690.00,50.00\""), std::string::npos) << svg;
    EXPECT_NE(svg.find("fill=\"#fff\""), std::string::npos) << "readable on any page";
}

TEST(AnSvg, LeavesRoomForLongNumbers) {
    std::string const svg = SvgText(Curve({{0, 1e9}, {1, 1.00000001e9}}));
    std::size_t const frame = svg.find("<rect x=\"");
    double left = 0;
    std::istringstream(svg.substr(frame + 9)) >> left;
    // 15 letters, each at least 6 wide.
    EXPECT_NE(svg.find(">1.000000010e+09<"), std::string::npos) << svg;
    EXPECT_GT(left, 15 * 6 + 30);
}

TEST(AnSvg, WritesNoNumbersIntoEachOther) {
    std::string const svg = SvgText(Curve({{1e9, 0}, {1e9 + 7, 1}}));
    std::string const place = "\" y=\"410.00\" text-anchor=\"middle\">";
    std::vector<double> places;
    for (std::size_t at = svg.find(place); at != std::string::npos; at = svg.find(place, at + 1))
        places.push_back(std::stod(svg.substr(svg.rfind('"', at - 1) + 1)));
    ASSERT_GE(places.size(), 2u) << svg;
    for (std::size_t i = 1; i < places.size(); ++i)
        EXPECT_GT(places[i] - places[i - 1], 15 * 6) << svg;
}

TEST(AnSvg, TellsMoreLinesApartThanThereAreColours) {
    Picture picture = Curve({{0, 0}, {1, 1}});
    for (int i = 1; i < 12; ++i) picture.lines.push_back({"x", {{0, 0}, {1, 1.0 * i}}});
    std::string const svg = SvgText(picture);
    EXPECT_EQ(XmlMistake(svg), "");
    std::set<std::string> strokes;
    for (std::size_t at = svg.find("<polyline"); at != std::string::npos;
         at = svg.find("<polyline", at + 1))
        strokes.insert(svg.substr(at, svg.find("points", at) - at));
    EXPECT_EQ(strokes.size(), 12u);
    // Half of the lines are dashed, and so is each in the legend.
    EXPECT_EQ(Count(svg, "stroke-dasharray"), 12);
}

TEST(AnSvg, StandsInTheMiddleOfAPageNoWiderThanItNeeds) {
    for (Picture const& picture :
         {Section({Rectangle(-1, -1, 1, 1)}), Section({Rectangle(0, 0, 1, 40)}),
          Section({Rectangle(0, 0, 40, 1)}), Section({Rectangle(1e5, 0, 1e5 + 1, 2)})}) {
        std::string const svg = SvgText(picture);
        double page = 0, left = 0, width = 0;
        std::istringstream(svg.substr(svg.find("width=\"") + 7)) >> page;
        std::size_t const frame = svg.find("<rect x=\"");
        std::istringstream(svg.substr(frame + 9)) >> left;
        std::istringstream(svg.substr(svg.find("width=\"", frame) + 7)) >> width;
        double const right = page - left - width;
        EXPECT_GE(right, 25) << svg;
        EXPECT_NEAR(left, right, 70) << svg;
        EXPECT_TRUE(width > page / 2 || page <= 360) << svg;
    }
}

TEST(AnSvg, KeepsItsNoteBesideTheWordOnTheCentroid) {
    Picture picture = Section({Rectangle(0, 0, 1, 4)});
    picture.hasCentroid = true;
    picture.note = "approximate where segments meet at an angle";
    for (int i = 0; i < 10; ++i) picture.note += " and elsewhere";
    std::string const svg = SvgText(picture);
    EXPECT_EQ(XmlMistake(svg), "");
    EXPECT_EQ(Count(svg, ">The cross is the centroid.<"), 1);
    EXPECT_EQ(Count(svg, ">note: approximate where"), 1) << svg;
    // A narrow page has it in several lines, none of which is longer than the page.
    EXPECT_EQ(Count(svg, "elsewhere"), 10);
    for (std::string const& line : Lines(svg))
        if (line.find("elsewhere") != std::string::npos) {
            std::size_t const begin = line.find('>') + 1;
            EXPECT_LE(line.find('<', begin) - begin, 60u) << line;
        }
}

TEST(AnSvg, OfOnePointIsADot) { EXPECT_EQ(Count(SvgText(Curve({{1, 1}})), "<circle"), 1); }

TEST(AnSvg, EscapesWhatXmlCannotHold) {
    Picture picture = Curve({{0, 0}, {1, 1}});
    picture.title = "a<b>&\"c\" \x01 \xff \xef\xbf\xbe \xed\xa0\x80 \xc3\xa9";
    std::string const svg = SvgText(picture);
    EXPECT_EQ(XmlMistake(svg), "");
    std::string const gone = "\xef\xbf\xbd";
    EXPECT_NE(svg.find("<title>a&lt;b&gt;&amp;&quot;c&quot; " + gone + " " + gone + " " + gone +
                       " " + gone + gone + gone + " \xc3\xa9</title>"),
              std::string::npos)
        << svg;
}

TEST(AnSvg, ShortensALongTitleWhereItStandsAndKeepsItWholeAsTitle) {
    Picture picture = Curve({{0, 0}, {1, 1}});
    for (int i = 0; i < 100; ++i) picture.title += "\xc3\xa9";
    std::string const svg = SvgText(picture);
    EXPECT_EQ(XmlMistake(svg), "");
    EXPECT_EQ(Count(svg, picture.title), 1);
    EXPECT_EQ(Count(svg, "\xe2\x80\xa6"), 1);
}

TEST(AnSvg, LeavesTheDocumentOutOfATitleThatIsTooLong) {
    Picture picture = Section({Rectangle(0, 0, 1, 4)});
    picture.title = "documents['a model of some name'].profiles['one of its profiles']";
    std::string const svg = SvgText(picture);
    EXPECT_EQ(Count(svg, "<title>documents['a model of some name']."), 1);
    EXPECT_EQ(Count(svg, ">profiles['one of its profiles']<"), 1) << svg;
}

TEST(AnSvg, OfASectionHasOneUnitOnBothAxesAndItsCentroid) {
    Picture picture = Section({Circle(2), Circle(1, true)});
    picture.hasCentroid = true;
    std::string const svg = SvgText(picture);
    std::size_t const at = svg.find('A', svg.find("class=\"section\""));
    double rx = 0, ry = 0;
    std::istringstream(svg.substr(at + 1)) >> rx >> ry;
    EXPECT_GT(rx, 100);
    EXPECT_NEAR(rx, ry, 0.02);
    EXPECT_EQ(Count(svg, "class=\"centroid\""), 2);
    EXPECT_EQ(Count(SvgText(Section({Circle(2)})), "class=\"centroid\""), 0);
    // The circle around material runs one way, that around the hole the other.
    EXPECT_EQ(Count(svg, " 0 1 0 "), 2);
    EXPECT_EQ(Count(svg, " 0 1 1 "), 2);
}
