#include "dbc_RowRfm.h"

#include <climits>
#include <cstring>

#include "dbc_Failure.h"
#include "dbc_Table.h"
#include "dbc_WorkTable.h"
#include "nex_TextException.h"

dbc_Row::~dbc_Row() = default;
dbc_Table::~dbc_Table() = default;

void dbc_Fail(std::string const& text) {
    atr_String message = atr_raw("%s");
    message.ReplaceNonTranslated(0, cow_String(std::string_view(text)));
    nex_TextException(message).Throw("platform/ROM/dbc", 0);
}

namespace {

char const* KindName(rfm_Value::Tag tag) {
    switch (tag) {
        case rfm_Value::Null:
            return "nothing";
        case rfm_Value::Int:
            return "an integer";
        case rfm_Value::Double:
            return "a real";
        case rfm_Value::Text:
            return "text";
        case rfm_Value::Bytes:
            return "bytes";
    }
    return "";
}

bool IsReferenced(rfm_Value const& value) {
    return value.tag == rfm_Value::Text || value.tag == rfm_Value::Bytes;
}

}  // namespace

// ---- what it stands on or holds ----------------------------------------------------------------

void dbc_RowRfm::Start(dbc_Places& places, int oid, Holds holds) {
    m_places = &places;
    m_oid = oid;
    m_holds = holds;
    m_new = false;
    m_changed = false;
    m_own = nullptr;
    m_former = nullptr;
    m_bytes.clear();
    m_texts.clear();
    m_arrays.clear();
    m_extras.clear();
}

void dbc_RowRfm::StartRead(dbc_Places& places, int oid, rfm_Cursor* own, rfm_Cursor* former) {
    Start(places, oid, Holds::Cursors);
    m_own = own;
    m_former = former;
}

void dbc_RowRfm::StartCarried(dbc_Places& places, int oid, rfm_Cursor& former) {
    Start(places, oid, Holds::Values);
    m_former = &former;
    std::vector<int> const& from = places.CarriedFrom();
    m_values.resize(from.size());
    for (std::size_t i = 0; i < from.size(); ++i)
        m_values[i] = from[i] < 0 ? rfm_Value() : former.Value(from[i]);
}

void dbc_RowRfm::StartWrite(dbc_Places& places, int oid, rfm_Cursor& own, rfm_Cursor* former) {
    Start(places, oid, Holds::Values);
    m_former = former;
    m_values.resize(places.OwnLayout().Columns().size());
    std::size_t length = 0;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        m_values[i] = own.Value(static_cast<int>(i));
        if (IsReferenced(m_values[i])) length += static_cast<std::size_t>(m_values[i].length);
    }
    // Reserved as a whole, so that no value moves.
    m_copied.clear();
    m_copied.reserve(length + 1);
    for (rfm_Value& value : m_values) {
        if (!IsReferenced(value)) continue;
        char const* const place = m_copied.data() + m_copied.size();
        if (value.length > 0)
            m_copied.append(static_cast<char const*>(value.bytes),
                            static_cast<std::size_t>(value.length));
        value.bytes = place;
    }
}

void dbc_RowRfm::StartNew(dbc_Places& places, int oid) {
    Start(places, oid, Holds::Values);
    m_values.assign(places.OwnLayout().Columns().size(), rfm_Value());
    m_new = true;
}

void dbc_RowRfm::Carry(dbc_RowRfm const& from) {
    rfm_TableMetadata const* const fromLayout = &from.m_places->OwnLayout();
    rfm_TableMetadata const* const toLayout = &m_places->OwnLayout();
    if (m_betweenFrom != fromLayout || m_betweenTo != toLayout) {
        m_between = std::make_unique<dbc_Places>(*toLayout, fromLayout);
        m_betweenFrom = fromLayout;
        m_betweenTo = toLayout;
    }
    std::vector<int> const& columns = m_between->CarriedFrom();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i] < 0) continue;
        rfm_Value value = from.At({dbc_Places::Own, columns[i]});
        if (IsReferenced(value)) {
            m_bytes.emplace_back(static_cast<char const*>(value.bytes),
                                 static_cast<std::size_t>(value.length));
            value.bytes = m_bytes.back().c_str();
        }
        m_values[i] = value;
    }
    from.m_table.CountDropped(from, *m_between);
}

void dbc_RowRfm::MapClasses(std::vector<int> const& columns) {
    for (int column : columns) {
        rfm_Value& value = m_values[static_cast<std::size_t>(column)];
        rfm_Value const mapped = m_table.MappedClass(value);
        if (mapped.integer == value.integer) continue;
        value = mapped;
        m_changed = true;
    }
}

