#include "ddr_SequenceShortcut.h"

#include "ShortcutFixture.h"
#include "support/RecordingWriteAgent.h"

namespace {

using List = kmaC_MaterialOptionList;
using Numbered = mdl_MapOfCowsRepository<int, klcC_LoadCase>;

/// What the steps of these tests start at; a model has no such members.
struct Lists {
    static inline List* list = nullptr;
    static inline Numbered* repository = nullptr;
};

}  // namespace

template <>
struct ddr_StepTraits<ddr_MemberShortcut<ddr_Model, List, 1>> {
    static constexpr unsigned typeId = 0xEA700001;
    static constexpr omn_FixedString Name() { return "list"; }
    static List const& ConstGet(ddr_Model const&) { return *Lists::list; }
    static List& Get(ddr_Model&) { return *Lists::list; }
};
template <>
struct mdl_RepositoryTraits<Numbered> {
    static constexpr unsigned typeId = 0xEA700002;
    static constexpr char const* name = "test_Numbered";
    static constexpr int version = 203;
};
template <>
struct ddr_ShortcutTraits<Numbered> {
    static constexpr unsigned typeId = 0xEA700003;
    static constexpr unsigned implTypeId = 0xEA700004;
};
template <>
struct ddr_StepTraits<ddr_MemberShortcut<ddr_Model, Numbered, 1>> {
    static constexpr unsigned typeId = 0xEA700005;
    static constexpr omn_FixedString Name() { return "numbered"; }
    static Numbered const& ConstGet(ddr_Model const&) { return *Lists::repository; }
    static Numbered& Get(ddr_Model&) { return *Lists::repository; }
};
template <>
struct ddr_StepTraits<ddr_SequenceShortcut<Numbered, klcC_LoadCase, 1>>
    : ddr_EntryByNumber<Numbered, klcC_LoadCase> {
    static constexpr unsigned typeId = 0xEA700006;
};

namespace ddr_SequenceShortcut_test {

class Sequence : public ShortcutFixture {
protected:
    Sequence() {
        Lists::list = &list;
        Lists::repository = &repository;
    }
    static kmaC_MaterialOptionShortcut ToElement(int index) {
        return kmaC_MaterialOptionShortcut(new kmaC_MaterialOptionListInMullinsEffectShortcut(
            kmaC_MaterialOptionListShortcut(
                new ddr_MemberShortcut<ddr_Model, List, 1>(ddr_ShortcutToModel("bridge"))),
            index));
    }
    static klcC_LoadCaseShortcut ToNumber(int number) {
        return klcC_LoadCaseShortcut(new ddr_SequenceShortcut<Numbered, klcC_LoadCase, 1>(
            ddr_Shortcut<Numbered>(
                new ddr_MemberShortcut<ddr_Model, Numbered, 1>(ddr_ShortcutToModel("bridge"))),
            number));
    }
    using Element = cow_ArrayCOW<kmaC_MaterialOption, cow_Virtual<kmaC_MaterialOption>>;

    List list;
    Numbered repository;
};

TEST_F(Sequence, ThePathEndsInTheIndexInBrackets) {
    EXPECT_STREQ(ToElement(0).Path().Text(), "documents['bridge'].list[0]");
    EXPECT_STREQ(ToElement(12).Path().Text(), "documents['bridge'].list[12]");
    EXPECT_STREQ(ToElement(-1).Path().Text(), "documents['bridge'].list[-1]");
    EXPECT_STREQ(ToElement(12).Name().Text(), "12");
}

TEST_F(Sequence, WritesTheIndexBeforeTheParent) {
    std::string const written = nga_test::WriteLog().Write(ToElement(7));
    EXPECT_NE(written.find("  start 0x238008A\n"
                           "  int -1:index=7\n"
                           "  field -1:parent {\n"),
              std::string::npos)
        << written;
}

TEST_F(Sequence, GetMakesTheElementPrivateAndConstGetDoesNot) {
    list.Append(Element(new kmaC_Density));
    list.Append(Element(new kmaC_Elastic));
    List const before(list);
    EXPECT_EQ(&ToElement(1).ConstGet(session), before.ConstGet(1).GetPtr());
    EXPECT_EQ(list.ConstGet(1).GetPtr(), before.ConstGet(1).GetPtr());

    auto& elastic = static_cast<kmaC_Elastic&>(ToElement(1).Get(session));
    elastic.noTension = true;
    EXPECT_EQ(list.ConstGet(1).GetPtr(), &elastic);
    EXPECT_FALSE(static_cast<kmaC_Elastic const&>(before.ConstGet(1).ConstGet()).noTension);
    EXPECT_EQ(list.ConstGet(0).GetPtr(), before.ConstGet(0).GetPtr());
}

TEST_F(Sequence, AnElementWithoutAValueIsNull) {
    list.Append(Element());
    EXPECT_EQ(ToElement(0).ConstGetPtr(session), nullptr);
    EXPECT_EQ(ToElement(0).GetPtr(session), nullptr);
}

TEST_F(Sequence, AnIndexOutsideTheListEndsTheProcess) {
    list.Append(Element(new kmaC_Density));
    EXPECT_DEATH(ToElement(1).ConstGet(session), "");
    EXPECT_DEATH(ToElement(-1).ConstGet(session), "");
    EXPECT_DEATH(ToElement(1).Get(session), "");
}

TEST_F(Sequence, FollowsTheNumbersOfARepository) {
    repository.Insert(40, klcC_LoadCase());
    Changes();
    EXPECT_EQ(&ToNumber(40).ConstGet(session), repository.ConstGetPtr(40));
    EXPECT_EQ(Changes(), 0u);
    EXPECT_EQ(&ToNumber(40).Get(session), repository.ConstGetPtr(40));
    EXPECT_EQ(Changes(), 1u);
    EXPECT_EQ(ToNumber(41).ConstGetPtr(session), nullptr);
    EXPECT_STREQ(ToNumber(40).Path().Text(), "documents['bridge'].numbered[40]");
}

}  // namespace ddr_SequenceShortcut_test
