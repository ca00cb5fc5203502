#pragma once

#include "atr_StringBase.h"

// A text for people, already in their language. Same layout as cow_String and kept apart from it by
// type, so that a message is never taken for a name.
class atr_String : public atr_StringBase {
public:
    atr_String() noexcept = default;
    explicit atr_String(char const* letters) : atr_StringBase(letters, LengthOf(letters)) {}
    atr_String(char const* letters, int length) : atr_StringBase(letters, length) {}
    explicit atr_String(atr_StringBase const& other) noexcept : atr_StringBase(other) {}

    // Puts a text that must not be translated, such as an object's name, in the place of one %s of
    // the message: of the first one left for position 0, of the second for 1. The text goes in as
    // it stands, whatever it holds. Without such a %s the message stays as it is.
    void ReplaceNonTranslated(int position, atr_StringBase const& replacement);

    friend bool operator==(atr_String const& a, atr_String const& b) noexcept {
        return SameText(a, b);
    }
    friend bool operator==(atr_String const& a, char const* b) noexcept {
        return a.View() == std::string_view(b ? b : "");
    }
    friend bool operator<(atr_String const& a, atr_String const& b) noexcept {
        return a.View() < b.View();
    }
};

// The message of a literal, looked up in the translation and otherwise taken as it stands.
atr_String atr_raw(char const* literal);

// How literals are translated: gets the literal, gives its translation, which must stay alive. Null
// (the state at start) translates nothing.
using atr_Translation = char const* (*)(char const* literal);
void atr_setTranslation(atr_Translation translation) noexcept;
char const* atr_LookUpTranslation(char const* literal);
