#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "cow_String.h"
#include "dbc_KeptTable.h"
#include "dbc_Row.h"
#include "dbc_Utils.h"

class dbc_DatabaseConverter;

/// An object field: its bare name and its two columns.
struct dbc_ObjectField {
    explicit dbc_ObjectField(char const* field)
        : name(field),
          classId((std::string(field) + "#ClassID").c_str()),
          oid((std::string(field) + "#OID").c_str()) {}
    rfm_FieldHandle name, classId, oid;
};

/// The moves of which conversions are made.
namespace dbc_Moves {

dbc_DatabaseConverter& Run();

// ---- guards ----
// Whether the row holds the field already, so that a move into it must not be made. The two forms
// ask in another order; nothing else differs.
bool HasAndIsSet(dbc_Row const& in, rfm_FieldHandle const& field);
bool IsSetAndHas(dbc_Row const& in, rfm_FieldHandle const& field);

// ---- values under another name ----
void MoveInt(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
             rfm_FieldHandle const& to);
void MoveDouble(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
                rfm_FieldHandle const& to);
void MoveString(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& from,
                rfm_FieldHandle const& to);
/// Both columns of a reference.
void MoveObject(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& from,
                dbc_ObjectField const& to);
/// The number of the row, under a class that the conversion knows.
void MoveObjectAs(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& from,
                  dbc_ObjectField const& to, unsigned typeId);

// Under the same name, where a row is copied by hand.
void CopyInt(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& field);
void CopyDouble(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& field);
void CopyString(dbc_Row const& in, dbc_Row& out, rfm_FieldHandle const& field);
void CopyObject(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& field);
/// The link to the parent level's row.
void CopyBase(dbc_Row const& in, dbc_Row& out);
/// Only where the row refers to one.
void CopyOption(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& field);

using LiteralMap = std::initializer_list<std::pair<char const*, char const*>>;
/// A literal by another one; what is not in the map stays.
cow_String Mapped(cow_String const& literal, LiteralMap map);

// ---- references ----
/// The row number that a reference holds; raises where it holds none.
int Reference(dbc_Row const& row, rfm_FieldHandle const& oid);
/// The row that it leads to.
dbc_Row const& Follow(dbc_Row const& row, rfm_FieldHandle const& oid, dbc_Table& table);

// ---- arrays ----
/// A stored table of reals.
struct Array {
    int columns = 0;
    int rows = 0;
    std::vector<double> values;
};
/// The array of a row of the table of collections. Raises where its columns do not divide it.
Array ReadArray(dbc_Row const& row);
/// Appends an array to the output's table of collections, for the field of an owner; its number.
int AppendArray(dbc_Row const& owner, char const* field, Array const& array);

// ---- connectors ----
/// Takes the potentials of a container, in the order of its map, to a list.
void MovePotentials(dbc_Row const& in, dbc_Row& out, dbc_ObjectField const& from,
                    dbc_ObjectField const& to, unsigned containerTypeId, unsigned potentialTypeId);

}  // namespace dbc_Moves
