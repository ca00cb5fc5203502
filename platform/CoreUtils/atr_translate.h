#pragma once

#include <string>
#include <vector>

#include "atr_String.h"

// Builds a message from a format whose placeholders (%d, %s) are named by position, from 1. The
// format is translated first; what is put in is not, and is never read as a format itself. A
// placeholder that gets no value stays as it is written.
class atr_translate {
public:
    explicit atr_translate(char const* format);

    atr_String Result() const;

    friend void atr_SubstituteFormat(atr_translate& message, int position, int value);
    friend void atr_SubstituteFormat(atr_translate& message, int position, char const* text);

private:
    struct Substitution {
        std::string text;
        bool given = false;
    };

    void Substitute(int position, std::string text);

    std::string format;
    std::vector<Substitution> substitutions;
};

void atr_SubstituteFormat(atr_translate& message, int position, int value);
void atr_SubstituteFormat(atr_translate& message, int position, char const* text);

// The message of an enumeration's bad value: its number and the name of the enumeration.
template <class E>
atr_String atr(char const* format, E value, char const* text) {
    atr_translate message(format);
    atr_SubstituteFormat(message, 1, static_cast<int>(value));
    atr_SubstituteFormat(message, 2, text);
    return message.Result();
}