rfm_Value const* dbc_RowRfm::Values() {
    for (auto const& [column, handle] : m_arrays) {
        std::string const& bytes = *handle.Bytes();
        m_values[static_cast<std::size_t>(column)] =
            rfm_Value::OfBytes(bytes.data(), static_cast<int>(bytes.size()));
    }
    return m_values.data();
}

void dbc_RowRfm::Store() {
    if (m_holds != Holds::Values) return;
    if (m_new) {
        if (m_table.Pending() == this) m_table.SetPending(nullptr);
        int const oid = m_table.Append(Values());
        if (oid != m_oid) dbc_Fail(Where() + " was stored under another number.");
        m_new = false;
        m_changed = false;
        if (abandoned) ReleaseRow();
    } else if (m_changed) {
        m_table.Storage()->Replace(m_oid, Values());
        m_changed = false;
    }
}

void dbc_RowRfm::ReleaseRow() const {
    auto* const self = const_cast<dbc_RowRfm*>(this);
    if (!home) return;
    if (m_holds == Holds::Nothing) return;
    self->abandoned = false;
    self->Store();
    self->m_holds = Holds::Nothing;
    self->m_own = nullptr;
    self->m_former = nullptr;
    home->push_back(self);
}

// ---- reading -----------------------------------------------------------------------------------

rfm_Value dbc_RowRfm::At(dbc_Places::Place place) const {
    if (place.where == dbc_Places::Own) {
        if (m_holds == Holds::Values) return m_values[static_cast<std::size_t>(place.column)];
        if (m_own) return m_own->Value(place.column);
        if (!m_former) return rfm_Value();
        int const from = m_places->CarriedFrom()[static_cast<std::size_t>(place.column)];
        return from < 0 ? rfm_Value() : m_former->Value(from);
    }
    if (place.where == dbc_Places::Former && m_former) return m_former->Value(place.column);
    return rfm_Value();
}

rfm_Value dbc_RowRfm::Get(rfm_FieldHandle const& field) const {
    // Of a class that ends, what somebody reads goes on elsewhere.
    if (m_table.isRetiring) m_table.NoteTaken(field, m_oid, true);
    dbc_Places::Place const place = m_places->Of(field);
    if (place.where != dbc_Places::Own)
        for (auto const& [number, value] : m_extras)
            if (number == field.Number()) return value;
    return At(place);
}

bool dbc_RowRfm::HasField(rfm_FieldHandle const& field) const {
    return m_places->Of(field).where != dbc_Places::None ||
           m_places->OfReference(field).where != dbc_Places::None;
}

bool dbc_RowRfm::IsSet(rfm_FieldHandle const& field) const {
    if (m_places->Of(field).where == dbc_Places::None) {
        dbc_Places::Place const reference = m_places->OfReference(field);
        if (reference.where != dbc_Places::None) return At(reference).tag != rfm_Value::Null;
    }
    for (auto const& [column, handle] : m_arrays)
        if (m_places->Of(field).where == dbc_Places::Own && m_places->Of(field).column == column)
            return true;
    return Get(field).tag != rfm_Value::Null;
}

void dbc_RowRfm::FailKind(rfm_FieldHandle const& field, rfm_Value const& value,
                          char const* expected) const {
    dbc_Fail(Where() + ", field \"" + field.Name() + "\", holds " + KindName(value.tag) +
             " where " + expected + " was expected.");
}

int dbc_RowRfm::GetInt(rfm_FieldHandle const& field) const {
    rfm_Value const value = Get(field);
    if (value.tag == rfm_Value::Null) return 0;
    if (value.tag != rfm_Value::Int) FailKind(field, value, "an integer");
    if (value.integer < INT_MIN || value.integer > INT_MAX)
        dbc_Fail(Where() + ", field \"" + field.Name() + "\", holds a number beyond 32 bits.");
    return static_cast<int>(value.integer);
}

float dbc_RowRfm::GetFloat(rfm_FieldHandle const& field) const {
    return static_cast<float>(GetDouble(field));
}

double dbc_RowRfm::GetDouble(rfm_FieldHandle const& field) const {
    rfm_Value const value = Get(field);
    if (value.tag == rfm_Value::Null) return 0.0;
    if (value.tag != rfm_Value::Double) FailKind(field, value, "a real");
    return value.real;
}

rfm_Handle dbc_RowRfm::GetHandle(rfm_FieldHandle const& field) const {
    dbc_Places::Place const place = m_places->Of(field);
    for (auto const& [column, handle] : m_arrays)
        if (place.where == dbc_Places::Own && place.column == column) return handle;
    rfm_Value const value = Get(field);
    if (value.tag == rfm_Value::Null) return rfm_Handle();
    if (value.tag != rfm_Value::Bytes) FailKind(field, value, "bytes");
    if (value.length % static_cast<int>(sizeof(double)) != 0)
        dbc_Fail(Where() + ", field \"" + field.Name() + "\", holds an array that is damaged.");
    return rfm_Handle(std::make_shared<std::string>(static_cast<char const*>(value.bytes),
                                                    static_cast<std::size_t>(value.length)));
}

