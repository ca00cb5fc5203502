#include "kbeC_assert.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nex_TextException.h"

namespace kbeC_assert_test {

struct Message {
    int code;
    char const* text;
};

std::vector<Message> const messages = {
#define KBE(code, text) {code, text},
#define KBE_CONTENT(code, text)
#include "kbeC_messages.inc"
#undef KBE
#undef KBE_CONTENT
};

char const* const source = "generated/module/kbe/com/impl/kbeC_assert";

std::string MessageOf(int code) {
    try {
        kbeC_Assert(false, kbeC_ErrorEnm(code));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_GT(failure.Line(), 0);
        return failure.UserReport().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(kbeC_Assert, RaisesTheTextOfEveryCode) {
    ASSERT_EQ(messages.size(), 60u);
    for (std::size_t i = 0; i < messages.size(); ++i) {
        EXPECT_EQ(messages[i].code, static_cast<int>(i));
        EXPECT_EQ(MessageOf(messages[i].code), messages[i].text);
        EXPECT_STREQ(kbeC_ErrorText(kbeC_ErrorEnm(messages[i].code)).Text(), messages[i].text);
    }
}

TEST(kbeC_Assert, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (int code : {60, 60 + 1, 1000, 2147483647, -1, -2147483647 - 1}) {
        EXPECT_EQ(MessageOf(code), "");
        EXPECT_STREQ(kbeC_ErrorText(kbeC_ErrorEnm(code)).Text(), "");
    }
}

TEST(kbeC_Assert, AConditionThatHoldsRaisesNothing) {
    for (int code : {0, 60 - 1, 60, -1}) {
        EXPECT_NO_THROW(kbeC_Assert(true, kbeC_ErrorEnm(code)));
    }
}

std::vector<Message> const contentMessages = {
#define KBE(code, text)
#define KBE_CONTENT(code, text) {code, text},
#include "kbeC_messages.inc"
#undef KBE
#undef KBE_CONTENT
};

std::string ContentMessageOf(int code, char const* name) {
    try {
        kbeC_AssertContent(false, kbeC_ContentErrorEnm(code), cow_String(name));
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.File(), source);
        EXPECT_GT(failure.Line(), 0);
        return failure.AsString().Text();
    }
    ADD_FAILURE() << "nothing thrown for " << code;
    return "";
}

TEST(kbeC_AssertContent, PutsTheNameInPlaceOfThePlaceholderVerbatim) {
    ASSERT_EQ(contentMessages.size(), 2u);
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

TEST(kbeC_AssertContent, ACodeOutsideTheTableRaisesAnEmptyText) {
    EXPECT_EQ(ContentMessageOf(2, "x"), "");
    EXPECT_EQ(ContentMessageOf(-1, "x"), "");
}

TEST(kbeC_AssertContent, AConditionThatHoldsRaisesNothing) {
    EXPECT_NO_THROW(kbeC_AssertContent(true, kbeC_ContentErrorEnm(0), cow_String("x")));
    EXPECT_NO_THROW(kbeC_AssertContent(true, kbeC_ContentErrorEnm(2), cow_String("x")));
}

}  // namespace kbeC_assert_test
