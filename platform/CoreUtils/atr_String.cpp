#include "atr_String.h"

#include <string>

namespace {
atr_Translation currentTranslation = nullptr;
}

void atr_String::ReplaceNonTranslated(int position, atr_StringBase const& replacement) {
    std::string_view const message = View();
    std::size_t at = 0;
    for (int seen = 0;; ++seen, at += 2) {
        at = message.find("%s", at);
        if (at == std::string_view::npos) return;
        if (seen == position) break;
    }
    std::string filled(message.substr(0, at));
    filled += replacement.View();
    filled += message.substr(at + 2);
    *this = atr_String(filled.data(), static_cast<int>(filled.size()));
}

atr_String atr_raw(char const* literal) { return atr_String(atr_LookUpTranslation(literal)); }

void atr_setTranslation(atr_Translation translation) noexcept { currentTranslation = translation; }

char const* atr_LookUpTranslation(char const* literal) {
    if (!literal) return "";
    if (!currentTranslation) return literal;
    char const* const translated = currentTranslation(literal);
    return translated ? translated : literal;
}
