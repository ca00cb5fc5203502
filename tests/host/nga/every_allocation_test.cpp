#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <new>

#include "../cli/tool_runner.h"
#include "mem_Memory.h"
#include "nga_Diff.h"
#include "nga_Json.h"

// Every allocation there is, be it the library's, the standard library's or SQLite's, is made to
// fail once, one after another. The operators below serve the whole test program, and fail only
// while a Failing lives.

namespace {

bool armed = false;
int allocations = 0;
int failing = -1;

bool FailsNow() { return armed && allocations++ == failing; }
bool Hook(std::size_t) { return FailsNow(); }

void* Allocate(std::size_t size) {
    if (FailsNow()) throw std::bad_alloc();
    void* const result = std::malloc(size ? size : 1);
    if (!result) throw std::bad_alloc();
    return result;
}

/// Lets allocation number \p n fail while it lives.
class Failing {
public:
    explicit Failing(int n) {
        allocations = 0;
        failing = n;
        mem_SetFailureHook(Hook);
        armed = true;
    }
    ~Failing() {
        armed = false;
        mem_SetFailureHook(nullptr);
    }
    Failing(Failing const&) = delete;
    Failing& operator=(Failing const&) = delete;
    static bool Happened() { return allocations > failing; }
};

}  // namespace

void* operator new(std::size_t size) { return Allocate(size); }
void* operator new[](std::size_t size) { return Allocate(size); }
// The library's own nothrow forms may take memory elsewhere than here.
void* operator new(std::size_t size, std::nothrow_t const&) noexcept {
    return FailsNow() ? nullptr : std::malloc(size ? size : 1);
}
void* operator new[](std::size_t size, std::nothrow_t const&) noexcept {
    return FailsNow() ? nullptr : std::malloc(size ? size : 1);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

sqlite3_mem_methods sqliteOwn;

void* SqliteMalloc(int size) { return FailsNow() ? nullptr : sqliteOwn.xMalloc(size); }
void* SqliteRealloc(void* memory, int size) {
    return FailsNow() ? nullptr : sqliteOwn.xRealloc(memory, size);
}

class EveryAllocation : public testing::Test {
protected:
    void SetUp() override {
        // SQLite takes another allocator only while it is not at work; it starts again by itself.
        sqlite3_shutdown();
        ASSERT_EQ(sqlite3_config(SQLITE_CONFIG_GETMALLOC, &sqliteOwn), SQLITE_OK);
        sqlite3_mem_methods ours = sqliteOwn;
        ours.xMalloc = SqliteMalloc;
        ours.xRealloc = SqliteRealloc;
        ASSERT_EQ(sqlite3_config(SQLITE_CONFIG_MALLOC, &ours), SQLITE_OK);
        ASSERT_EQ(sqlite3_initialize(), SQLITE_OK);
    }
    void TearDown() override {
        sqlite3_shutdown();
        sqlite3_config(SQLITE_CONFIG_MALLOC, &sqliteOwn);
        sqlite3_initialize();
    }

    /// Runs \p work with each of its allocations failing once, until there are no more; the number
    /// of them. \p failed looks at what a failure left, \p done at what a success did: some
    /// allocations can be done without, and then the work must succeed in full.
    template <class Work, class Failed, class Done>
    int FailEach(Work work, Failed failed, Done done) {
        for (int n = 0;; ++n) {
            bool succeeded = false;
            bool happened = false;
            std::string other;
            {
                Failing const one(n);
                try {
                    work();
                    succeeded = true;
                } catch (std::bad_alloc const&) {
                } catch (std::exception const& exception) {
                    armed = false;
                    other = exception.what();
                } catch (...) {
                    armed = false;
                    other = "something else";
                }
                armed = false;
                happened = Failing::Happened();
            }
            EXPECT_EQ(other, "") << "at allocation " << n;
            succeeded ? done(n) : failed(n);
            if (HasFailure() || !happened) return n;
        }
    }
};

std::string const text =
    "{\"materials\": {\"a\": {\"elastic\": {\"table\": [[1, 2]], \"failStress\": {}}}, "
    "\"b\": {\"description\": \"a text that needs room of its own\", \"density\": {}}}, "
    "\"loadCases\": {\"w\": {\"loads\": {\"a load with a long name\": 1.5, \"y\": 2.5}}}}";

nga::Document Small() {
    nga::Document document = nga::Document::New("document");
    nga::ImportJson(document, text);
    return document;
}

/// How many allocations the work makes.
template <class Work>
int CountedIn(Work const& work) {
    Failing const none(-1);
    work();
    armed = false;
    return allocations;
}

/// Many names, which all share one object: what a snapshot copies is not what objects weigh.
nga::Document Large(int size) {
    nga::Document document = Small();
    nga::Collection const& materials = *nga::Collection::FindByName("materials");
    auto const held = materials.Hold(document.Model(), "a");
    for (int i = 0; i < size; ++i) materials.Restore(document.Model(), cow_String(i), held);
    return document;
}

TEST(Snapshot, AllocatesAsMuchOfALargeDocumentAsOfASmallOne) {
    nga::Document const small = Small(), large = Large(100'000);
    int const ofSmall = CountedIn([&] { nga::Snapshot const kept(small.Model()); });
    int const ofLarge = CountedIn([&] { nga::Snapshot const kept(large.Model()); });
    EXPECT_GT(ofSmall, 0);
    EXPECT_EQ(ofLarge, ofSmall);
}

TEST(Snapshot, ADifferenceAfterOneWriteAllocatesAsMuchWhateverTheSize) {
    auto const difference = [](nga::Document& document) {
        nga::Snapshot const before(document.Model());
        document.Materials().Get("b").description = "another text";
        nga::Snapshot const after(document.Model());
        int found = 0;
        int const count = CountedIn(
            [&] { nga::Diff(before, after, "", {}, [&](nga::Difference const&) { ++found; }); });
        EXPECT_EQ(found, 1);
        return count;
    };
    nga::Document small = Small(), large = Large(100'000);
    // The walk's own stack may grow once or twice more on a longer path.
    EXPECT_LE(difference(large), difference(small) + 4);
}

std::vector<std::string> EntriesOf(std::string const& folder) {
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

}  // namespace

TEST_F(EveryAllocation, OfBuildingCopyingAndEditingLeavesADocumentThatCanBeUsed) {
    nga::Document usable = Small();
    std::string const before = nga::ExportJson(usable);
    int const points = FailEach(
        [] {
            nga::Document document = nga::Document::New("document");
            kmaC_Material steel;
            steel.elastic = new kmaC_Elastic;
            steel.elastic.Get().table = kmaC_MaterialTable(2, 2);
            steel.elastic.Get().table.MutableCell(1, 1) = 0.3;
            document.Materials().Insert("steel", steel);
            document.Materials().Insert("copy", document.Materials().ConstGet("steel"));
            document.Materials().Get("copy").elastic.Get().table.MutableCell(0, 0) = 5;
            kmaC_MaterialContainer const kept = document.Materials();
            document.Materials().Remove("steel");
            // By value, as the key is made at the call and may fail with an object in hand.
            document.LoadCases().Insert("wind", klcC_LoadCase());
            document.LoadCases().Get("wind").loads.Insert("x", 1.5f);
        },
        [&](int n) { ASSERT_EQ(nga::ExportJson(usable), before) << n; },
        [&](int n) { ASSERT_EQ(nga::ExportJson(usable), before) << n; });
    EXPECT_GT(points, 20);
}

TEST_F(EveryAllocation, OfAnEditLeavesTheObjectAsItWasOrAsItShallBe) {
    nga::Document document = Small();
    document.Materials().Insert("c", document.Materials().ConstGet("a"));
    std::string const before = nga::ExportJson(document);
    int const points = FailEach(
        [&] { document.Materials().Get("c").elastic.Get().table.MutableCell(0, 0) = 7; },
        [&](int n) { ASSERT_EQ(nga::ExportJson(document), before) << n; },
        [&](int n) {
            ASSERT_EQ(document.Materials().ConstGet("c").elastic.ConstGet().table.Cell(0, 0), 7)
                << n;
            ASSERT_EQ(document.Materials().ConstGet("a").elastic.ConstGet().table.Cell(0, 0), 1)
                << n;
        });
    EXPECT_GT(points, 1);
}

TEST_F(EveryAllocation, OfAnImportLeavesTheDocumentAsItWas) {
    nga::Document document = nga::Document::New("document");
    document.Materials().Insert("present", new kmaC_Material);
    document.LoadCases().Insert("present", new klcC_LoadCase);
    std::string const before = nga::ExportJson(document);
    int imported = 0;
    int const points = FailEach([&] { nga::ImportJson(document, text, nga::OnConflict::Replace); },
                                [&](int n) {
                                    if (imported == 0) {
                                        ASSERT_EQ(nga::ExportJson(document), before) << n;
                                    }
                                },
                                [&](int n) {
                                    ++imported;
                                    ASSERT_EQ(document.Materials().Size(), 3) << n;
                                    ASSERT_EQ(document.LoadCases().Size(), 2) << n;
                                });
    EXPECT_GT(points, 100);
}

TEST_F(EveryAllocation, OfASaveLeavesTheFormerFileAndNoLitter) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("document.nga");
    nga::Document document = nga::Document::New("document");
    document.SaveAs(file);
    std::string bytes = FileContent(file);
    nga::ImportJson(document, text);
    std::string const content = nga::ExportJson(document);
    std::vector<std::string> const entries = EntriesOf(folder.Path(""));
    int const points = FailEach([&] { document.Save(); },
                                [&](int n) {
                                    ASSERT_EQ(FileContent(file), bytes) << n;
                                    ASSERT_EQ(EntriesOf(folder.Path("")), entries) << n;
                                    ASSERT_EQ(nga::ExportJson(document), content) << n;
                                },
                                [&](int n) {
                                    ASSERT_EQ(nga::ExportJson(nga::Document::Open(file)), content)
                                        << n;
                                    ASSERT_EQ(EntriesOf(folder.Path("")), entries) << n;
                                    bytes = FileContent(file);
                                });
    EXPECT_GT(points, 200);
}

TEST_F(EveryAllocation, OfASaveUnderAnotherNameLeavesTheDocumentsNameAndFile) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("a name that needs room of its own.nga");
    nga::Document document = Small();
    std::string const content = nga::ExportJson(document);
    int const points = FailEach([&] { document.SaveAsNew(file); },
                                [&](int n) {
                                    ASSERT_FALSE(std::filesystem::exists(file)) << n;
                                    ASSERT_TRUE(EntriesOf(folder.Path("")).empty()) << n;
                                    ASSERT_EQ(document.Name(), "document") << n;
                                    ASSERT_EQ(document.File(), "") << n;
                                },
                                [&](int n) {
                                    ASSERT_EQ(document.File(), file) << n;
                                    ASSERT_EQ(nga::ExportJson(nga::Document::Open(file)), content);
                                    std::filesystem::remove(file);
                                    document = Small();
                                });
    EXPECT_GT(points, 200);
}

TEST_F(EveryAllocation, OfOpeningGivesTheWholeDocumentOrTheFailure) {
    TemporaryFolder const folder;
    std::string const file = folder.Path("document.nga");
    nga::Document saved = Small();
    saved.SaveAs(file);
    std::string const content = nga::ExportJson(saved);
    std::string const bytes = FileContent(file);
    std::unique_ptr<nga::Document> opened;
    int const points =
        FailEach([&] { opened = std::make_unique<nga::Document>(nga::Document::Open(file)); },
                 [&](int n) { ASSERT_EQ(FileContent(file), bytes) << n; },
                 [&](int n) { ASSERT_EQ(nga::ExportJson(*opened), content) << n; });
    EXPECT_GT(points, 200);
    EXPECT_EQ(EntriesOf(folder.Path("")).size(), 1u);
}
