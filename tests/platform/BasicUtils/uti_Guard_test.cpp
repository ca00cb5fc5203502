#include "uti_Guard.h"

#include <gtest/gtest.h>

#include "BasicUtils.h"
#include "CaeUtils.h"
#include "DiagnosticExtractor.h"
#include "ROM.h"
#include "RfmInterface.h"

namespace uti_Guard_test {

TEST(Guard, OnlyTheFirstRaiseAndTheLastLowerAct) {
    uti_Guard guard;
    int count = 3;
    EXPECT_TRUE(guard.Raise(count));
    EXPECT_EQ(count, 4);
    EXPECT_FALSE(guard.Raise(count));
    EXPECT_FALSE(guard.Lower(count));
    EXPECT_EQ(count, 4);
    EXPECT_TRUE(guard.Lower(count));
    EXPECT_EQ(count, 3);
    EXPECT_TRUE(guard.Raise(count));
    EXPECT_EQ(count, 4);
}

TEST(Guard, ALowerTooManyActsNotAndIsOwedByTheNextRaise) {
    uti_Guard guard;
    int count = 0;
    EXPECT_FALSE(guard.Lower(count));
    EXPECT_EQ(count, 0);
    EXPECT_FALSE(guard.Raise(count));
    EXPECT_TRUE(guard.Raise(count));
    EXPECT_EQ(count, 1);
}

TEST(Guard, EveryLibraryCountsItselfOnce) {
    struct Library {
        void (*initialize)(int&);
        void (*finalize)(int&);
    };
    Library const libraries[] = {
        {UTI_BasicUtils_initialize, UTI_BasicUtils_finalize},
        {UTI_CaeUtils_initialize, UTI_CaeUtils_finalize},
        {UTI_RfmInterface_initialize, UTI_RfmInterface_finalize},
        {DDB_ROM_initialize, DDB_ROM_finalize},
        {DDB_DiagnosticExtractor_initialize, DDB_DiagnosticExtractor_finalize},
    };
    int count = 0;
    for (Library const& library : libraries) {
        int const before = count;
        library.initialize(count);
        library.initialize(count);
        EXPECT_EQ(count, before + 1);
    }
    for (Library const& library : libraries) {
        int const before = count;
        library.finalize(count);
        EXPECT_EQ(count, before);
        library.finalize(count);
        EXPECT_EQ(count, before - 1);
    }
    EXPECT_EQ(count, 0);
}

}  // namespace uti_Guard_test
