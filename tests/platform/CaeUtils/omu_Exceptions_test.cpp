#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "nex_TextException.h"
#include "omu_AccessErrorException.h"
#include "omu_ValueErrorException.h"
#include "support/RecordingWriteAgent.h"

namespace omu_Exceptions_test {

template <class E>
std::unique_ptr<E> Caught(E failure) {
    try {
        failure.Throw("generated/include/some", 109);
    } catch (nex_CommandException const& caught) {
        return std::unique_ptr<E>(dynamic_cast<E*>(caught.Copy()));
    }
}

TEST(ValueErrorException, IsRaisedAsItselfWithItsMessage) {
    auto const caught = Caught(omu_ValueErrorException(atr_raw("Not allowed.")));
    ASSERT_NE(caught, nullptr);
    EXPECT_STREQ(caught->AsString().Text(), "Not allowed.");
    EXPECT_STREQ(caught->UserReport().Text(), "Not allowed.");
    EXPECT_STREQ(caught->JournalMessage().Text(), "Not allowed.");
    EXPECT_STREQ(caught->PythonType().Text(), "ValueError");
    EXPECT_STREQ(caught->File(), "generated/include/some");
    EXPECT_EQ(caught->Line(), 109);
    EXPECT_EQ(caught->DynTypeId(), omu_ValueErrorException::TypeId());
    std::string const report = caught->DeveloperReport().Text();
    EXPECT_NE(report.find("omu_ValueErrorException"), std::string::npos) << report;
    EXPECT_NE(report.find("109"), std::string::npos) << report;
}

TEST(AccessErrorException, IsRaisedAsItselfWithItsKey) {
    auto const caught = Caught(omu_AccessErrorException(cow_String("st%sel 100%")));
    ASSERT_NE(caught, nullptr);
    EXPECT_STREQ(caught->AsString().Text(), "st%sel 100%");
    EXPECT_STREQ(caught->UserReport().Text(), "st%sel 100%");
    EXPECT_STREQ(caught->JournalMessage().Text(), "st%sel 100%");
    EXPECT_STREQ(caught->Key().Text(), "st%sel 100%");
    EXPECT_STREQ(caught->PythonType().Text(), "KeyError");
    EXPECT_EQ(caught->DynTypeId(), omu_AccessErrorException::TypeId());
}

TEST(AccessErrorException, AnEmptyKeyGivesAnEmptyText) {
    auto const caught = Caught(omu_AccessErrorException(cow_String()));
    ASSERT_NE(caught, nullptr);
    EXPECT_STREQ(caught->AsString().Text(), "");
}

TEST(Exceptions, WriteTheLevelsOfTheirClass) {
    nga_test::WriteLog log;
    EXPECT_EQ(log.Write(nex_TextException(atr_raw("x"))),
              "start 0x230004\nbase 0x230003 {\n  start 0x230003\n}\n");
    std::string const command =
        "base 0x230005 {\n  start 0x230005\n  base 0x230003 {\n    start 0x230003\n  }\n}\n";
    EXPECT_EQ(log.Write(omu_ValueErrorException(atr_raw("x"))), "start 0xA000F\n" + command);
    EXPECT_EQ(log.Write(omu_AccessErrorException(cow_String("x"))), "start 0xA0010\n" + command);
}

}  // namespace omu_Exceptions_test
