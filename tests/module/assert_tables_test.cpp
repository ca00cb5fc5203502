#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

// The error tables of all modules against transcriptions of them, and the functions that raise
// their texts.

namespace assert_tables_test {

struct Message {
    int code;
    char const* text;
};

struct Module {
    char const* prefix;
    int line;  ///< at which it raises; 0 where none is fixed
    std::size_t size;
    std::vector<Message> texts;
    void (*raise)(bool condition, int code);
    atr_String (*text)(int code);
};

struct ContentModule {
    char const* prefix;
    std::size_t size;
    std::vector<Message> texts;
    void (*raise)(bool condition, int code, cow_String const& content);
};

#define CONTENT(code, text)
#define TEXT(code, text) {code, text},
std::vector<Message> const kam = {
#include "kam/kamC_messages.inc"
};
std::vector<Message> const kbe = {
#include "kbe/kbeC_messages.inc"
};
std::vector<Message> const kbp = {
#include "kbp/kbpC_messages.inc"
};
std::vector<Message> const kfl = {
#include "kfl/kflC_messages.inc"
};
std::vector<Message> const klc = {
#include "klc/klcC_messages.inc"
};
std::vector<Message> const kma = {
#include "kma/kmaC_messages.inc"
};
#undef CONTENT
#undef TEXT
#define TEXT(code, text)
#define CONTENT(code, text) {code, text},
std::vector<Message> const kbeContent = {
#include "kbe/kbeC_messages.inc"
};
std::vector<Message> const klcContent = {
#include "klc/klcC_messages.inc"
};
#undef CONTENT
#undef TEXT

#define RAISE(function, Enum) [](bool condition, int code) { function(condition, Enum(code)); }
#define CODE_TEXT(function, Enum) [](int code) { return function(Enum(code)); }

std::vector<Module> const modules = {
    {"kam", 84, 23, kam, RAISE(kamC_Assert, int), CODE_TEXT(kamC_ErrorText, int)},
    {"kbe", 0, 60, kbe, RAISE(kbeC_Assert, kbeC_ErrorEnm),
     CODE_TEXT(kbeC_ErrorText, kbeC_ErrorEnm)},
    {"kbp", 116, 39, kbp, RAISE(kbpC_Assert, kbpC_ErrorEnm),
     CODE_TEXT(kbpC_ErrorText, kbpC_ErrorEnm)},
    {"kfl", 48, 7, kfl, RAISE(kflC_Assert, int), CODE_TEXT(kflC_ErrorText, int)},
    {"klc", 0, 6, klc, RAISE(klcC_Assert, klcC_ErrorEnm), CODE_TEXT(klcC_ErrorText, klcC_ErrorEnm)},
    {"kma", 0, 47, kma, RAISE(kmaC_Assert, kmaC_ErrorEnm),
     CODE_TEXT(kmaC_ErrorText, kmaC_ErrorEnm)},
};

std::vector<ContentModule> const contentModules = {
    {"kbe", 2, kbeContent,
     [](bool condition, int code, cow_String const& content) {
         kbeC_AssertContent(condition, kbeC_ContentErrorEnm(code), content);
     }},
    {"klc", 6, klcContent,
     [](bool condition, int code, cow_String const& content) {
         klcC_AssertLoadCaseContent(condition, klcC_CompoundErrorEnm(code), content);
     }},
};

/// What the action raises, at the place of a module's assertions.
template <class Action>
std::string Raised(char const* prefix, int line, Action action) {
    try {
        action();
    } catch (nex_TextException const& failure) {
        std::string const module = prefix;
        EXPECT_EQ(failure.File(),
                  "generated/module/" + module + "/com/impl/" + module + "C_assert");
        EXPECT_EQ(failure.Line(), line != 0 ? line : failure.Line());
        EXPECT_GT(failure.Line(), 0);
        EXPECT_STREQ(failure.UserReport().Text(), failure.AsString().Text());
        return failure.UserReport().Text();
    }
    ADD_FAILURE() << "nothing thrown";
    return "";
}

TEST(ModuleAssert, RaisesTheTextOfEveryCode) {
    for (Module const& module : modules) {
        SCOPED_TRACE(module.prefix);
        ASSERT_EQ(module.texts.size(), module.size);
        for (std::size_t i = 0; i < module.size; ++i) {
            int const code = module.texts[i].code;
            EXPECT_EQ(code, static_cast<int>(i));
            EXPECT_EQ(Raised(module.prefix, module.line, [&] { module.raise(false, code); }),
                      module.texts[i].text);
            EXPECT_STREQ(module.text(code).Text(), module.texts[i].text);
        }
    }
}

TEST(ModuleAssert, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (Module const& module : modules) {
        SCOPED_TRACE(module.prefix);
        int const size = static_cast<int>(module.size);
        for (int code : {size, size + 1, 1000, 2147483647, -1, -2147483647 - 1}) {
            EXPECT_EQ(Raised(module.prefix, module.line, [&] { module.raise(false, code); }), "");
            EXPECT_STREQ(module.text(code).Text(), "");
        }
    }
}

TEST(ModuleAssert, AConditionThatHoldsRaisesNothing) {
    for (Module const& module : modules)
        for (int code : {0, static_cast<int>(module.size) - 1, static_cast<int>(module.size), -1})
            EXPECT_NO_THROW(module.raise(true, code)) << module.prefix;
}

TEST(ModuleAssertContent, PutsTheNameInPlaceOfThePlaceholderVerbatim) {
    for (ContentModule const& module : contentModules) {
        SCOPED_TRACE(module.prefix);
        ASSERT_EQ(module.texts.size(), module.size);
        for (char const* name : {"x", "", "a %s b", "%d", "%1", "100%", "\"quoted\""}) {
            for (std::size_t i = 0; i < module.size; ++i) {
                int const code = module.texts[i].code;
                EXPECT_EQ(code, static_cast<int>(i));
                std::string expected = module.texts[i].text;
                std::size_t const at = expected.find("%s");
                ASSERT_NE(at, std::string::npos);
                expected.replace(at, 2, name);
                EXPECT_EQ(Raised(module.prefix, 0, [&] { module.raise(false, code, name); }),
                          expected);
            }
        }
    }
}

TEST(ModuleAssertContent, ACodeOutsideTheTableRaisesAnEmptyText) {
    for (ContentModule const& module : contentModules)
        for (int code : {static_cast<int>(module.size), -1})
            EXPECT_EQ(Raised(module.prefix, 0, [&] { module.raise(false, code, "x"); }), "");
}

TEST(ModuleAssertContent, AConditionThatHoldsRaisesNothing) {
    for (ContentModule const& module : contentModules)
        for (int code : {0, static_cast<int>(module.size)})
            EXPECT_NO_THROW(module.raise(true, code, "x"));
}

}  // namespace assert_tables_test
