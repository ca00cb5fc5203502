#include "nga_History.h"

#include <gtest/gtest.h>

#include "nga_Document.h"
#include "nga_Error.h"
#include "nga_Json.h"
#include "nga_Script.h"

namespace {

class HistoryTest : public testing::Test {
protected:
    nga::Document m_document = nga::Document::New("bench");
    nga::History m_history{m_document.Model()};
    nga::Collection const& m_materials = *nga::Collection::FindByName("materials");

    void Insert(char const* name) {
        nga::HistoryEdit edit(m_history);
        m_history.Touch(m_materials, name);
        m_document.Materials().Insert(name, new kmaC_Material);
        edit.Close();
    }
    void Describe(char const* name, char const* text) {
        nga::HistoryEdit edit(m_history);
        m_history.Touch(m_materials, name);
        m_document.Materials().Get(name).description = text;
        edit.Close();
    }
    void Remove(char const* name) {
        nga::HistoryEdit edit(m_history);
        m_history.Touch(m_materials, name);
        m_document.Materials().Remove(name);
        edit.Close();
    }
    std::string Description(char const* name) const {
        nga::Document const& document = m_document;
        kmaC_Material const* const material = document.Materials().ConstGetPtr(name);
        return material ? std::string(material->description.View()) : "nothing";
    }
};

TEST_F(HistoryTest, StepsAreUndoneInTurnAndDoneAgain) {
    Insert("steel");
    Describe("steel", "a");
    Describe("steel", "b");
    EXPECT_TRUE(m_history.Undo());
    EXPECT_EQ(Description("steel"), "a");
    EXPECT_TRUE(m_history.Undo());
    EXPECT_TRUE(m_history.Undo());
    EXPECT_EQ(Description("steel"), "nothing");
    EXPECT_FALSE(m_history.Undo());
    while (m_history.Redo()) continue;
    EXPECT_EQ(Description("steel"), "b");
    EXPECT_EQ(m_history.UndoCount(), 3u);
}

TEST_F(HistoryTest, AnEditThatIsNotOpenCannotBeEnded) {
    EXPECT_THROW(m_history.Close(0), nga::Error);
    EXPECT_THROW(m_history.RollBack(1), nga::Error);
    std::size_t const edit = m_history.Open();
    m_history.Close(edit);
    EXPECT_THROW(m_history.Close(edit), nga::Error);
    std::size_t const next = m_history.Open();
    EXPECT_THROW(m_history.RollBack(edit), nga::Error);
    EXPECT_TRUE(m_history.IsOpen(next));
    m_history.RollBack(next);
    EXPECT_THROW(m_history.Touch(m_materials, "steel"), nga::Error);
}

TEST_F(HistoryTest, AnEditDoesNotEndWhileOneWithinItIsOpen) {
    Insert("steel");
    std::size_t const outer = m_history.Open();
    Describe("steel", "a");
    std::size_t const inner = m_history.Open("softer");
    Describe("steel", "b");
    std::size_t const innermost = m_history.Open();
    Describe("steel", "c");
    EXPECT_THROW(m_history.Close(outer), nga::Error);
    m_history.RollBack(innermost);
    try {
        m_history.Close(outer);
        ADD_FAILURE();
    } catch (nga::Error const& failure) {
        EXPECT_EQ(failure.Message(),
                  "an edit that was begun within this one, 'softer', is still open; end that one "
                  "first");
    }
    EXPECT_EQ(Description("steel"), "b");
    m_history.RollBack(inner);
    EXPECT_EQ(Description("steel"), "a");
    m_history.Close(outer);
    EXPECT_EQ(m_history.UndoCount(), 2u);
    EXPECT_TRUE(m_history.Undo());
    EXPECT_EQ(Description("steel"), "");
}

TEST_F(HistoryTest, AnEditThatIsNotClosedIsRolledBack) {
    Insert("steel");
    {
        nga::HistoryEdit edit(m_history);
        m_history.Touch(m_materials, "steel");
        m_document.Materials().Get("steel").description = "lost";
        Insert("iron");
    }
    EXPECT_EQ(Description("steel"), "");
    EXPECT_EQ(Description("iron"), "nothing");
    EXPECT_EQ(m_history.UndoCount(), 1u);
}

TEST_F(HistoryTest, InnerEditsArePartOfTheOuterStep) {
    std::size_t const edit = m_history.Open("all of it");
    Insert("steel");
    Describe("steel", "a");
    m_history.Close(edit);
    EXPECT_EQ(m_history.UndoCount(), 1u);
    EXPECT_EQ(m_history.NextUndo(), "all of it");
    m_history.Undo();
    EXPECT_EQ(Description("steel"), "nothing");
}

TEST_F(HistoryTest, AnOpenEditKeepsUndoOut) {
    Insert("steel");
    std::size_t const edit = m_history.Open();
    EXPECT_THROW(m_history.Undo(), nga::Error);
    EXPECT_THROW(m_history.Redo(), nga::Error);
    m_history.RollBack(edit);
    EXPECT_TRUE(m_history.Undo());
}

TEST_F(HistoryTest, AnEditOfManyNamesKeepsEachOnce) {
    std::size_t const edit = m_history.Open();
    for (int round = 0; round < 2; ++round)
        for (int i = 0; i < 100; ++i) {
            cow_String const name(i);
            m_history.Touch(m_materials, name);
            m_document.Materials().Insert(name, new kmaC_Material);
        }
    m_history.Close(edit);
    auto const runs = m_history.Runs();
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].changes.size(), 100u);
    m_history.Undo();
    EXPECT_EQ(m_document.Materials().Size(), 0);
}

