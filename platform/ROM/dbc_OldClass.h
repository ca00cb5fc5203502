#pragma once

#include <cstddef>

#include "cls_Codes.h"
#include "dbc_ClassConverter.h"
#include "dbc_OldClassVersion.h"

/// One field of a superseded layout, as it is entered.
struct dbc_OldField {
    char const* name;
    cls_AttributeType type;
    unsigned arg = 1;
    cls_CollectionType collection = cls_CollectionNone;
};

constexpr dbc_OldField dbc_Flag(char const* name) { return {name, cls_AttributeBool}; }
constexpr dbc_OldField dbc_Int(char const* name) { return {name, cls_AttributeInt}; }
constexpr dbc_OldField dbc_Real(char const* name) { return {name, cls_AttributeDouble}; }
constexpr dbc_OldField dbc_Text(char const* name) { return {name, cls_AttributeString}; }
constexpr dbc_OldField dbc_Literal(char const* name) { return {name, cls_AttributeEnum}; }
constexpr dbc_OldField dbc_Object(char const* name, unsigned typeId) {
    return {name, cls_AttributeObject, typeId};
}
constexpr dbc_OldField dbc_Objects(char const* name) {
    return {name, cls_AttributeObject, cls_ListTypeId, cls_CollectionList};
}
constexpr dbc_OldField dbc_IntList(char const* name) {
    return {name, cls_AttributeObject, cls_ListTypeId, cls_CollectionListInt};
}
constexpr dbc_OldField dbc_RealList(char const* name) {
    return {name, cls_AttributeObject, cls_ListTypeId, cls_CollectionListDouble};
}
constexpr dbc_OldField dbc_Reals(char const* name) {
    return {name, cls_AttributeObject, cls_ListTypeId, cls_CollectionArray2DDouble};
}
constexpr dbc_OldField dbc_IntMap(char const* name) {
    return {name, cls_AttributeObject, cls_MapTypeId, cls_CollectionMapInt};
}

/// The fields of a superseded layout, in their order.
struct dbc_OldFields {
    dbc_OldField const* first = nullptr;
    std::size_t count = 0;

    constexpr dbc_OldFields() = default;
    template <std::size_t n>
    constexpr dbc_OldFields(dbc_OldField const (&fields)[n]) : first(fields), count(n) {}
};

/// What becomes of an old class: a step to its next layout, or its end.
struct dbc_OldClassEnd {
    int next = 0;  ///< the version of the next layout; 0 where the class was retired
    dbc_ConversionFunction convert = nullptr;
    dbc_FinalizeFunction finalize = nullptr;
    bool deleted = false;
    char const* newName = nullptr;
    void (*moveTable)(dbc_DatabaseConverter& converter) = nullptr;
};

constexpr dbc_OldClassEnd dbc_Step(int next, dbc_ConversionFunction convert = nullptr,
                                   dbc_FinalizeFunction finalize = nullptr) {
    return {next, convert, finalize, false, nullptr, nullptr};
}
constexpr dbc_OldClassEnd dbc_Deleted() { return {0, nullptr, nullptr, true, nullptr, nullptr}; }
constexpr dbc_OldClassEnd dbc_Renamed(char const* newName,
                                      void (*moveTable)(dbc_DatabaseConverter&)) {
    return {0, nullptr, nullptr, true, newName, moveTable};
}

/// An old class version as a row of a table: all there is to say of it.
struct dbc_OldClass {
    char const* oldName;  ///< the class's name and the version, "kmaC_Plastic_419"
    char const* name;
    unsigned typeId;
    int version;
    unsigned parentTypeId;
    unsigned mask;
    dbc_OldFields fields;
    dbc_OldClassEnd end;
};

/// The old class version that such a row describes.
class dbc_OldClassOfTable : public dbc_OldClassVersion {
public:
    /// The row outlives this.
    explicit dbc_OldClassOfTable(dbc_OldClass const& row) : m_row(row) {}
    void InitializeMetadata(cls_ClassRegistrar& registrar) const override;
    void SchemaChanges(dbc_DatabaseConverter& converter) const override;
    void ClassesToDelete(dbc_DatabaseConverter& converter) const override;
    void ClassesToRename(dbc_DatabaseConverter& converter) const override;
    void TablesToRename(dbc_DatabaseConverter& converter) const override;
    void const* Identity() const override { return &m_row; }
    dbc_OldClass const& Row() const { return m_row; }

private:
    dbc_OldClass const& m_row;
};

/// Registers the old classes of a module, in the order of its table.
void dbc_RegisterOldClasses(dbc_OldClass const* rows, std::size_t count);
template <std::size_t n>
void dbc_RegisterOldClasses(dbc_OldClass const (&rows)[n]) {
    dbc_RegisterOldClasses(rows, n);
}
