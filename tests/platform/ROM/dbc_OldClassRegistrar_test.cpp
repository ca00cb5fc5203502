#include "dbc_OldClassRegistrar.h"

#include <gtest/gtest.h>

#include <new>

#include "nex_TextException.h"

namespace {

int alive = 0;

template <int number>
class OldClass : public dbc_OldClassVersion {
public:
    OldClass() { ++alive; }
    ~OldClass() override { --alive; }
    void InitializeMetadata(cls_ClassRegistrar&) const override {}
};

template <int number>
cow_CountedHld<dbc_OldClassVersion>* Holder() {
    void* const place = mem_OperatorNewTinyThrow(sizeof(cow_CountedHld<dbc_OldClassVersion>));
    return new (place) cow_CountedHld<dbc_OldClassVersion>(new OldClass<number>);
}

TEST(OldClassRegistrar, OwnsWhatItIsGivenAndReplacesAClassThatComesAgain) {
    {
        dbc_OldClassRegistrar registrar;
        registrar.Register(Holder<1>(), 4);
        registrar.Register(Holder<2>(), 5);
        EXPECT_EQ(alive, 2);
        registrar.Register(Holder<1>(), 4);
        EXPECT_EQ(alive, 2);
        EXPECT_EQ(registrar.Entries().size(), 2u);
        EXPECT_EQ(registrar.RegisteredWith(4), 1);
        EXPECT_EQ(registrar.RegisteredWith(5), 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(OldClassRegistrar, RefusesTheDomainOfCopiesInMemory) {
    dbc_OldClassRegistrar registrar;
    for (unsigned mask : {2u, 3u, 6u, 7u})
        EXPECT_THROW(registrar.Register(Holder<3>(), mask), nex_TextException) << mask;
    EXPECT_EQ(alive, 0);
    EXPECT_TRUE(registrar.Entries().empty());
}

}  // namespace
