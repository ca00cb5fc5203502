#include "kmaC_MaterialOptionShortcut.h"

#include "ShortcutFixture.h"

namespace kmaC_MaterialOptionShortcut_test {

struct Text {
    int code;
    char const* text;
};
Text const texts[] = {
#define KMA_TEXT(code, text) {code, text},
#include "kmaC_shortcut_texts.inc"
#undef KMA_TEXT
};

struct Key {
    char const* key;
    char const* member;
};
Key const keys[] = {
#define KMA_KEY(key, member) {key, member},
#include "kmaC_option_keys.inc"
#undef KMA_KEY
};

struct Suboption {
    char const* parent;
    unsigned parentType;
    char const* constGetKey;
    char const* getKey;
    char const* member;
    int unknownKey;  ///< -1: yields the parent
};
Suboption const suboptions[] = {
#define KMA_SUBOPTION(parent, type, constGetKey, getKey, member, code) \
    {parent, type, constGetKey, getKey, member, code},
#include "kmaC_suboption_keys.inc"
#undef KMA_SUBOPTION
};

class OptionShortcut : public ShortcutFixture {
protected:
    OptionShortcut() { Materials().Insert("steel", kmaC_Material()); }

    kmaC_Material& Steel() { return Materials().Get("steel"); }
    /// Puts a new default object into a member and returns it.
    static void* Fill(void* owner, mdl_Field const& member) {
        void* const object = member.Type().Held()->Create();
        member.Type().Adopt(member.At(owner), object);
        return object;
    }
    /// The member of a material that holds options of a class, and its key.
    static mdl_Field const& MemberFor(unsigned typeId) {
        for (mdl_Field const& member : kmaC_Material::Description().Fields())
            if (member.Type().Held() && member.Type().Held()->TypeId() == typeId) return member;
        throw std::runtime_error("no member of that class");
    }
    static std::string TextOfCode(int code) { return kmaC_ShortcutErrorText(code).Text(); }
};

TEST_F(OptionShortcut, TheTableOfTextsHoldsEveryCode) {
    ASSERT_EQ(std::size(texts), 26u);
    for (int code = 0; code < 26; ++code) {
        EXPECT_EQ(texts[code].code, code);
        EXPECT_STREQ(kmaC_ShortcutErrorText(code).Text(), texts[code].text);
    }
    for (int code : {-1, 26, 1000, 2147483647, -2147483647 - 1})
        EXPECT_STREQ(kmaC_ShortcutErrorText(code).Text(), "");
}

TEST_F(OptionShortcut, EachKeySelectsItsMember) {
    ASSERT_EQ(std::size(keys), 65u);
    for (Key const& key : keys) {
        SCOPED_TRACE(key.key);
        kmaC_MaterialOptionShortcut const shortcut = ToOption("steel", key.key);
        mdl_Field const* const member = kmaC_Material::Description().FindField(key.member);
        ASSERT_NE(member, nullptr);
        EXPECT_STREQ(member->Script(), key.key);
        EXPECT_EQ(shortcut.ConstGetPtr(session), nullptr);
        EXPECT_EQ(shortcut.GetPtr(session), nullptr);
        void* const object = Fill(&Steel(), *member);
        EXPECT_EQ(shortcut.ConstGetPtr(session), object);
        EXPECT_EQ(shortcut.GetPtr(session), object);
        member->Type().Clear(member->At(&Steel()));
    }
}

TEST_F(OptionShortcut, OfTheOptionMembersMullinsEffectAloneHasNoKey) {
    int without = 0;
    for (mdl_Field const& member : kmaC_Material::Description().Fields()) {
        if (!member.Type().Held()) continue;
        void* const object = Fill(&Steel(), member);
        kmaC_MaterialOptionShortcut const shortcut = ToOption("steel", member.Script());
        if (std::string("mullinsEffect") == member.Name()) {
            ++without;
            EXPECT_EQ(TextOf([&] { shortcut.ConstGet(session); }), "Unknown material option");
            EXPECT_EQ(TextOf([&] { shortcut.Get(session); }), "Unknown material option");
        } else {
            EXPECT_EQ(shortcut.ConstGetPtr(session), object) << member.Name();
        }
    }
    EXPECT_EQ(without, 1);
}

TEST_F(OptionShortcut, KeysAreScriptNamesComparedExactly) {
    Fill(&Steel(), *kmaC_Material::Description().FindField("foam"));
    Fill(&Steel(), *kmaC_Material::Description().FindField("elastic"));
    EXPECT_NE(ToOption("steel", "crushableFoam").ConstGetPtr(session), nullptr);
    for (char const* key : {"foam", "Elastic", "elastic ", " elastic", "elasti", "elasticc", "",
                            "description", "materialIdentifier", "name"}) {
        EXPECT_EQ(TextOf([&] { ToOption("steel", key).ConstGet(session); }),
                  "Unknown material option")
            << key;
        EXPECT_EQ(TextOf([&] { ToOption("steel", key).Get(session); }), "Unknown material option")
            << key;
    }
    EXPECT_EQ(TextOf([&] { ToOption("steel", cow_String("elastic\0x", 9)).ConstGet(session); }),
              "Unknown material option");
}

TEST_F(OptionShortcut, AnAbsentOptionIsAReferenceToNullAndNoFailure) {
    kmaC_MaterialOption const* const address = &ToOption("steel", "elastic").ConstGet(session);
    EXPECT_EQ(address, nullptr);
    EXPECT_EQ(ToOption("steel", "elastic").ConstGetPtr(session), nullptr);
    EXPECT_EQ(ToSuboption(ToOption("steel", "elastic"), "failStress").ConstGetPtr(session),
              nullptr);
    EXPECT_EQ(ToSuboption(ToOption("steel", "elastic"), "failStress").GetPtr(session), nullptr);
}

TEST_F(OptionShortcut, TheKeyStandsInThePathAsALiteral) {
    EXPECT_STREQ(ToOption("steel", "elastic").Path().Text(),
                 "documents['bridge'].materials['steel'].options['elastic']");
    EXPECT_STREQ(ToOption("steel", "it's").Path().Text(),
                 "documents['bridge'].materials['steel'].options['it\\'s']");
    EXPECT_STREQ(ToOption("steel", "elastic").Name().Text(), "elastic");
    EXPECT_STREQ(ToSuboption(ToOption("steel", "elastic"), "failStress").Path().Text(),
                 "documents['bridge'].materials['steel'].options['elastic'].options['failStress']");
}

TEST_F(OptionShortcut, GetDetachesTheOptionTooAndConstGetDoesNot) {
    Steel().elastic = new kmaC_Elastic;
    Steel().density = new kmaC_Density;
    Steel().elastic.Get().failStress = new kmaC_FailStress;
    kmaC_MaterialContainer const before(Materials());
    kmaC_Material const& shared = before.ConstGet("steel");
    kmaC_MaterialOptionShortcut const failStress =
        ToSuboption(ToOption("steel", "elastic"), "failStress");

    EXPECT_EQ(failStress.ConstGetPtr(session), shared.elastic.ConstGet().failStress.GetPtr());
    EXPECT_EQ(Materials().ConstGetPtr("steel"), &shared);

    static_cast<kmaC_FailStress&>(failStress.Get(session)).dependencies = 3;
    kmaC_Material const& own = Materials().ConstGet("steel");
    EXPECT_NE(&own, &shared);
    EXPECT_NE(own.elastic.GetPtr(), shared.elastic.GetPtr());
    EXPECT_EQ(own.density.GetPtr(), shared.density.GetPtr());
    EXPECT_EQ(own.elastic.ConstGet().failStress.ConstGet().dependencies, 3);
    EXPECT_EQ(shared.elastic.ConstGet().failStress.ConstGet().dependencies, 0);
}

TEST_F(OptionShortcut, AFailureLeavesTheObjectsAsTheyAre) {
    Steel().elastic = new kmaC_Elastic;
    kmaC_Material const before(Steel());
    EXPECT_EQ(TextOf([&] { ToOption("steel", "none").Get(session); }), "Unknown material option");
    EXPECT_EQ(TextOf([&] { ToSuboption(ToOption("steel", "elastic"), "none").Get(session); }),
              TextOfCode(12));
    EXPECT_TRUE(kmaC_Material::Description().Same(&before, &Steel()));
}

TEST_F(OptionShortcut, GivesTheParentToo) {
    Steel().elastic = new kmaC_Elastic;
    kmaC_MaterialOptionInMaterialOptionShortcut const step(ToOption("steel", "elastic"), "none");
    EXPECT_EQ(&step.ConstGetParent(session), Steel().elastic.GetPtr());
    EXPECT_EQ(&step.GetParent(session), Steel().elastic.GetPtr());
}

TEST_F(OptionShortcut, EachSuboptionKeySelectsItsMemberByTheClassOfTheParent) {
    ASSERT_EQ(std::size(suboptions), 60u);
    for (Suboption const& row : suboptions) {
        SCOPED_TRACE(std::string(row.parent) + " " + row.member);
        mdl_Description const* const type = mdl_Description::Find(row.parentType);
        ASSERT_NE(type, nullptr);
        EXPECT_STREQ(type->Name(), row.parent);
        mdl_Field const& holder = MemberFor(row.parentType);
        void* const parent = Fill(&Steel(), holder);
        kmaC_MaterialOptionShortcut const option = ToOption("steel", holder.Script());
        kmaC_MaterialOptionShortcut const reading = ToSuboption(option, row.constGetKey);
        kmaC_MaterialOptionShortcut const writing = ToSuboption(option, row.getKey);
        EXPECT_EQ(reading.ConstGetPtr(session), nullptr);
        EXPECT_EQ(writing.GetPtr(session), nullptr);
        mdl_Field const* const member = type->FindField(row.member);
        ASSERT_NE(member, nullptr);
        void* const object = Fill(parent, *member);
        EXPECT_EQ(reading.ConstGetPtr(session), object);
        EXPECT_EQ(writing.GetPtr(session), object);
        holder.Type().Clear(holder.At(&Steel()));
    }
}

TEST_F(OptionShortcut, AnUnknownSuboptionKeyRaisesTheTextOfTheParentsClass) {
    for (Suboption const& row : suboptions) {
        SCOPED_TRACE(row.parent);
        mdl_Field const& holder = MemberFor(row.parentType);
        void* const parent = Fill(&Steel(), holder);
        for (char const* key : {"none", "", "elastic"}) {
            kmaC_MaterialOptionShortcut const shortcut =
                ToSuboption(ToOption("steel", holder.Script()), key);
            if (row.unknownKey < 0) {
                EXPECT_EQ(shortcut.ConstGetPtr(session), parent);
                EXPECT_EQ(shortcut.GetPtr(session), parent);
            } else {
                EXPECT_EQ(TextOf([&] { shortcut.ConstGet(session); }), TextOfCode(row.unknownKey));
                EXPECT_EQ(TextOf([&] { shortcut.Get(session); }), TextOfCode(row.unknownKey));
            }
        }
    }
}

TEST_F(OptionShortcut, AClassWithoutSuboptionsRefusesEveryKey) {
    int checked = 0;
    for (mdl_Field const& member : kmaC_Material::Description().Fields()) {
        if (!member.Type().Held() || std::string("mullinsEffect") == member.Name()) continue;
        bool listed = false;
        for (Suboption const& row : suboptions)
            listed = listed || row.parentType == member.Type().Held()->TypeId();
        if (listed) continue;
        ++checked;
        Fill(&Steel(), member);
        for (char const* key : {"potential", "failStress", ""}) {
            kmaC_MaterialOptionShortcut const shortcut =
                ToSuboption(ToOption("steel", member.Script()), key);
            EXPECT_EQ(TextOf([&] { shortcut.ConstGet(session); }),
                      "Material option has no suboptions")
                << member.Name();
            EXPECT_EQ(TextOf([&] { shortcut.Get(session); }), "Material option has no suboptions")
                << member.Name();
        }
    }
    EXPECT_EQ(checked, 31);
}

TEST_F(OptionShortcut, ThePotentialOfViscousHasNoPath) {
    Steel().viscous = new kmaC_Viscous;
    Steel().viscous.Get().potential = new kmaC_Potential;
    kmaC_MaterialOptionShortcut const shortcut =
        ToSuboption(ToOption("steel", "viscous"), "potential");
    EXPECT_EQ(TextOf([&] { shortcut.ConstGet(session); }), "Material option has no suboptions");
    EXPECT_EQ(TextOf([&] { shortcut.Get(session); }), "Material option has no suboptions");
}

TEST_F(OptionShortcut, ASecondSuboptionKeyFindsNoSuboptions) {
    Steel().elastic = new kmaC_Elastic;
    Steel().elastic.Get().failStress = new kmaC_FailStress;
    kmaC_MaterialOptionShortcut const deep =
        ToSuboption(ToSuboption(ToOption("steel", "elastic"), "failStress"), "failStrain");
    EXPECT_EQ(TextOf([&] { deep.ConstGet(session); }), "Material option has no suboptions");
}

TEST_F(OptionShortcut, TheHardeningOfFoamHasOneKeyForReadingAndAnotherForWriting) {
    Steel().foam = new kmaC_Foam;
    Steel().foam.Get().foamHardening = new kmaC_FoamHardening;
    kmaC_MaterialOption const* const hardening = Steel().foam.ConstGet().foamHardening.GetPtr();
    kmaC_MaterialOptionShortcut const foam = ToOption("steel", "crushableFoam");
    EXPECT_EQ(ToSuboption(foam, "foamHardening").GetPtr(session), hardening);
    EXPECT_EQ(TextOf([&] { ToSuboption(foam, "foamHardening").ConstGet(session); }),
              "Unknown material option name for foam");
    EXPECT_EQ(ToSuboption(foam, "crushableFoamHardening").ConstGetPtr(session), hardening);
    EXPECT_EQ(TextOf([&] { ToSuboption(foam, "crushableFoamHardening").Get(session); }),
              "Unknown material option name for foam");
}

}  // namespace kmaC_MaterialOptionShortcut_test
