#include "klcC_assert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nex_TextException.h"

namespace klcC_assert_test {

struct Message {
    int code;
    char const* text;
};

std::vector<Message> const messages = {
#define KLC(code, text) {code, text},
#define KLC_COMPOUND(code, text)
#include "klcC_messages.inc"
#undef KLC
#undef KLC_COMPOUND
};

char const* const source = "generated/module/klc/com/impl/klcC_assert";

std::string MessageOf(int code) {
    try {
        klcC_Assert(false, klcC_ErrorEnm(code));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_GT(failure.Line(), 0);
        return failure.UserReport().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(klcC_Assert, RaisesTheTextOfEveryCode) {
    ASSERT_EQ(messages.size(), 6u);
    for (std::size_t i = 0; i < messages.size(); ++i) {
        EXPECT_EQ(messages[i].code, static_cast<int>(i));
        EXPECT_EQ(MessageOf(messages[i].code), messages[i].text);
        EXPECT_STREQ(klcC_ErrorText(klcC_ErrorEnm(messages[i].code)).Text(), messages[i].text);
    }
}

TEST(klcC_Assert, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (int code : {6, 6 + 1, 1000, 2147483647, -1, -2147483647 - 1}) {
        EXPECT_EQ(MessageOf(code), "");
        EXPECT_STREQ(klcC_ErrorText(klcC_ErrorEnm(code)).Text(), "");
    }
}

TEST(klcC_Assert, AConditionThatHoldsRaisesNothing) {
    for (int code : {0, 6 - 1, 6, -1}) {
        EXPECT_NO_THROW(klcC_Assert(true, klcC_ErrorEnm(code)));
    }
}

std::vector<Message> const contentMessages = {
#define KLC(code, text)
#define KLC_COMPOUND(code, text) {code, text},
#include "klcC_messages.inc"
#undef KLC
#undef KLC_COMPOUND
};

std::string ContentMessageOf(int code, char const* name) {
    try {
        klcC_AssertLoadCaseContent(false, klcC_CompoundErrorEnm(code), cow_String(name));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_GT(failure.Line(), 0);
        return failure.AsString().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(klcC_AssertLoadCaseContent, PutsTheNameInPlaceOfThePlaceholderVerbatim) {
    ASSERT_EQ(contentMessages.size(), 6u);
    for (char const* name : {"x", "", "a %s b", "%d", "%1", "100%", "\"quoted\""}) {
        for (std::size_t i = 0; i < contentMessages.size(); ++i) {
            EXPECT_EQ(contentMessages[i].code, static_cast<int>(i));
            std::string expected = contentMessages[i].text;
            std::size_t const at = expected.find("%s");
            ASSERT_NE(at, std::string::npos);
            expected.replace(at, 2, name);
            EXPECT_EQ(ContentMessageOf(contentMessages[i].code, name), expected);
        }
    }
}

TEST(klcC_AssertLoadCaseContent, ACodeOutsideTheTableRaisesAnEmptyText) {
    EXPECT_EQ(ContentMessageOf(6, "x"), "");
    EXPECT_EQ(ContentMessageOf(-1, "x"), "");
}

TEST(klcC_AssertLoadCaseContent, AConditionThatHoldsRaisesNothing) {
    EXPECT_NO_THROW(klcC_AssertLoadCaseContent(true, klcC_CompoundErrorEnm(0), cow_String("x")));
    EXPECT_NO_THROW(klcC_AssertLoadCaseContent(true, klcC_CompoundErrorEnm(6), cow_String("x")));
}

}  // namespace klcC_assert_test
