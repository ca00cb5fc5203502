#include "nga_RenamePlan.h"

#include <gtest/gtest.h>

#include "nga_Document.h"
#include "nga_Script.h"

namespace {

class RenamePlanTest : public testing::Test {
protected:
    nga::Document m_document = nga::Document::New("bench");
    nga::History m_history{m_document.Model()};
    nga::Collection const& m_materials = *nga::Collection::FindByName("materials");

    template <class Write>
    void Edit(std::initializer_list<char const*> names, Write const& write) {
        nga::HistoryEdit edit(m_history);
        for (char const* name : names) m_history.Touch(m_materials, name);
        write();
        edit.Close();
    }
    void Insert(char const* name) {
        Edit({name}, [&] { m_document.Materials().Insert(name, new kmaC_Material); });
    }
    void Remove(char const* name) {
        Edit({name}, [&] { m_document.Materials().Remove(name); });
    }
    void Describe(char const* name, char const* text) {
        Edit({name}, [&] { m_document.Materials().Get(name).description = text; });
    }
    void Rename(char const* from, char const* to) {
        Edit({from, to}, [&] {
            auto const held = m_materials.Hold(m_document.Model(), from);
            m_history.Renamed(m_materials, from, to);
            m_materials.Remove(m_document.Model(), from);
            m_materials.Restore(m_document.Model(), to, held);
        });
    }
    /// The script of what comes behind this: what stands now is where it begins.
    void Begin(std::initializer_list<char const*> names) {
        for (char const* name : names) {
            Insert(name);
            Describe(name, name);
        }
        m_history.Forget();
    }
    std::string Body() const { return nga::ScriptBody(m_history); }
};

TEST_F(RenamePlanTest, ARenameAndAnEditOfTheSameObjectAreALineEach) {
    Begin({"steel"});
    Describe("steel", "a");
    Rename("steel", "iron");
    Describe("iron", "b");
    Rename("iron", "gold");
    EXPECT_EQ(Body(),
              "doc.materials.rename('steel', 'gold')\n"
              "doc.materials['gold'].description = 'b'\n");
}

TEST_F(RenamePlanTest, ARenameThereAndBackIsNone) {
    Begin({"steel"});
    Rename("steel", "iron");
    Rename("iron", "steel");
    EXPECT_EQ(Body(), "");
}

TEST_F(RenamePlanTest, AnObjectGoesToANameThatAnotherOneHad) {
    Begin({"a", "b"});
    Remove("b");
    Rename("a", "b");
    EXPECT_EQ(Body(), "del doc.materials['b']\ndoc.materials.rename('a', 'b')\n");
}

TEST_F(RenamePlanTest, NamesAreFreedBeforeTheyAreTaken) {
    Begin({"a", "b", "c"});
    Rename("c", "d");
    Rename("b", "c");
    Rename("a", "b");
    EXPECT_EQ(Body(),
              "doc.materials.rename('c', 'd')\n"
              "doc.materials.rename('b', 'c')\n"
              "doc.materials.rename('a', 'b')\n");
}

TEST_F(RenamePlanTest, ObjectsChangePlacesByWayOfTheNameThatWasUsed) {
    Begin({"a", "b"});
    Rename("a", "aside");
    Rename("b", "a");
    Rename("aside", "b");
    EXPECT_EQ(Body(),
              "doc.materials.rename('a', 'aside')\n"
              "doc.materials.rename('b', 'a')\n"
              "doc.materials.rename('aside', 'b')\n");
}

TEST_F(RenamePlanTest, TheNameUsedMayBeTakenByAThirdObjectInTheEnd) {
    Begin({"a", "b", "third"});
    Rename("a", "aside");
    Rename("b", "a");
    Rename("aside", "b");
    Rename("third", "aside");
    EXPECT_EQ(Body(),
              "doc.materials.rename('third', 'aside')\n"
              "doc.materials.rename('a', 'third')\n"
              "doc.materials.rename('b', 'a')\n"
              "doc.materials.rename('third', 'b')\n");
}

TEST_F(RenamePlanTest, ObjectsAreComparedInPlaceWhereOnlyAnUnusableNameIsFree) {
    Begin({"a", "b", "from 'a file'"});
    Rename("a", "aside");
    Rename("b", "a");
    Rename("aside", "b");
    Rename("from 'a file'", "aside");
    EXPECT_EQ(Body(),
              "doc.materials.rename('from \\'a file\\'', 'aside')\n"
              "doc.materials['a'].description = 'b'\n"
              "doc.materials['b'].description = 'a'\n");
}

TEST_F(RenamePlanTest, ARenamedObjectThatWentLeavesItsRemoval) {
    Begin({"a"});
    Rename("a", "b");
    Remove("b");
    EXPECT_EQ(Body(), "del doc.materials['a']\n");
}

TEST_F(RenamePlanTest, WhatComesUnderTheFormerNameIsMadeAnew) {
    Begin({"a"});
    Rename("a", "b");
    Insert("a");
    EXPECT_EQ(Body(), "doc.materials.rename('a', 'b')\ndoc.Material(name='a')\n");
}

TEST_F(RenamePlanTest, ANewObjectBearsItsLastNameAlone) {
    Insert("a");
    Rename("a", "b");
    Describe("b", "new");
    EXPECT_EQ(Body(), "doc.Material(name='b', description='new')\n");
}

TEST_F(RenamePlanTest, WhatWasMadeAndWentLeavesNothingAcrossReasons) {
    Begin({"steel"});
    std::size_t edit = m_history.Open("make");
    Insert("passing");
    m_history.Close(edit);
    edit = m_history.Open("change");
    Describe("passing", "a");
    Describe("steel", "b");
    m_history.Close(edit);
    edit = m_history.Open("remove");
    Remove("passing");
    m_history.Close(edit);
    EXPECT_EQ(Body(), "# change\ndoc.materials['steel'].description = 'b'\n");
}

TEST_F(RenamePlanTest, WhatWasMadeAndRenamedAndWentLeavesNothingEither) {
    Begin({"steel"});
    auto const because = [&](char const* why, auto const& work) {
        std::size_t const edit = m_history.Open(why);
        work();
        m_history.Close(edit);
    };
    because("make", [&] { Insert("a"); });
    because("rename", [&] {
        Rename("a", "b");
        Insert("a");
    });
    because("change", [&] { Describe("b", "on its way"); });
    because("rename more", [&] { Rename("b", "c"); });
    because("remove", [&] { Remove("c"); });
    EXPECT_EQ(Body(), "# rename\ndoc.Material(name='a')\n");
    because("remove all", [&] {
        Remove("a");
        Rename("steel", "a");
    });
    EXPECT_EQ(Body(), "# remove all\ndoc.materials.rename('steel', 'a')\n");
}

TEST_F(RenamePlanTest, AnInnerEditHandsItsRenamesToTheOuterOne) {
    Begin({"a"});
    std::size_t const outer = m_history.Open("outer");
    Rename("a", "b");
    Describe("b", "new");
    std::size_t const inner = m_history.Open();
    Rename("b", "c");
    m_history.RollBack(inner);
    m_history.Close(outer);
    EXPECT_EQ(Body(),
              "# outer\ndoc.materials.rename('a', 'b')\n"
              "doc.materials['b'].description = 'new'\n");
    m_history.Undo();
    EXPECT_EQ(Body(), "");
}

TEST_F(RenamePlanTest, ForgettingLeavesNothingToUndoOrToTell) {
    Insert("a");
    Insert("b");
    m_history.Undo();
    std::size_t const edit = m_history.Open();
    EXPECT_ANY_THROW(m_history.Forget());
    m_history.RollBack(edit);
    m_history.Forget();
    EXPECT_FALSE(m_history.Undo());
    EXPECT_FALSE(m_history.Redo());
    EXPECT_EQ(Body(), "");
    EXPECT_EQ(m_document.Materials().Size(), 1);
}

}  // namespace
