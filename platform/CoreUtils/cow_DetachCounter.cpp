#ifdef NGA_COUNT_DETACHES

#include "cow_DetachCounter.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

using Counts = std::map<std::pair<std::string, int>, long>;

Counts& TheCounts() {
    static Counts* const counts = new Counts;
    return *counts;
}

}  // namespace

void cow_DetachCounter::Add(cow_Place place) { ++TheCounts()[{place.file, place.line}]; }

long cow_DetachCounter::Total() {
    long total = 0;
    for (auto const& entry : TheCounts()) total += entry.second;
    return total;
}

void cow_DetachCounter::Clear() { TheCounts().clear(); }

void cow_DetachCounter::Report(std::FILE* to) {
    std::vector<std::pair<Counts::key_type, long>> places(TheCounts().begin(), TheCounts().end());
    std::stable_sort(places.begin(), places.end(),
                     [](auto const& a, auto const& b) { return a.second > b.second; });
    for (auto const& place : places) {
        std::fprintf(to, "%10ld  %s:%d\n", place.second, place.first.first.c_str(),
                     place.first.second);
    }
}

#endif
