#include "kbpC_assert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nex_TextException.h"

namespace kbpC_assert_test {

struct Message {
    int code;
    char const* text;
};

std::vector<Message> const messages = {
#define KBP(code, text) {code, text},
#include "kbpC_messages.inc"
#undef KBP
};

char const* const source = "generated/module/kbp/com/impl/kbpC_assert";

std::string MessageOf(int code) {
    try {
        kbpC_Assert(false, kbpC_ErrorEnm(code));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_EQ(failure.Line(), 116);
        return failure.UserReport().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(kbpC_Assert, RaisesTheTextOfEveryCode) {
    ASSERT_EQ(messages.size(), 39u);
    for (std::size_t i = 0; i < messages.size(); ++i) {
        EXPECT_EQ(messages[i].code, static_cast<int>(i));
        EXPECT_EQ(MessageOf(messages[i].code), messages[i].text);
        EXPECT_STREQ(kbpC_ErrorText(kbpC_ErrorEnm(messages[i].code)).Text(), messages[i].text);
    }
}

TEST(kbpC_Assert, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (int code : {39, 39 + 1, 1000, 2147483647, -1, -2147483647 - 1}) {
        EXPECT_EQ(MessageOf(code), "");
        EXPECT_STREQ(kbpC_ErrorText(kbpC_ErrorEnm(code)).Text(), "");
    }
}

TEST(kbpC_Assert, AConditionThatHoldsRaisesNothing) {
    for (int code : {0, 39 - 1, 39, -1}) {
        EXPECT_NO_THROW(kbpC_Assert(true, kbpC_ErrorEnm(code)));
    }
}

}  // namespace kbpC_assert_test
