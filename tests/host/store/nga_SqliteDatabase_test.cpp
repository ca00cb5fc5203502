#include "nga_SqliteDatabase.h"

#include <bit>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "rfm_MemoryDatabase.h"
#include "store_support.h"

namespace {

using namespace store_test;
using nga::SqliteDatabase;

// A value that owns its text or bytes.
struct Cell {
    rfm_Value::Tag tag = rfm_Value::Null;
    long long integer = 0;
    std::uint64_t bits = 0;
    std::string data;

    Cell() = default;
    explicit Cell(rfm_Value const& value) : tag(value.tag) {
        if (tag == rfm_Value::Int) integer = value.integer;
        if (tag == rfm_Value::Double) bits = std::bit_cast<std::uint64_t>(value.real);
        if (tag == rfm_Value::Text) data.assign(value.text, static_cast<size_t>(value.length));
        if (tag == rfm_Value::Bytes)
            data.assign(static_cast<char const*>(value.bytes), static_cast<size_t>(value.length));
    }
    rfm_Value View() const {
        int const length = static_cast<int>(data.size());
        switch (tag) {
            case rfm_Value::Int:
                return rfm_Value::OfInt(integer);
            case rfm_Value::Double:
                return rfm_Value::OfDouble(std::bit_cast<double>(bits));
            case rfm_Value::Text:
                return rfm_Value::OfText(data.data(), length);
            case rfm_Value::Bytes:
                return rfm_Value::OfBytes(data.data(), length);
            default:
                return rfm_Value();
        }
    }
    friend bool operator==(Cell const&, Cell const&) = default;
};

using Random = std::mt19937_64;

Cell AnyCell(Random& random, rfm_ColumnKind kind) {
    if (random() % 4 == 0) return Cell();
    Cell cell;
    auto const fill = [&](std::size_t most) {
        cell.data.resize(random() % (most + 1));
        for (char& letter : cell.data) letter = static_cast<char>(random());
    };
    static long long const integers[] = {0, 1, -1, INT_MIN, INT_MAX, LLONG_MIN, LLONG_MAX};
    static double const reals[] = {0.0,       -0.0,    1.0,
                                   -3.0,      DBL_MAX, -DBL_MAX,
                                   DBL_MIN,   5e-324,  std::numeric_limits<double>::infinity(),
                                   -HUGE_VAL, 0.1,     9007199254740993.0};
    switch (kind) {
        case rfm_ColumnKind::Int:
            cell.tag = rfm_Value::Int;
            cell.integer = integers[random() % std::size(integers)];
            break;
        case rfm_ColumnKind::Double:
            cell.tag = rfm_Value::Double;
            cell.bits = std::bit_cast<std::uint64_t>(reals[random() % std::size(reals)]);
            // Any NaN, quiet or not, with any payload.
            if (random() % 4 == 0) cell.bits = random() | 0x7FF0000000000001u;
            break;
        case rfm_ColumnKind::Text:
            cell.tag = rfm_Value::Text;
            fill(random() % 8 ? 20 : 40000);
            break;
        case rfm_ColumnKind::Bytes:
            cell.tag = rfm_Value::Bytes;
            fill(random() % 8 ? 20 : 40000);
            break;
        case rfm_ColumnKind::Key:
            if (random() % 2) return AnyCell(random, rfm_ColumnKind::Int);
            cell.tag = rfm_Value::Text;
            cell.data = random() % 2 ? "12" : "name" + std::to_string(random() % 50);
            break;
    }
    return cell;
}

rfm_TableMetadata AnyLayout(Random& random, unsigned typeId) {
    rfm_TableMetadata layout(typeId, cow_String(("class" + std::to_string(typeId % 3)).c_str()),
                             203 + static_cast<int>(random() % 900), 1);
    layout.Add("owner", rfm_ColumnKind::Int);
    layout.Add("key", rfm_ColumnKind::Key);
    for (int i = 0, n = static_cast<int>(random() % 8); i < n; ++i)
        layout.Add(cow_String(("a \"field\"#" + std::to_string(i)).c_str()),
                   static_cast<rfm_ColumnKind>(random() % 5));
    return layout;
}

class SqliteStore : public testing::Test {
protected:
    std::string NewFile() {
        std::string const path = folder.File("f" + std::to_string(m_files++) + ".nga");
        Overwrite(path, "");
        return path;
    }
    static std::unique_ptr<SqliteDatabase> Open(std::string const& path) {
        return SqliteDatabase::Open(
            path, static_cast<long long>(std::filesystem::file_size(path)),
            [](nga::CatalogueEntry const&) { return std::optional<rfm_TableMetadata>(); });
    }
    // One row of a class of one column, written and read.
    Cell Through(rfm_ColumnKind kind, Cell const& cell) {
        std::string const path = NewFile();
        auto const written = SqliteDatabase::Build(path);
        rfm_TableMetadata layout(7, "one", 203, 1);
        layout.Add("value", kind);
        rfm_Value const value = cell.View();
        rfm_Table& table = written->CreateTable(layout);
        table.Append(&value);
        table.Append(&value);
        written->Finish();
        auto const read = Open(path);
        auto const cursor = read->FindTable(7)->OpenCursor();
        EXPECT_TRUE(cursor->Seek(0));
        Cell const first(cursor->Value(0));
        EXPECT_TRUE(cursor->Seek(1));
        EXPECT_TRUE(Cell(cursor->Value(0)) == first);
        return first;
    }
    static Cell Real(double value) { return Cell(rfm_Value::OfDouble(value)); }
    static Cell OfBits(std::uint64_t bits) {
        Cell cell;
        cell.tag = rfm_Value::Double;
        cell.bits = bits;
        return cell;
    }

