#include "cow_String.h"

#include <charconv>

namespace {

struct Decimal {
    explicit Decimal(int value)
        : length(static_cast<int>(std::to_chars(digits, digits + sizeof digits, value).ptr -
                                  digits)) {}
    char digits[12];
    int length;
};

}  // namespace

cow_String::cow_String(int value) : cow_String(Decimal(value).digits, Decimal(value).length) {}
