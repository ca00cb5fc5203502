#include "atr_NaturalOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "cow_String.h"

namespace {

int Sign(int value) { return value < 0 ? -1 : value > 0 ? 1 : 0; }

// The rule in its plainest form: cut both texts into bytes and numbers, compare those in turn, and
// settle ties bytewise.
int Plain(std::string const& a, std::string const& b) {
    auto const digit = [](char c) { return c >= '0' && c <= '9'; };
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        if (digit(a[i]) && digit(b[j])) {
            std::string x, y;
            while (i < a.size() && digit(a[i])) x += a[i++];
            while (j < b.size() && digit(b[j])) y += b[j++];
            x.erase(0, std::min(x.find_first_not_of('0'), x.size()));
            y.erase(0, std::min(y.find_first_not_of('0'), y.size()));
            if (x.size() != y.size()) return x.size() < y.size() ? -1 : 1;
            if (x != y) return x < y ? -1 : 1;
        } else {
            auto const x = static_cast<unsigned char>(a[i++]);
            auto const y = static_cast<unsigned char>(b[j++]);
            if (x != y) return x < y ? -1 : 1;
        }
    }
    if (i < a.size() || j < b.size()) return i < a.size() ? 1 : -1;
    return Sign(a.compare(b));
}

std::vector<std::string> Texts() {
    std::vector<std::string> texts{"",
                                   "0",
                                   "00",
                                   "01",
                                   "1",
                                   "10",
                                   "a",
                                   "a0",
                                   "a00",
                                   "a1",
                                   "a01",
                                   "a1b",
                                   "a01b",
                                   "a1b2",
                                   "a9",
                                   "a10",
                                   "a010",
                                   "a100",
                                   "A9",
                                   "a 9",
                                   "a-9",
                                   "~",
                                   "9~",
                                   "\xff"
                                   "1",
                                   "b",
                                   "a1b10",
                                   "a1b9",
                                   "a0001b9",
                                   "a1b09"};
    std::mt19937 random(11);
    for (int n = 0; n < 150; ++n) {
        std::string text;
        for (std::size_t length = random() % 22; text.size() < length;) {
            text += "001259ab/:"[random() % 10];
        }
        texts.push_back(text);
    }
    return texts;
}

class NaturalOrder : public ::testing::Test {
protected:
    void TearDown() override { atr_setNaturalOrder(true); }
};

}  // namespace

TEST_F(NaturalOrder, IsOnAtStart) { EXPECT_TRUE(atr_getNaturalOrder()); }

TEST_F(NaturalOrder, NumbersCompareByValue) {
    EXPECT_LT(strnatcmp("a9", "a10"), 0);
    EXPECT_LT(strnatcmp("Material-2", "Material-10"), 0);
    EXPECT_LT(strnatcmp("x1y20", "x1y100"), 0);
    EXPECT_LT(strnatcmp("5", "123456789012345678901234567890"), 0);
    EXPECT_GT(strnatcmp("a010", "a9"), 0);
    EXPECT_LT(strnatcmp("a", "a1"), 0);
    EXPECT_LT(strnatcmp("a10", "b9"), 0);
}

TEST_F(NaturalOrder, OnlyEqualTextsGiveZero) {
    EXPECT_NE(strnatcmp("a1", "a01"), 0);
    EXPECT_NE(strnatcmp("a 1", "a1"), 0);
    EXPECT_NE(strnatcmp("A", "a"), 0);
    EXPECT_EQ(strnatcmp("a01", "a01"), 0);
    EXPECT_EQ(strnatcmp(nullptr, ""), 0);
    EXPECT_LT(strnatcmp(nullptr, "x"), 0);
}

TEST_F(NaturalOrder, IsTheRuleInItsPlainestForm) {
    std::vector<std::string> const texts = Texts();
    for (std::string const& a : texts) {
        for (std::string const& b : texts) {
            ASSERT_EQ(Sign(strnatcmp(a.c_str(), b.c_str())), Plain(a, b)) << a << " | " << b;
            ASSERT_EQ(atr_CompareNames(cow_String(a.c_str()), cow_String(b.c_str())), Plain(a, b))
                << a << " | " << b;
        }
    }
}

TEST_F(NaturalOrder, IsATotalOrder) {
    std::vector<std::string> const texts = Texts();
    for (std::string const& a : texts) {
        for (std::string const& b : texts) {
            int const ab = strnatcmp(a.c_str(), b.c_str());
            ASSERT_EQ(ab == 0, a == b) << a << " | " << b;
            ASSERT_EQ(Sign(ab), -Sign(strnatcmp(b.c_str(), a.c_str()))) << a << " | " << b;
            if (ab > 0) continue;
            for (std::string const& c : texts) {
                if (strnatcmp(b.c_str(), c.c_str()) > 0) continue;
                ASSERT_LE(strnatcmp(a.c_str(), c.c_str()), 0) << a << " | " << b << " | " << c;
            }
        }
    }
}

TEST_F(NaturalOrder, NamesThatDifferBehindAZeroStayApart) {
    cow_String const a("k\0a", 3), b("k\0b", 3), k("k"), zero("k\0", 2);
    EXPECT_LT(atr_CompareNames(a, b), 0);
    EXPECT_LT(atr_CompareNames(k, a), 0);
    EXPECT_LT(atr_CompareNames(k, zero), 0);
    EXPECT_GT(atr_CompareNames(zero, k), 0);
    EXPECT_EQ(atr_CompareNames(a, cow_String("k\0a", 3)), 0);
}

TEST_F(NaturalOrder, TheSwitchGivesTheOrderOfBytes) {
    atr_setNaturalOrder(false);
    std::vector<std::string> const texts = Texts();
    for (std::string const& a : texts) {
        for (std::string const& b : texts) {
            ASSERT_EQ(atr_CompareNames(cow_String(a.c_str()), cow_String(b.c_str())),
                      Sign(a.compare(b)));
        }
    }
}
