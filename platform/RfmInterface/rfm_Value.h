#pragma once

#include <cstdint>

#include "cls_Uid.h"

/// One value of a row, as it stands: a view, whose text and bytes belong to somebody else.
struct rfm_Value {
    enum Tag : std::uint8_t {
        Null,    ///< no value
        Int,     ///< integer: numbers, flags (0 or 1), TypeIds and OIDs
        Double,  ///< 64-bit real, any bits
        Text,    ///< text of a length
        Bytes    ///< an array's data or an identity
    };

    Tag tag = Null;
    int length = 0;  ///< of text and bytes
    union {
        long long integer = 0;
        double real;
        char const* text;
        void const* bytes;
    };

    static rfm_Value OfInt(long long value) {
        rfm_Value result;
        result.tag = Int;
        result.integer = value;
        return result;
    }
    static rfm_Value OfDouble(double value) {
        rfm_Value result;
        result.tag = Double;
        result.real = value;
        return result;
    }
    static rfm_Value OfText(char const* letters, int count) {
        rfm_Value result;
        result.tag = Text;
        result.length = count;
        result.text = letters;
        return result;
    }
    static rfm_Value OfBytes(void const* data, int count) {
        rfm_Value result;
        result.tag = Bytes;
        result.length = count;
        result.bytes = data;
        return result;
    }
};
