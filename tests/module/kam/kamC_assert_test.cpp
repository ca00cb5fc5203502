#include "kamC_assert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nex_TextException.h"

namespace kamC_assert_test {

struct Message {
    int code;
    char const* text;
};

std::vector<Message> const messages = {
#define KAM(code, text) {code, text},
#include "kamC_messages.inc"
#undef KAM
};

char const* const source = "generated/module/kam/com/impl/kamC_assert";

std::string MessageOf(int code) {
    try {
        kamC_Assert(false, int(code));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_EQ(failure.Line(), 84);
        return failure.UserReport().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(kamC_Assert, RaisesTheTextOfEveryCode) {
    ASSERT_EQ(messages.size(), 23u);
    for (std::size_t i = 0; i < messages.size(); ++i) {
        EXPECT_EQ(messages[i].code, static_cast<int>(i));
        EXPECT_EQ(MessageOf(messages[i].code), messages[i].text);
        EXPECT_STREQ(kamC_ErrorText(int(messages[i].code)).Text(), messages[i].text);
    }
}

TEST(kamC_Assert, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (int code : {23, 23 + 1, 1000, 2147483647, -1, -2147483647 - 1}) {
        EXPECT_EQ(MessageOf(code), "");
        EXPECT_STREQ(kamC_ErrorText(int(code)).Text(), "");
    }
}

TEST(kamC_Assert, AConditionThatHoldsRaisesNothing) {
    for (int code : {0, 23 - 1, 23, -1}) {
        EXPECT_NO_THROW(kamC_Assert(true, int(code)));
    }
}

}  // namespace kamC_assert_test