    Folder folder;

private:
    int m_files = 0;
};

TEST_F(SqliteStore, KeepsEveryRealToTheBit) {
    for (double const value : {0.0, -0.0, 1.0, -2.0, 1e300, DBL_MAX, -DBL_MAX, DBL_MIN, 5e-324,
                               std::numeric_limits<double>::infinity(), -HUGE_VAL})
        EXPECT_TRUE(Through(rfm_ColumnKind::Double, Real(value)) == Real(value)) << value;
    for (std::uint64_t const bits : {0x7FF8000000000000u, 0xFFF8000000000000u, 0x7FF0000000000001u,
                                     0xFFFFFFFFFFFFFFFFu, 0x7FF8DEADBEEF1234u})
        EXPECT_TRUE(Through(rfm_ColumnKind::Double, OfBits(bits)) == OfBits(bits)) << bits;
}

TEST_F(SqliteStore, KeepsIntegersTextsAndBytes) {
    for (long long const value : {0LL, -1LL, (long long)INT_MIN, LLONG_MIN, LLONG_MAX}) {
        Cell const cell(rfm_Value::OfInt(value));
        EXPECT_TRUE(Through(rfm_ColumnKind::Int, cell) == cell);
        EXPECT_TRUE(Through(rfm_ColumnKind::Key, cell) == cell);
    }
    for (std::string const& text :
         {std::string(), std::string("12"), std::string("a\0b", 3), std::string("\xff\xfe\x80"),
          std::string("1e5"), std::string(100000, 'x')}) {
        int const length = static_cast<int>(text.size());
        Cell const cell(rfm_Value::OfText(text.data(), length));
        EXPECT_TRUE(Through(rfm_ColumnKind::Text, cell) == cell);
        EXPECT_TRUE(Through(rfm_ColumnKind::Key, cell) == cell);
        Cell const bytes(rfm_Value::OfBytes(text.data(), length));
        EXPECT_TRUE(Through(rfm_ColumnKind::Bytes, bytes) == bytes);
    }
    EXPECT_TRUE(Through(rfm_ColumnKind::Text, Cell()) == Cell());
}

TEST_F(SqliteStore, HoldsWhatAStoreInMemoryHolds) {
    Random random(20240229);
    for (int round = 0; round < 30; ++round) {
        std::string const path = NewFile();
        rfm_MemoryDatabase memory;
        auto const built = SqliteDatabase::Build(path);
        int const classes = static_cast<int>(random() % 7);
        // Now and then so many rows that they go in several at a time.
        unsigned const steps = round % 6 == 5 ? 3000 : 300;
        unsigned const replacing = steps == 3000 ? 200 : 8;
        auto const append = [&](unsigned typeId) {
            rfm_Table* const twin = memory.FindTable(typeId);
            std::vector<Cell> cells;
            std::vector<rfm_Value> row;
            for (rfm_Column const& column : twin->Metadata().Columns())
                cells.push_back(AnyCell(random, column.kind));
            for (Cell const& cell : cells) row.push_back(cell.View());
            rfm_Table* const table = built->FindTable(typeId);
            if (twin->RowCount() > 0 && random() % replacing == 0) {
                int const oid =
                    static_cast<int>(random() % static_cast<unsigned>(twin->RowCount()));
                twin->Replace(oid, row.data());
                table->Replace(oid, row.data());
            } else {
                EXPECT_EQ(twin->Append(row.data()), table->Append(row.data()));
            }
            EXPECT_EQ(twin->RowCount(), table->RowCount());
            if (random() % 100 != 0) return;
            // A row can be read as soon as it was appended.
            auto const cursor = table->OpenCursor();
            auto const twinCursor = twin->OpenCursor();
            ASSERT_TRUE(cursor->Seek(twin->RowCount() - 1));
            ASSERT_TRUE(twinCursor->Seek(twin->RowCount() - 1));
            for (int column = 0; column < twin->Metadata().ColumnCount(); ++column)
                ASSERT_TRUE(Cell(cursor->Value(column)) == Cell(twinCursor->Value(column)));
            EXPECT_EQ(table->FindRow(0, 0, 1, cow_String("12")),
                      twin->FindRow(0, 0, 1, cow_String("12")));
        };
        for (int step = 0, n = static_cast<int>(random() % steps); classes > 0 && step < n;
             ++step) {
            unsigned const typeId = 100 + static_cast<unsigned>(random() % classes);
            if (!memory.FindTable(typeId)) {
                EXPECT_EQ(built->FindTable(typeId), nullptr);
                rfm_TableMetadata const layout = AnyLayout(random, typeId);
                memory.CreateTable(layout);
                built->CreateTable(layout);
            }
            append(typeId);
        }
        if (random() % 2) built->AddIndex(100, 0, 1);
        built->Finish();

        auto const read = Open(path);
        ASSERT_EQ(read->Tables().size(), memory.Tables().size());
        for (rfm_Table* const twin : memory.Tables()) {
            rfm_Table* const table = read->FindTable(twin->Metadata().TypeId());
            ASSERT_NE(table, nullptr);
            EXPECT_TRUE(table->Metadata().Name() == twin->Metadata().Name());
            EXPECT_EQ(table->Metadata().Version(), twin->Metadata().Version());
            ASSERT_EQ(table->Metadata().ColumnCount(), twin->Metadata().ColumnCount());
            ASSERT_EQ(table->RowCount(), twin->RowCount());
            std::unique_ptr<rfm_Cursor> cursors[3];
            for (auto& cursor : cursors) cursor = table->OpenCursor();
            auto const twinCursor = twin->OpenCursor();
            for (int i = 0; i < 3 * twin->RowCount(); ++i) {
                auto& cursor = cursors[random() % 3];
                if (random() % 20 == 0) cursor = table->OpenCursor();
                int oid = cursor->Oid() + 1;
                if (random() % 4 == 0) oid = static_cast<int>(random() % 20) - 3;
                bool const found = twinCursor->Seek(oid);
                ASSERT_EQ(cursor->Seek(oid), found);
                EXPECT_EQ(cursor->Oid(), found ? oid : -1);
                if (!found) continue;
                for (int column = 0; column < twin->Metadata().ColumnCount(); ++column)
                    ASSERT_TRUE(Cell(cursor->Value(column)) == Cell(twinCursor->Value(column)));
            }
            for (int i = 0; i < twin->RowCount(); ++i) {
                ASSERT_TRUE(twinCursor->Seek(i));
                rfm_Value const owner = twinCursor->Value(0);
                rfm_Value const key = twinCursor->Value(1);
                if (owner.tag != rfm_Value::Int || key.tag != rfm_Value::Text) continue;
                cow_String const text(key.text, key.length);
                EXPECT_EQ(table->FindRow(0, owner.integer, 1, text),
                          twin->FindRow(0, owner.integer, 1, text));
                EXPECT_EQ(table->FindRow(0, owner.integer, 1, text + "no"), -1);
            }
        }
    }
}

TEST_F(SqliteStore, GivesNothingForAColumnThatIsNotThere) {
    std::string const path = NewFile();
    auto const written = SqliteDatabase::Build(path);
    rfm_TableMetadata layout(7, "one", 203, 1);
    layout.Add("value", rfm_ColumnKind::Int);
    rfm_Value const value = rfm_Value::OfInt(5);
    written->CreateTable(layout).Append(&value);
    written->Finish();
    auto const read = Open(path);
    auto const cursor = read->FindTable(7)->OpenCursor();
    EXPECT_EQ(cursor->Value(0).tag, rfm_Value::Null);
    EXPECT_TRUE(cursor->Seek(0));
    EXPECT_EQ(cursor->Value(0).integer, 5);
    EXPECT_EQ(cursor->Value(-1).tag, rfm_Value::Null);
    EXPECT_EQ(cursor->Value(1).tag, rfm_Value::Null);
}

TEST_F(SqliteStore, KeepsTwoClassesOfOneNameApart) {
    std::string const path = NewFile();
    auto const written = SqliteDatabase::Build(path);
    for (unsigned const typeId : {7u, 8u, 9u}) {
        rfm_TableMetadata layout(typeId, typeId == 9 ? "ONE" : "one", 203, 1);
        layout.Add("value", rfm_ColumnKind::Int);
        rfm_Value const value = rfm_Value::OfInt(typeId);
        written->CreateTable(layout).Append(&value);
    }
    written->Finish();
    auto const read = Open(path);
    for (unsigned const typeId : {7u, 8u, 9u}) {
        auto const cursor = read->FindTable(typeId)->OpenCursor();
        EXPECT_TRUE(cursor->Seek(0));
        EXPECT_EQ(cursor->Value(0).integer, typeId);
    }
}

TEST_F(SqliteStore, IsNotWrittenToWhileItIsRead) {
    std::string const path = NewFile();
    SqliteDatabase::Build(path)->Finish();
    std::string const before = Contents(path);
    auto const read = Open(path);
    EXPECT_THROW(read->CreateTable(rfm_TableMetadata(7, "one", 203, 1)), nex_TextException);
    EXPECT_TRUE(Contents(path) == before);
}

TEST_F(SqliteStore, RefusesARowNumberThatNoFileOfItsSizeCanHave) {
    std::string const path = NewFile();
    auto const written = SqliteDatabase::Build(path);
    rfm_TableMetadata layout(7, "one", 203, 1);
    layout.Add("value", rfm_ColumnKind::Int);
    rfm_Value const value = rfm_Value::OfInt(5);
    written->CreateTable(layout).Append(&value);
    written->Finish();
    Sql(path, "INSERT INTO one VALUES(2000000000,1)");
    EXPECT_THROW(Open(path)->FindTable(7)->RowCount(), nex_TextException);
}

TEST_F(SqliteStore, ReadsNoRowInPlaceOfOneThatIsMissing) {
    std::string const path = NewFile();
    auto const written = SqliteDatabase::Build(path);
    rfm_TableMetadata layout(7, "one", 203, 1);
    layout.Add("value", rfm_ColumnKind::Int);
    rfm_Table& table = written->CreateTable(layout);
    for (int i = 0; i < 5; ++i) {
        rfm_Value const value = rfm_Value::OfInt(i);
        table.Append(&value);
    }
    written->Finish();
    Sql(path, "DELETE FROM one WHERE \"##OID\"=2");
    auto const read = Open(path);
    auto const cursor = read->FindTable(7)->OpenCursor();
    EXPECT_TRUE(cursor->Seek(1));
    EXPECT_FALSE(cursor->Seek(2));
    EXPECT_EQ(cursor->Oid(), -1);
    EXPECT_TRUE(cursor->Seek(3));
    EXPECT_EQ(cursor->Value(0).integer, 3);
}

}  // namespace
