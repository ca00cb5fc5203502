#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"
#include "nga_Store.h"

namespace store_test {

/// A folder of its own for each test, which goes with it.
class Folder {
public:
    Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "nga_XXXXXX").string();
        if (!mkdtemp(pattern.data())) throw std::runtime_error("no folder for the test");
        m_path = pattern;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    Folder(Folder const&) = delete;
    Folder& operator=(Folder const&) = delete;
    std::string File(std::string const& name) const { return m_path + "/" + name; }
    std::string const& Path() const { return m_path; }
    int Entries() const {
        int count = 0;
        for (auto const& entry : std::filesystem::directory_iterator(m_path)) {
            (void)entry;
            ++count;
        }
        return count;
    }

private:
    std::string m_path;
};

inline std::string Contents(std::string const& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

inline void Overwrite(std::string const& path, std::string const& contents) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << contents;
}

/// Runs SQL on a file as a person with a shell would, or a wicked one.
inline void Sql(std::string const& path, std::string const& sql) {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    char* message = nullptr;
    int const code = sqlite3_exec(database, sql.c_str(), nullptr, nullptr, &message);
    EXPECT_EQ(code, SQLITE_OK) << sql << ": " << (message ? message : "");
    sqlite3_free(message);
    sqlite3_close(database);
}

inline std::string SqlText(std::string const& path, std::string const& sql) {
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    std::string result;
    if (sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK &&
        sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) == SQLITE_OK) {
        while (sqlite3_step(statement) == SQLITE_ROW) {
            auto const* text = sqlite3_column_text(statement, 0);
            if (!result.empty()) result += ' ';
            result += text ? reinterpret_cast<char const*>(text) : "NULL";
        }
    } else {
        result = sqlite3_errmsg(database);
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return result;
}

/// Every row of a table, with all that stands in it.
inline std::vector<std::string> SqlRows(std::string const& path, std::string const& table) {
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    std::vector<std::string> rows;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    EXPECT_EQ(sqlite3_prepare_v2(database, ("SELECT * FROM \"" + table + "\"").c_str(), -1,
                                 &statement, nullptr),
              SQLITE_OK);
    while (sqlite3_step(statement) == SQLITE_ROW) {
        std::string& row = rows.emplace_back();
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            row += std::to_string(sqlite3_column_type(statement, i)) + ":";
            void const* bytes = sqlite3_column_blob(statement, i);
            if (bytes)
                row.append(static_cast<char const*>(bytes),
                           static_cast<std::size_t>(sqlite3_column_bytes(statement, i)));
            row += ';';
        }
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
    return rows;
}

/// What loading a file is refused with; empty if it is not.
inline std::string Refusal(std::string const& path) {
    try {
        nga::LoadModel(path);
    } catch (nga::StoreError const& error) {
        EXPECT_EQ(error.Path(), path);
        return error.Cause();
    }
    return std::string();
}

class Store : public testing::Test {
protected:
    void SetUp() override { DDB_NonGeometricAttributes_initialize(m_count); }
    void TearDown() override { DDB_NonGeometricAttributes_finalize(m_count); }

    Folder folder;

private:
    int m_count = 0;
};

inline kmaC_MaterialContainer& Materials(ddr_Model& model) {
    return static_cast<kmaC_MaterialContainer&>(
        model.GetExtension(cow_String(ddr_Model::materialCmd())).GetValue());
}

inline kmaC_MaterialContainer const& Materials(ddr_Model const& model) {
    return static_cast<kmaC_MaterialContainer const&>(
        model.ConstGetExtension(cow_String(ddr_Model::materialCmd())).ConstGetValue());
}

/// A material of fourteen rows: itself, its entry, and three options, each with its base, its table
/// and the table's array.
inline kmaC_Material* MakeMaterial(int number) {
    auto* material = new kmaC_Material;
    material->description = cow_String(("number " + std::to_string(number)).c_str());
    auto* elastic = new kmaC_Elastic;
    elastic->table = kmaC_MaterialTable(1, 2);
    elastic->table.MutableCell(0, 0) = 210e3 + number;
    elastic->table.MutableCell(0, 1) = 0.3;
    material->elastic = elastic;
    auto* density = new kmaC_Density;
    density->table = kmaC_MaterialTable(1, 1);
    density->table.MutableCell(0, 0) = 7.85e-9;
    material->density = density;
    auto* expansion = new kmaC_Expansion;
    expansion->table = kmaC_MaterialTable(1, 1);
    expansion->table.MutableCell(0, 0) = 1.2e-5;
    material->expansion = expansion;
    return material;
}

inline std::unique_ptr<ddr_Model> MakeModel(int materials) {
    auto model = std::make_unique<ddr_Model>(cow_String("model"));
    for (int i = 0; i < materials; ++i)
        Materials(*model).Insert(cow_String(("m" + std::to_string(i)).c_str()), MakeMaterial(i));
    return model;
}

/// Whether two models hold the same materials under the same names.
inline bool SameMaterials(ddr_Model const& a, ddr_Model const& b) {
    auto const& first = Materials(a);
    auto const& second = Materials(b);
    if (first.Size() != second.Size()) return false;
    cow_List<cow_String> const names = first.Keys();
    for (int i = 0; i < names.Size(); ++i) {
        auto const* one = first.ConstGetPtr(names.UncheckedConstGet(i));
        auto const* other = second.ConstGetPtr(names.UncheckedConstGet(i));
        if (!one || !other || !kmaC_Material::Description().Same(one, other)) return false;
    }
    return true;
}

}  // namespace store_test