cow_String dbc_RowRfm::GetString(rfm_FieldHandle const& field) const {
    rfm_Value const value = Get(field);
    if (value.tag == rfm_Value::Null) return cow_String();
    if (value.tag != rfm_Value::Text) FailKind(field, value, "text");
    return cow_String(value.text, value.length);
}

// ---- writing -----------------------------------------------------------------------------------

void dbc_RowRfm::Set(rfm_FieldHandle const& field, rfm_Value const& value, rfm_ColumnKind kind) {
    if (m_holds != Holds::Values) dbc_Fail(Where() + " is read only and was to be written to.");
    dbc_Places::Place const place = m_places->Of(field);
    if (place.where == dbc_Places::Own) {
        auto const column = static_cast<std::size_t>(place.column);
        rfm_ColumnKind const own = m_places->OwnLayout().Columns()[column].kind;
        if (own != kind && value.tag != rfm_Value::Null && own != rfm_ColumnKind::Key)
            dbc_Fail(Where() + ", field \"" + field.Name() + "\", was to hold " +
                     KindName(value.tag) + ", which its column cannot.");
        m_values[column] = value;
        m_changed = true;
        return;
    }
    for (auto& [number, extra] : m_extras)
        if (number == field.Number()) {
            extra = value;
            return;
        }
    m_extras.emplace_back(field.Number(), value);
}

void dbc_RowRfm::SetInt(rfm_FieldHandle const& field, int value) {
    Set(field, rfm_Value::OfInt(value), rfm_ColumnKind::Int);
}

void dbc_RowRfm::SetFloat(rfm_FieldHandle const& field, float value) {
    SetDouble(field, static_cast<double>(value));
}

void dbc_RowRfm::SetDouble(rfm_FieldHandle const& field, double value) {
    Set(field, rfm_Value::OfDouble(value), rfm_ColumnKind::Double);
}

void dbc_RowRfm::SetHandle(rfm_FieldHandle const& field, rfm_Handle const& value) {
    if (value.IsNull()) {
        Clear(field);
        return;
    }
    Set(field, rfm_Value::OfBytes("", 0), rfm_ColumnKind::Bytes);
    dbc_Places::Place const place = m_places->Of(field);
    if (place.where != dbc_Places::Own) return;
    for (auto& [column, handle] : m_arrays)
        if (column == place.column) {
            handle = value;
            return;
        }
    m_arrays.emplace_back(place.column, value);
}

void dbc_RowRfm::SetString(rfm_FieldHandle const& field, cow_String const& value) {
    // The text of a cow_String stays where it is as long as somebody holds it.
    m_texts.push_back(value);
    Set(field, rfm_Value::OfText(m_texts.back().Text(), m_texts.back().Length()),
        rfm_ColumnKind::Text);
}

void dbc_RowRfm::Clear(rfm_FieldHandle const& field) {
    Set(field, rfm_Value(), rfm_ColumnKind::Int);
}

// ---- the rest ----------------------------------------------------------------------------------

std::string dbc_RowRfm::Where() const {
    return "Row " + std::to_string(m_oid) + " of table " + m_table.Name();
}

void dbc_RowRfm::NoteMove(dbc_Row const& source, rfm_FieldHandle const& from,
                          rfm_FieldHandle const& to) {
    // All rows of a run are of this class; asking each would cost more than the move.
    auto const& in = static_cast<dbc_RowRfm const&>(source);
    if (!dbc_WorkTable::IsHeld(in.Get(from))) return;
    if (from.Number() != to.Number()) m_table.NoteMove(from, to);
    in.m_table.NoteTaken(from, in.m_oid, &in.m_table != &m_table);
}

void dbc_RowRfm::NoteZero(rfm_FieldHandle const& to) { m_table.NoteZero(to); }

void dbc_RowRfm::Note(char const* text) {
    dbc_ClassReport::Note& note = m_table.Report().notes[text];
    if (note.rows++ == 0) note.firstRow = m_oid;
}

std::string dbc_RowRfm::Uid() const {
    static rfm_FieldHandle const uid("##Uid");
    rfm_Value const value = Get(uid);
    if (value.tag != rfm_Value::Bytes) return std::string();
    return std::string(static_cast<char const*>(value.bytes),
                       static_cast<std::size_t>(value.length));
}

void dbc_RowRfm::SetUid(std::string const& bytes) {
    static rfm_FieldHandle const uid("##Uid");
    m_bytes.push_back(bytes);
    Set(uid, rfm_Value::OfBytes(m_bytes.back().data(), static_cast<int>(m_bytes.back().size())),
        rfm_ColumnKind::Bytes);
}
