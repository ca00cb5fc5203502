#include "kmaC_assert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nex_TextException.h"

namespace kmaC_assert_test {

struct Message {
    int code;
    char const* text;
};

std::vector<Message> const messages = {
#define KMA(code, text) {code, text},
#include "kmaC_messages.inc"
#undef KMA
};

char const* const source = "generated/module/kma/com/impl/kmaC_assert";

std::string MessageOf(int code) {
    try {
        kmaC_Assert(false, kmaC_ErrorEnm(code));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_GT(failure.Line(), 0);
        return failure.UserReport().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(kmaC_Assert, RaisesTheTextOfEveryCode) {
    ASSERT_EQ(messages.size(), 47u);
    for (std::size_t i = 0; i < messages.size(); ++i) {
        EXPECT_EQ(messages[i].code, static_cast<int>(i));
        EXPECT_EQ(MessageOf(messages[i].code), messages[i].text);
        EXPECT_STREQ(kmaC_ErrorText(kmaC_ErrorEnm(messages[i].code)).Text(), messages[i].text);
    }
}

TEST(kmaC_Assert, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (int code : {47, 47 + 1, 1000, 2147483647, -1, -2147483647 - 1}) {
        EXPECT_EQ(MessageOf(code), "");
        EXPECT_STREQ(kmaC_ErrorText(kmaC_ErrorEnm(code)).Text(), "");
    }
}

TEST(kmaC_Assert, AConditionThatHoldsRaisesNothing) {
    for (int code : {0, 47 - 1, 47, -1}) {
        EXPECT_NO_THROW(kmaC_Assert(true, kmaC_ErrorEnm(code)));
    }
}

}  // namespace kmaC_assert_test
