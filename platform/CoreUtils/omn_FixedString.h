#pragma once

#include <cstddef>
#include <string_view>

// A constant literal with its length known: the result of every xxxCmd(). It holds no memory of its
// own and costs nothing to pass or compare; the literal must live as long as the program.
class omn_FixedString {
public:
    constexpr omn_FixedString() noexcept : text(""), length(0) {}
    template <std::size_t N>
    constexpr omn_FixedString(char const (&literal)[N]) noexcept : text(literal), length(N - 1) {}
    static constexpr omn_FixedString FromLiteral(char const* literal) noexcept {
        omn_FixedString fixed;
        fixed.text = literal;
        fixed.length = std::string_view(literal).size();
        return fixed;
    }

    constexpr char const* Text() const noexcept { return text; }
    constexpr int Length() const noexcept { return static_cast<int>(length); }
    constexpr std::string_view View() const noexcept { return std::string_view(text, length); }
    constexpr operator char const*() const noexcept { return text; }

    friend constexpr bool operator==(omn_FixedString const& a, omn_FixedString const& b) noexcept {
        return a.View() == b.View();
    }
    friend constexpr bool operator==(omn_FixedString const& a, char const* b) noexcept {
        return a.View() == std::string_view(b);
    }

private:
    char const* text;
    std::size_t length;
};
