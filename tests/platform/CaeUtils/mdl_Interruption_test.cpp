#include "mdl_Interruption.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

int asked = 0;
struct Enough {};

/// How often a walk over so many objects asks.
int AskedBy(int objects) {
    asked = 0;
    for (int i = 0; i < objects; ++i) mdl_Interruption::Poll();
    return asked;
}

class Interruption : public testing::Test {
protected:
    Interruption() : m_former(mdl_Interruption::Set([] { ++asked; })) {}
    ~Interruption() override { mdl_Interruption::Set(m_former); }

private:
    mdl_Interruption::Question m_former;
};

TEST_F(Interruption, AWalkAsksNowAndThen) {
    int const often = AskedBy(10000);
    EXPECT_GE(often, 10);
    EXPECT_LE(often, 1000);
}

TEST_F(Interruption, NobodyIsAskedWithoutAQuestion) {
    mdl_Interruption::Set(nullptr);
    EXPECT_EQ(AskedBy(10000), 0);
}

TEST_F(Interruption, SettingGivesTheFormer) {
    auto const question = [] { asked += 2; };
    mdl_Interruption::Set(question);
    EXPECT_EQ(mdl_Interruption::Set(nullptr), static_cast<mdl_Interruption::Question>(question));
    EXPECT_EQ(mdl_Interruption::Set(nullptr), nullptr);
}

TEST_F(Interruption, WhatTheQuestionThrowsEndsTheWalkAndTheNextAsksAgain) {
    mdl_Interruption::Set([] { throw Enough(); });
    EXPECT_THROW(AskedBy(10000), Enough);
    EXPECT_THROW(AskedBy(10000), Enough);
}

TEST_F(Interruption, AnotherThreadIsNotAsked) {
    int there = -1;
    std::thread([&] { there = AskedBy(10000); }).join();
    EXPECT_EQ(there, 0);
}

}  // namespace