TEST_F(HistoryTest, RunsJoinSingleStepsAndTellBeforeAndBehind) {
    Insert("steel");
    Describe("steel", "a");
    std::size_t const edit = m_history.Open("why");
    Describe("steel", "b");
    m_history.Close(edit);
    Remove("steel");
    auto const runs = m_history.Runs();
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[1].why, "why");
    auto const text = [](std::optional<cow_ErasedHandle> const& state) {
        return state ? std::string(static_cast<kmaC_Material const*>(state->ErasedReferent())
                                       ->description.View())
                     : "nothing";
    };
    EXPECT_EQ(text(runs[0].changes[0].before), "nothing");
    EXPECT_EQ(text(runs[0].changes[0].after), "a");
    EXPECT_EQ(text(runs[1].changes[0].before), "a");
    EXPECT_EQ(text(runs[1].changes[0].after), "b");
    EXPECT_EQ(text(runs[2].changes[0].after), "nothing");
}

TEST_F(HistoryTest, TheScriptTellsTheOutcomeOfEachRun) {
    Insert("steel");
    Describe("steel", "a'b");
    std::size_t const edit = m_history.Open("a reason\nin two lines");
    Describe("steel", "c");
    m_history.Close(edit);
    Insert("iron");
    Remove("iron");
    EXPECT_EQ(nga::ScriptText(nga::ScriptOpening(m_document), m_history),
              "import nga\n\ndoc = nga.new('bench')\n"
              "doc.Material(name='steel', description='a\\'b')\n\n"
              "# a reason     in two lines\n"
              "doc.materials['steel'].description = 'c'\n");
}

TEST_F(HistoryTest, ARecordedImportIsOneStep) {
    nga::ImportRecorded(m_document, m_history, R"({"materials": {"a": {}, "b": {}}})");
    EXPECT_EQ(m_history.UndoCount(), 1u);
    EXPECT_EQ(nga::ScriptBody(m_history), "doc.Material(name='a')\ndoc.Material(name='b')\n");
    EXPECT_THROW(nga::ImportRecorded(m_document, m_history, R"({"materials": {"c": {}, "a": {}}})"),
                 nga::Error);
    EXPECT_EQ(m_history.UndoCount(), 1u);
    EXPECT_EQ(Description("c"), "nothing");
    m_history.Undo();
    EXPECT_EQ(m_document.Materials().Size(), 0);
}

}  // namespace
