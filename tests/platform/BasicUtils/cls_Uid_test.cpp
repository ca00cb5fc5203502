#include "cls_Uid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <set>
#include <string>
#include <thread>
#include <unordered_set>
#include <vector>

namespace cls_Uid_test {

std::string Text(cls_Uid const& uid) {
    char text[33];
    uid.ToText(text);
    return text;
}

TEST(Uid, ADefaultConstructedOneHasNoIdentity) {
    EXPECT_TRUE(cls_Uid().IsNull());
    EXPECT_EQ(cls_Uid(), cls_Uid());
    EXPECT_FALSE(cls_Uid::AllocateUid().IsNull());
}

TEST(Uid, CopiesHaveTheIdentityOfTheirSourceUntilTheyGetANewOne) {
    cls_Uid const source = cls_Uid::AllocateUid();
    cls_Uid copy = source;
    EXPECT_EQ(copy, source);
    cls_Uid assigned;
    assigned = source;
    EXPECT_EQ(assigned, source);
    copy.NewUid();
    EXPECT_NE(copy, source);
    EXPECT_FALSE(copy.IsNull());
    EXPECT_EQ(assigned, source);
}

TEST(Uid, AllocatedOnesAreUniqueBeyondABlock) {
    std::unordered_set<cls_Uid, cls_UidHash> seen;
    for (int i = 0; i < 200000; ++i) ASSERT_TRUE(seen.insert(cls_Uid::AllocateUid()).second) << i;
}

TEST(Uid, AllocatedOnesAreUniqueAcrossThreads) {
    constexpr int threads = 8;
    constexpr int each = 20000;
    std::vector<std::vector<cls_Uid>> made(threads);
    std::vector<std::thread> running;
    for (int t = 0; t < threads; ++t) {
        running.emplace_back([&made, t] {
            for (int i = 0; i < each; ++i) made[t].push_back(cls_Uid::AllocateUid());
        });
    }
    for (std::thread& thread : running) thread.join();
    std::vector<cls_Uid> all;
    for (auto const& some : made) all.insert(all.end(), some.begin(), some.end());
    std::sort(all.begin(), all.end());
    EXPECT_EQ(std::adjacent_find(all.begin(), all.end()), all.end());
    EXPECT_EQ(all.size(), std::size_t{threads} * each);
}

TEST(Uid, OrdersStrictly) {
    cls_Uid const a = cls_Uid::AllocateUid();
    cls_Uid const b = cls_Uid::AllocateUid();
    EXPECT_FALSE(a < a);
    EXPECT_NE(a < b, b < a);
    EXPECT_TRUE(cls_Uid() < a);
}

TEST(Uid, ComesBackFromItsBytes) {
    cls_Uid const uid = cls_Uid::AllocateUid();
    unsigned char bytes[cls_Uid::byteCount];
    uid.ToBytes(bytes);
    EXPECT_EQ(cls_Uid::FromBytes(bytes), uid);
}

TEST(Uid, BytesAreLittleEndianAndTextIsTheSameNumber) {
    unsigned char const bytes[cls_Uid::byteCount] = {0x0f, 0x0e, 0x0d, 0x0c, 0x0b, 0x0a,
                                                     0x09, 0x08, 0x07, 0x06, 0x05, 0x04,
                                                     0x03, 0x02, 0x01, 0xf0};
    cls_Uid const uid = cls_Uid::FromBytes(bytes);
    EXPECT_EQ(Text(uid), "f00102030405060708090a0b0c0d0e0f");
    unsigned char again[cls_Uid::byteCount];
    uid.ToBytes(again);
    EXPECT_TRUE(std::equal(bytes, bytes + cls_Uid::byteCount, again));
}

TEST(Uid, ComesBackFromItsText) {
    cls_Uid const uid = cls_Uid::AllocateUid();
    cls_Uid read;
    ASSERT_TRUE(cls_Uid::FromText(Text(uid).c_str(), read));
    EXPECT_EQ(read, uid);
    ASSERT_TRUE(cls_Uid::FromText("F00102030405060708090A0B0C0D0E0F", read));
    EXPECT_EQ(Text(read), "f00102030405060708090a0b0c0d0e0f");
}

TEST(Uid, RefusesATextThatIsNoIdentity) {
    for (char const* text :
         {"", "f0", "f00102030405060708090a0b0c0d0e0", "g0010203040506070809",
          "f00102030405060708090a0b0c0d0e0f0", "f00102030405060708090a0b0c0d0e0 "}) {
        cls_Uid uid = cls_Uid::AllocateUid();
        EXPECT_FALSE(cls_Uid::FromText(text, uid)) << text;
        EXPECT_TRUE(uid.IsNull()) << text;
    }
}

TEST(Uid, HashesOfNeighboursSpread) {
    std::set<std::size_t> low;
    for (int i = 0; i < 4096; ++i) low.insert(cls_Uid::AllocateUid().Hash() & 0xffff);
    EXPECT_GT(low.size(), 3800u);
}

std::string Prefix() { return Text(cls_Uid::AllocateUid()).substr(0, 16); }

// Also what the next test runs this program for.
TEST(Uid, TheProcessHasAHalfOfItsOwn) {
    std::printf("prefix=%s\n", Prefix().c_str());
    EXPECT_EQ(Prefix(), Prefix());
    EXPECT_NE(Prefix(), "0000000000000000");
}

std::string PrefixOfAnotherProcess() {
    std::string output;
    FILE* pipe = popen(("'" + std::filesystem::read_symlink("/proc/self/exe").string() +
                        "' --gtest_filter=Uid.TheProcessHasAHalfOfItsOwn")
                           .c_str(),
                       "r");
    if (!pipe) return output;
    for (int c; (c = std::fgetc(pipe)) != EOF;) output.push_back(static_cast<char>(c));
    pclose(pipe);
    std::size_t const at = output.find("prefix=");
    return at == std::string::npos ? std::string() : output.substr(at + 7, 16);
}

TEST(Uid, AnotherProcessAllocatesOthers) {
    std::string const first = PrefixOfAnotherProcess();
    std::string const second = PrefixOfAnotherProcess();
    ASSERT_EQ(first.size(), 16u);
    ASSERT_EQ(second.size(), 16u);
    EXPECT_NE(first, second);
    EXPECT_NE(first, Prefix());
}

}  // namespace cls_Uid_test
