#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// Benchmarks that compare: each row measures our way and a peer's turn by turn in one run, so that
// a change in the machine's speed meets both, and prints the ratio of their medians beside the most
// it may be. A measurement is a function that does its own preparation and gives the seconds of
// what is to be measured.
namespace ratio {

using Measure = std::function<double()>;

// Stands for a limit in rows that have none.
inline constexpr double forInformation = 0;

// Keeps a result alive that nothing else uses.
template <class T>
inline void Keep(T const& value) {
    asm volatile("" : : "r,m"(value) : "memory");
}

template <class Work>
double Seconds(Work&& work) {
    auto const begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

inline double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

class Table {
public:
    explicit Table(int defaultRounds = 15) : rounds(defaultRounds) {
        std::printf("%-66s %12s %12s %8s %8s\n", "work", "ours", "peer", "ratio", "at most");
    }

    // perRound divides both measurements, so that the printed times are those of one operation.
    double Row(std::string const& name, double atMost, Measure const& ours, Measure const& peer,
               double perRound = 1, int roundsHere = 0) {
        std::vector<double> mine, theirs;
        ours(), peer();
        for (int round = 0, n = roundsHere ? roundsHere : rounds; round < n; ++round) {
            if (round % 2) {
                theirs.push_back(peer());
                mine.push_back(ours());
            } else {
                mine.push_back(ours());
                theirs.push_back(peer());
            }
        }
        double const a = Median(mine) / perRound, b = Median(theirs) / perRound;
        bool const good = atMost == forInformation || a <= b * atMost;
        missed += !good;
        char limit[16] = "-";
        if (atMost != forInformation) std::snprintf(limit, sizeof limit, "%.2f", atMost);
        std::printf("%-66s %12s %12s %8.3f %8s%s\n", name.c_str(), Time(a).c_str(), Time(b).c_str(),
                    a / b, limit, good ? "" : "  MISSED");
        std::fflush(stdout);
        return a / b;
    }

    int Missed() const { return missed; }

private:
    static std::string Time(double seconds) {
        char text[32];
        if (seconds < 1e-6) {
            std::snprintf(text, sizeof text, "%.2f ns", seconds * 1e9);
        } else if (seconds < 1e-3) {
            std::snprintf(text, sizeof text, "%.2f us", seconds * 1e6);
        } else {
            std::snprintf(text, sizeof text, "%.2f ms", seconds * 1e3);
        }
        return text;
    }

    int rounds;
    int missed = 0;
};

}  // namespace ratio
