#include "omi_Time.h"

#include <atomic>
#include <chrono>
#include <cmath>
#include <limits>

double omi_gettimecounter() {
    static std::atomic<double> latest{0.0};
    static auto const origin = std::chrono::steady_clock::now();
    double last = latest.load(std::memory_order_relaxed);
    double now;
    do {
        now = std::chrono::duration<double>(std::chrono::steady_clock::now() - origin).count();
        if (!(now > last)) now = std::nextafter(last, std::numeric_limits<double>::max());
    } while (!latest.compare_exchange_weak(last, now, std::memory_order_relaxed));
    return now;
}
