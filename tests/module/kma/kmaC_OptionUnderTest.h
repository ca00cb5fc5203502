#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

namespace kmaC_test {

/// What a validation that raises nothing gives in place of a code.
inline constexpr int passes = -1;

/// An option of a class known by name, set up from text, so that rules can be tested by tables.
///
/// Settings are separated by blanks, in the order in which they take place:
///   field=value           number ("max" and "min" the extremes of its type, "nan", "inf"), flag,
///                         literal, or #7 for an enumeration's bare number
///   table=2x3             all cells 1; whether the first row may be blank stays
///   table[0,2]=5
///   table=blankrow        a further row of zeros, which is never the first
///   option=new option=none
///   list=+kmaC_Class      a new element; list=none none
///   list=3                as many constants
///   option.field=value    in the option, which is made if absent; in a list's last element
class Option {
public:
    explicit Option(std::string const& className);
    Option(Option const&) = delete;
    Option& operator=(Option const&) = delete;
    ~Option();

    Option& Set(std::string const& settings);
    /// The code that AssertValid() raises, or passes.
    int Verdict() const;
    /// The names of the members that the rules ask, in order, with everything that fails ignored.
    std::string Asked() const;

    mdl_Description const& Description() const { return *m_description; }
    void* Address() { return m_object; }
    /// Gives the object away: to a member of another.
    void* Release();

private:
    mdl_Description const* m_description;
    void* m_object;
};

/// What a new option of that class says once the settings are in place.
int VerdictOf(std::string const& className, std::string const& settings = "");
/// The same of a whole material.
int VerdictOf(kmaC_Material const& material);

std::vector<std::string> Split(std::string const& text, char separator);

/// Brings the library up, with the classes of a database.
class OptionTest : public testing::Test {
protected:
    OptionTest() {
        DDB_NonGeometricAttributes_initialize(m_count);
        omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(cls_DomainDatabase);
    }
    ~OptionTest() override { DDB_NonGeometricAttributes_finalize(m_count); }

private:
    int m_count = 0;
};

}  // namespace kmaC_test
