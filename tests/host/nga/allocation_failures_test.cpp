#include <gtest/gtest.h>

#include <new>

#include "../cli/tool_runner.h"
#include "mem_Memory.h"
#include "nga_Check.h"
#include "nga_Json.h"
#include "nga_Path.h"
#include "nga_SeparateIdentities.h"

namespace {

int allocations = 0;
int failing = -1;

bool Hook(std::size_t) { return allocations++ == failing; }

/// Runs work with each of its allocations from the library made to fail once, one after another;
/// \p after looks at what a failure left.
template <class Work, class After>
int FailEach(Work work, After after) {
    for (int n = 0;; ++n) {
        allocations = 0;
        failing = n;
        mem_SetFailureHook(Hook);
        bool failed = false;
        try {
            work();
        } catch (std::bad_alloc const&) {
            failed = true;
        }
        mem_SetFailureHook(nullptr);
        if (!failed) return n;
        after(n);
        if (testing::Test::HasFatalFailure()) return n;
    }
}

std::string const text =
    "{\"materials\": {\"b\": {\"elastic\": {\"table\": [[1, 2]], \"failStress\": {}}}, "
    "\"c\": {\"description\": \"a text that needs room of its own\"}}, "
    "\"loadCases\": {\"w\": {\"loads\": {\"x\": 1.5, \"y\": 2.5}}}}";

}  // namespace

TEST(AllocationFailures, AnImportLeavesTheDocumentAsItWas) {
    nga::Document document = nga::Document::New("document");
    document.Materials().Insert("a", new kmaC_Material);
    document.LoadCases().Insert("present", new klcC_LoadCase);
    std::string const before = nga::ExportJson(document);
    int const points = FailEach([&] { nga::ImportJson(document, text); },
                                [&](int n) { ASSERT_EQ(nga::ExportJson(document), before) << n; });
    EXPECT_GT(points, 30);
    EXPECT_TRUE(document.Materials().IsMember("b"));
    EXPECT_TRUE(document.LoadCases().IsMember("w"));
}

TEST(AllocationFailures, ReplacingAnObjectIsAllOrNothingToo) {
    nga::Document document = nga::Document::New("document");
    nga::ImportJson(document, text);
    std::string const before = nga::ExportJson(document);
    std::string const other = "{\"materials\": {\"b\": {}, \"c\": {\"density\": {}}}}";
    int const points = FailEach([&] { nga::ImportJson(document, other, nga::OnConflict::Replace); },
                                [&](int n) { ASSERT_EQ(nga::ExportJson(document), before) << n; });
    EXPECT_GT(points, 10);
    EXPECT_NE(nga::ExportJson(document), before);
}

TEST(AllocationFailures, ReadingLeavesEverythingUsable) {
    nga::Document document = nga::Document::New("document");
    nga::ImportJson(document, text);
    std::string const before = nga::ExportJson(document);
    FailEach(
        [&] {
            nga::Check(document);
            nga::ExportJson(document);
            nga::Resolve(document, "materials['b'].options['elastic'].table");
        },
        [&](int n) { ASSERT_EQ(nga::ExportJson(document), before) << n; });
}

TEST(AllocationFailures, ASaveLeavesTheFormerFileAndTheDocument) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("document.nga");
    nga::Document document = nga::Document::New("document");
    document.SaveAs(file);
    nga::ImportJson(document, text);
    document.Materials().Insert("d", document.Materials().ConstGet("b"));
    document.Materials().Get("d").elastic.Get().dependencies = 1;
    std::string const content = nga::ExportJson(document);
    std::string const bytes = FileContent(file);
    int const points = FailEach([&] { document.Save(); },
                                [&](int n) {
                                    ASSERT_EQ(FileContent(file), bytes) << n;
                                    ASSERT_EQ(nga::ExportJson(document), content) << n;
                                });
    EXPECT_GT(points, 10);
    EXPECT_EQ(nga::ExportJson(nga::Document::Open(file)), content);
}

TEST(AllocationFailures, OpeningGivesADocumentOrTheFailure) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("document.nga");
    nga::Document document = nga::Document::New("document");
    nga::ImportJson(document, text);
    document.SaveAs(file);
    std::string opened;
    int const points =
        FailEach([&] { opened = nga::ExportJson(nga::Document::Open(file)); }, [&](int) {});
    EXPECT_GT(points, 10);
    EXPECT_EQ(opened, nga::ExportJson(document));
}
