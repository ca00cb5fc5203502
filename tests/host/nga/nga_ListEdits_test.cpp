#include "nga_ListEdits.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

using What = nga::ListEdit::What;

std::vector<nga::ListEdit> Edits(std::string const& before, std::string const& after) {
    return nga::EditsOf(
        static_cast<int>(before.size()), static_cast<int>(after.size()), [&](int i, int j) {
            return before[static_cast<std::size_t>(i)] == after[static_cast<std::size_t>(j)];
        });
}

/// Makes the edits on the first text, in their turn, and counts those that change something.
std::string Made(std::string const& before, std::string const& after, int& count) {
    std::string text = before;
    std::size_t at = 0;
    count = 0;
    for (nga::ListEdit const& edit : Edits(before, after)) {
        if (edit.what != What::Keep) ++count;
        char const now =
            edit.what == What::Remove ? ' ' : after[static_cast<std::size_t>(edit.after)];
        switch (edit.what) {
            case What::Keep:
                EXPECT_EQ(text[at], now);
                ++at;
                break;
            case What::Change:
                text[at++] = now;
                break;
            case What::Remove:
                text.erase(at, 1);
                break;
            case What::Insert:
                text.insert(at++, 1, now);
                break;
        }
    }
    return text;
}

int Distance(std::string const& before, std::string const& after) {
    int count = 0;
    EXPECT_EQ(Made(before, after, count), after);
    return count;
}

TEST(ListEdits, OneChangeIsOneEdit) {
    EXPECT_EQ(Distance("", ""), 0);
    EXPECT_EQ(Distance("abc", "abc"), 0);
    EXPECT_EQ(Distance("abc", "axc"), 1);
    EXPECT_EQ(Distance("abc", "abxc"), 1);
    EXPECT_EQ(Distance("abc", "xabc"), 1);
    EXPECT_EQ(Distance("abc", "abcx"), 1);
    EXPECT_EQ(Distance("abc", "ac"), 1);
    EXPECT_EQ(Distance("aaa", "aa"), 1);
    EXPECT_EQ(Distance("", "abc"), 3);
    EXPECT_EQ(Distance("abc", ""), 3);
    EXPECT_EQ(Distance("kitten", "sitting"), 3);
}

TEST(ListEdits, AnyListBecomesAnyOtherWithNoMoreEditsThanWereMade) {
    std::mt19937 random(11);
    auto const below = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    for (int round = 0; round < 300; ++round) {
        std::string before(below(20), ' ');
        for (char& c : before) c = static_cast<char>('a' + below(4));
        std::string after = before;
        int made = 0;
        for (; made < static_cast<int>(below(6)); ++made) {
            if (below(2) != 0 || after.empty())
                after.insert(below(after.size() + 1), 1, 'x');
            else if (below(2) != 0)
                after.erase(below(after.size()), 1);
            else
                after[below(after.size())] = 'y';
        }
        EXPECT_LE(Distance(before, after), made) << before << " " << after;
    }
}

TEST(ListEdits, ListsThatAreLongStayRight) {
    std::string before(3000, 'a'), after(2500, 'b');
    EXPECT_EQ(Distance(before, after), 3000);
    EXPECT_EQ(Distance(before, before + "b"), 1);
}

}  // namespace
