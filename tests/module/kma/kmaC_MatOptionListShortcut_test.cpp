#include "kmaC_MatOptionListShortcut.h"

#include "ShortcutFixture.h"
#include "support/RecordingWriteAgent.h"

namespace kmaC_MatOptionListShortcut_test {

class OptionListShortcut : public ShortcutFixture {
protected:
    OptionListShortcut() { Materials().Insert("rubber", kmaC_Material()); }

    template <class Step>
    static kmaC_MaterialOptionListShortcut ToList(kmaC_MaterialOptionShortcut const& option) {
        return kmaC_MaterialOptionListShortcut(new Step(option));
    }
    template <class Step>
    void ExpectRefused(kmaC_MaterialOptionShortcut const& option, char const* text) {
        kmaC_MaterialOptionListShortcut const list = ToList<Step>(option);
        EXPECT_EQ(TextOf([&] { list.ConstGet(session); }), text);
        EXPECT_EQ(TextOf([&] { list.Get(session); }), text);
        kmaC_MaterialOptionShortcut const element(
            new kmaC_MaterialOptionListInMullinsEffectShortcut(list, 0));
        EXPECT_EQ(TextOf([&] { element.ConstGet(session); }), text);
        EXPECT_EQ(TextOf([&] { element.Get(session); }), text);
    }
    void ExpectAllRefused(kmaC_MaterialOptionShortcut const& option) {
        ExpectRefused<kmaC_UniaxialTestsListInMaterialOptionShortcut>(
            option, "uniaxial tests exists only for Mullins Effect object.");
        ExpectRefused<kmaC_BiaxialTestsListInMaterialOptionShortcut>(
            option, "biaxial tests exists only for Mullins Effect object.");
        ExpectRefused<kmaC_PlanarTestsListInMaterialOptionShortcut>(
            option, "planar tests exists only for Mullins Effect object.");
    }
};

/// A step that reaches an option whatever its class is: the one that scripts cannot name.
class ToMullinsEffect final : public kmaC_MaterialOptionIMPLSC {
public:
    explicit ToMullinsEffect(kmaC_MullinsEffect& option) : m_option(&option) {}
    cow_String Name() const override { return cow_String("mullinsEffect"); }
    cow_String Path() const override { return Name(); }
    ToMullinsEffect* Copy() const override { return new ToMullinsEffect(*this); }
    kmaC_MaterialOption const& ConstGet(ddr_Container const&) const override { return *m_option; }
    kmaC_MaterialOption& Get(ddr_Container&) const override { return *m_option; }

private:
    kmaC_MullinsEffect* m_option;
};

TEST_F(OptionListShortcut, TheStepsToTheListsFailOnEveryOptionAlsoOnTheOneThatHasThem) {
    kmaC_MullinsEffect mullins;
    cow_ArrayCOW<kmaC_MaterialOption, cow_Virtual<kmaC_MaterialOption>> const test(
        new kmaC_UniaxialTestData);
    mullins.uniaxialTests.Append(test);
    mullins.biaxialTests.Append(test);
    mullins.planarTests.Append(test);
    ExpectAllRefused(kmaC_MaterialOptionShortcut(new ToMullinsEffect(mullins)));

    Materials().Get("rubber").elastic = new kmaC_Elastic;
    ExpectAllRefused(ToOption("rubber", "elastic"));
    ExpectAllRefused(ToOption("rubber", "density"));
}

TEST_F(OptionListShortcut, AFailureOfTheStepsBeforeComesFirst) {
    EXPECT_EQ(TextOf([&] {
                  ToList<kmaC_UniaxialTestsListInMaterialOptionShortcut>(
                      ToOption("rubber", "mullinsEffect"))
                      .ConstGet(session);
              }),
              "Unknown material option");
}

TEST_F(OptionListShortcut, NamesPathsCopiesAndPersistenceWorkAsInAnyStep) {
    kmaC_MaterialOptionShortcut const option = ToOption("rubber", "elastic");
    std::string const before = option.Path().Text();
    kmaC_MaterialOptionListShortcut const lists[] = {
        ToList<kmaC_UniaxialTestsListInMaterialOptionShortcut>(option),
        ToList<kmaC_BiaxialTestsListInMaterialOptionShortcut>(option),
        ToList<kmaC_PlanarTestsListInMaterialOptionShortcut>(option)};
    char const* const names[] = {"uniaxialTests", "biaxialTests", "planarTests"};
    char const* const starts[] = {"  start 0x238008B\n", "  start 0x238008C\n",
                                  "  start 0x238008D\n"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_STREQ(lists[i].Name().Text(), names[i]);
        EXPECT_EQ(lists[i].Path().Text(), before + "." + names[i]);
        kmaC_MaterialOptionListShortcut const copy(lists[i].StepHandle().ConstGet().Copy());
        EXPECT_TRUE(copy == lists[i]);
        std::string const written = nga_test::WriteLog().Write(lists[i]);
        EXPECT_NE(written.find("field -1:impl with handle {\n" + std::string(starts[i])),
                  std::string::npos)
            << written;
        kmaC_MaterialOptionShortcut const element(
            new kmaC_MaterialOptionListInMullinsEffectShortcut(lists[i], 2));
        EXPECT_EQ(element.Path().Text(), before + "." + names[i] + "[2]");
    }
}

}  // namespace kmaC_MatOptionListShortcut_test
