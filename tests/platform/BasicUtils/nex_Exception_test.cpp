#include "nex_Exception.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "BasicUtils.h"
#include "nex_TextException.h"

namespace nex_Exception_test {

std::string DeveloperReportOf(nex_Exception& exception, char const* file, int line) {
    try {
        exception.Throw(file, line);
    } catch (nex_Exception const& caught) {
        return caught.DeveloperReport().Text();
    }
}

TEST(TextException, ThrowRaisesTheMostDerivedTypeWithFileAndLine) {
    nex_TextException failure(atr_raw("No."));
    nex_Exception& base = failure;
    bool caughtIt = false;
    try {
        base.Throw("some/file", 17);
    } catch (nex_TextException const& caught) {
        caughtIt = true;
        EXPECT_NE(&caught, &failure);
        EXPECT_STREQ(caught.File(), "some/file");
        EXPECT_EQ(caught.Line(), 17);
        EXPECT_STREQ(caught.AsString().Text(), "No.");
    }
    EXPECT_TRUE(caughtIt);
}

TEST(TextException, HasNoThrowSiteBeforeItIsThrown) {
    nex_TextException const failure(atr_raw("No."));
    EXPECT_EQ(failure.File(), nullptr);
    EXPECT_EQ(failure.Line(), 0);
    std::string const report = failure.DeveloperReport().Text();
    EXPECT_NE(report.find("No."), std::string::npos);
}

TEST(TextException, OutlivesTheObjectThatWasThrown) {
    std::unique_ptr<nex_Exception> kept;
    try {
        std::string const message = "text %s of %d a temporary";
        nex_TextException(atr_raw(message.c_str())).Throw("f", 1);
    } catch (nex_Exception const& caught) {
        kept.reset(caught.Copy());
    }
    ASSERT_NE(kept, nullptr);
    EXPECT_STREQ(kept->UserReport().Text(), "text %s of %d a temporary");
    EXPECT_STREQ(kept->File(), "f");
    EXPECT_EQ(kept->DynTypeId(), nex_TextException::TypeId());
}

TEST(TextException, ReportsToTheUserWhatItSays) {
    nex_TextException const failure(atr_raw("The value is bad."));
    EXPECT_STREQ(failure.UserReport().Text(), "The value is bad.");
    EXPECT_STREQ(nex_TextException(atr_String()).UserReport().Text(), "");
}

TEST(TextException, ReportsToTheDeveloperClassFileLineAndMessage) {
    int count = 0;
    UTI_BasicUtils_initialize(count);
    nex_TextException failure(atr_raw("50% of %s is %d"));
    std::string const report = DeveloperReportOf(failure, "generated/%s/file", 1234);
    EXPECT_NE(report.find("nex_TextException"), std::string::npos) << report;
    EXPECT_NE(report.find("generated/%s/file"), std::string::npos) << report;
    EXPECT_NE(report.find("1234"), std::string::npos) << report;
    EXPECT_NE(report.find("50% of %s is %d"), std::string::npos) << report;
    UTI_BasicUtils_finalize(count);
}

// A class that no type table knows, as all are before the libraries are up.
class UnknownFailure : public nex_TextException {
public:
    using nex_TextException::nex_TextException;
    unsigned DynTypeId() const override { return 0xfff00001; }
    [[noreturn]] void Propagate() const override { throw UnknownFailure(*this); }
    nex_Exception* Copy() const override { return new UnknownFailure(*this); }
};

TEST(TextException, ReportsAClassThatNoTableKnows) {
    UnknownFailure failure(atr_raw("x"));
    std::string const report = DeveloperReportOf(failure, "file", 3);
    EXPECT_NE(report.find("UnknownFailure"), std::string::npos) << report;
}

TEST(TextException, LeavesNothingBehindWhenThrownOften) {
    for (int i = 0; i < 1000; ++i) {
        EXPECT_THROW(nex_TextException(atr_raw("again")).Throw("f", i), nex_TextException);
    }
}

}  // namespace nex_Exception_test
