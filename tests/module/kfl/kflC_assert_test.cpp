#include "kflC_assert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nex_TextException.h"

namespace kflC_assert_test {

struct Message {
    int code;
    char const* text;
};

std::vector<Message> const messages = {
#define KFL(code, text) {code, text},
#include "kflC_messages.inc"
#undef KFL
};

char const* const source = "generated/module/kfl/com/impl/kflC_assert";

std::string MessageOf(int code) {
    try {
        kflC_Assert(false, int(code));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_EQ(failure.Line(), 48);
        return failure.UserReport().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(kflC_Assert, RaisesTheTextOfEveryCode) {
    ASSERT_EQ(messages.size(), 7u);
    for (std::size_t i = 0; i < messages.size(); ++i) {
        EXPECT_EQ(messages[i].code, static_cast<int>(i));
        EXPECT_EQ(MessageOf(messages[i].code), messages[i].text);
        EXPECT_STREQ(kflC_ErrorText(int(messages[i].code)).Text(), messages[i].text);
    }
}

TEST(kflC_Assert, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (int code : {7, 7 + 1, 1000, 2147483647, -1, -2147483647 - 1}) {
        EXPECT_EQ(MessageOf(code), "");
        EXPECT_STREQ(kflC_ErrorText(int(code)).Text(), "");
    }
}

TEST(kflC_Assert, AConditionThatHoldsRaisesNothing) {
    for (int code : {0, 7 - 1, 7, -1}) {
        EXPECT_NO_THROW(kflC_Assert(true, int(code)));
    }
}

}  // namespace kflC_assert_test
