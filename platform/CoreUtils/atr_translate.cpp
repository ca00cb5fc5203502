#include "atr_translate.h"

#include <utility>

atr_translate::atr_translate(char const* literal) : format(atr_LookUpTranslation(literal)) {}

void atr_translate::Substitute(int position, std::string text) {
    if (position < 1) return;
    std::size_t const index = static_cast<std::size_t>(position) - 1;
    // More positions than the format has letters can name no placeholder.
    if (index >= format.size()) return;
    if (substitutions.size() <= index) substitutions.resize(index + 1);
    substitutions[index] = Substitution{std::move(text), true};
}

atr_String atr_translate::Result() const {
    std::string result;
    std::size_t placeholder = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        char const next = i + 1 < format.size() ? format[i + 1] : '\0';
        if (format[i] != '%' || (next != 'd' && next != 's' && next != '%')) {
            result += format[i];
            continue;
        }
        ++i;
        if (next == '%') {
            result += '%';
            continue;
        }
        if (placeholder < substitutions.size() && substitutions[placeholder].given) {
            result += substitutions[placeholder].text;
        } else {
            result += '%';
            result += next;
        }
        ++placeholder;
    }
    return atr_String(result.data(), static_cast<int>(result.size()));
}

void atr_SubstituteFormat(atr_translate& message, int position, int value) {
    message.Substitute(position, std::to_string(value));
}

void atr_SubstituteFormat(atr_translate& message, int position, char const* text) {
    message.Substitute(position, text ? text : "");
}
