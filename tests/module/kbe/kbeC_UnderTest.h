#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

namespace kbeC_test {

/// What a validation that raises nothing gives.
inline constexpr char const* passes = "passes";

/// An object of a class of this module known by name, set up from text, so that rules and
/// comparisons can be tested by tables.
///
/// Settings are separated by blanks, in the order in which they take place:
///   field=value           number ("max" and "min" the extremes of its type, "nan"), flag, literal,
///                         or #7 for an enumeration's bare number
///   components=1,2        a list of integers; components=none an empty one
///   table=2x3             all cells 1
///   table=1,2;0,4         two rows of two
///   table[1,0]=5          one cell
///   option=new option=none
///   list=+                a new element by value; list=none none
///   option.field=value    in the option, which is made if absent; in a list's last element
class Object {
public:
    explicit Object(std::string const& className, std::string const& settings = "");
    Object(Object const&) = delete;
    Object& operator=(Object const&) = delete;
    ~Object();

    Object& Set(std::string const& settings);
    /// The text that AssertValid() raises, or passes.
    std::string Verdict() const;
    /// The texts of all rules that fail, in order, when nothing raises.
    std::vector<std::string> AllFailures() const;
    /// By the operators of the class.
    bool Equals(Object const& other) const;
    bool Differs(Object const& other) const;
    void SortDataTable();

    mdl_Description const& Description() const { return *m_description; }
    void* Address() const { return m_object; }
    template <class T>
    T& As() const {
        EXPECT_EQ(m_description->TypeId(), T::TypeId());
        return *static_cast<T*>(m_object);
    }

private:
    mdl_Description const* m_description;
    void* m_object;
};

/// The text that stands for a verdict in the tables: a code, "c~" with the content of a refusal of
/// rate options, or "blank" for a table with a row of zeros.
std::string TextOfVerdict(std::string const& verdict);

std::string VerdictOf(std::string const& className, std::string const& settings = "");
/// Whether an object set up so fails with that verdict, with a message that tells both.
testing::AssertionResult Raises(std::string const& className, std::string const& settings,
                                std::string const& verdict);

std::vector<std::string> Split(std::string const& text, char separator);

/// Brings the library up, with the classes of a database.
class ConnectorTest : public testing::Test {
protected:
    ConnectorTest() {
        DDB_NonGeometricAttributes_initialize(m_count);
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    }
    ~ConnectorTest() override { DDB_NonGeometricAttributes_finalize(m_count); }

private:
    int m_count = 0;
};

}  // namespace kbeC_test
