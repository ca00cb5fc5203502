#pragma once

#include <memory>
#include <string>

#include "dbc_TableRfm.h"
#include "rfm_Array.h"
#include "rom_Transporter.h"

/// What conversions do to more than one row. All of it belongs to the running upgrade, and new rows
/// get identities that follow from their owner and field, so that an upgrade gives the same
/// database whenever it runs.
namespace dbc_Utils {

/// The output's table of a class, made in the layout of the step if it is not there.
dbc_TableRfm& CreateClassInOutputDatabase(unsigned const& typeId, rom_Transporter& output);
/// The parent level's row of a row, in the input table of the parent's class. Raises where the row
/// has none.
dbc_Row const& GetBaseObj(dbc_TableRfm& parents, dbc_Row const& row);
/// Appends a row to a table and points the field of the owner's output row at it.
dbc_Row& SetObj(dbc_Table& table, cow_String const& field, dbc_Row& owner, unsigned const& typeId);
/// The entries of a map field of an input row. \p collection is the kind of map.
std::unique_ptr<dbc_TableRfm> GetAttributeMapFromInputDatabase(dbc_Row const& row,
                                                               cow_String const& field,
                                                               int collection);
/// Gives a field of an output row a new list, whose \p count entries are then appended to the table
/// that this returns.
std::unique_ptr<dbc_TableRfm> SetNewAttributeListInOutputDatabase(dbc_Row& row,
                                                                  cow_String const& field,
                                                                  int count);
/// Gives a field of an output row a new table of reals with so many columns. What is written to
/// the array counts until the array's row is stored: write at once.
std::unique_ptr<rfm_Array<double, 4>> SetNewAttributeArrayDoubleInOutputDatabase(
    dbc_Row& row, cow_String const& field, int columns);

/// The identity of a row that a step makes for a field of another.
std::string DerivedUid(dbc_Row const& owner, char const* field);
/// An identity that follows from a text, 16 bytes.
std::string UidOf(std::string const& text);

}  // namespace dbc_Utils
