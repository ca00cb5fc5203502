#pragma once

namespace nga {

/// How many objects a walk may meet. A few objects that hold each other many times over, level on
/// level, are a small file but more than anybody can spell out: such a walk ends with an Error
/// instead of never. What real documents hold is far below it.
class Budget {
public:
    /// For a walk over so many named objects.
    explicit Budget(int named = 0) : m_left(1'000'000 + 100LL * named) {}

    void Spend() {
        if (--m_left < 0) Exhausted();
    }

private:
    [[noreturn]] static void Exhausted();

    long long m_left;
};

}  // namespace nga
