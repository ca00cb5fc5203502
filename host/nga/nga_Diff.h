#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "nga_Collection.h"
#include "nga_Document.h"
#include "nga_TextForm.h"

namespace nga {

/// How far two numbers may be apart and still count as equal: by the larger of \p absolute and
/// \p relative times the larger magnitude. Near zero only the absolute bound helps. A NaN equals a
/// NaN, an infinity itself, and a number that is not set only another that is not.
struct Tolerance {
    double relative = 0;
    double absolute = 0;
};
bool AreNear(double a, double b, Tolerance const& tolerance);

/// One side of a difference. Good while what was compared is.
struct DiffValue {
    enum class What {
        Missing,  ///< this side has nothing there
        Object,   ///< an object of the description
        Field,    ///< the value of a field, at its address
        Real,     ///< a cell of a table, or an element or entry of a list or map
        Integer
    };
    What what = What::Missing;
    mdl_Description const* description = nullptr;  ///< of the object, or of the field's owner
    mdl_Field const* field = nullptr;
    void const* at = nullptr;
    double real = 0;
    int integer = 0;
};

struct Difference {
    std::string path;
    DiffValue before;
    DiffValue after;
};
using DifferenceFound = std::function<void(Difference const&)>;

/// The content of a document at one time. It shares with the document, so it costs a few counts.
class Snapshot {
public:
    explicit Snapshot(ddr_Model const& model);
    /// The repository of a collection, for Collection::Compare(); null where there was none.
    void const* Of(std::size_t collection) const { return m_kept[collection].get(); }

private:
    std::vector<std::shared_ptr<void const>> m_kept;
};

/// Tells where two contents differ, in the order of collections and names. \p root stands before
/// each path. What the two share costs nothing. An Error for a tolerance below zero or a NaN.
void Diff(Snapshot const& before, Snapshot const& after, std::string const& root,
          Tolerance const& tolerance, DifferenceFound const& found);

/// A side as text for people, in one line.
std::string DiffText(DiffValue const& value);
/// The same whole, in the words of the text form; null where there is nothing.
void WriteDiffValue(JsonWriter& writer, Defaults& defaults, DiffValue const& value);

}  // namespace nga
