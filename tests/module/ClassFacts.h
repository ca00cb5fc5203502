#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "DDB_NonGeometricAttributes.h"

// Facts of classes, transcribed by hand into tables, against what the library registers, describes
// and says. A table is a file of lines
//
//     CLASS(C, TypeId, version, parent, "constructor")
//     FIELD(C, name, "script", type code, argument, collection, "default")
//
// and, in a file of its own, ENUM(C, Enum, field, "LITERAL"...) and LONE_ENUM(C, Enum, ...). The
// macros that read them are in ClassFactsMacros.inc.

namespace nga_test {

struct ExpectedField {
    std::string name;
    std::string script;
    int type;
    unsigned arg;
    int collection;
    std::string defaultValue;
    std::string saidScript;  ///< what the class's nameCmd() gives
    bool lacksCmd;
};

struct ExpectedClass {
    std::string name;
    unsigned typeId;
    int version;
    unsigned parent;
    std::string constructor;
    std::string saidConstructor;
    std::string saidSetValues;
    unsigned saidTypeId;
    std::vector<ExpectedField> fields;
};

/// The name in a script of a class, or nothing for an abstract class, which has none.
template <class C>
std::string ConstructorOf() {
    if constexpr (requires { C::constructorCmd(); })
        return C::constructorCmd().Text();
    else
        return std::string();
}

inline cls_ClassRegistrar const& DomainOf(cls_MetadataDomain domain) {
    return omi_Singleton<cls_MetadataRegistrar>::Instance().Domain(domain);
}

/// Each is registered in every domain under its name, number, version and parent.
void ExpectRegistered(std::vector<ExpectedClass> const& classes);
/// The numbers of the component that are registered in a domain beside those listed.
std::set<unsigned> OthersRegistered(std::vector<ExpectedClass> const& classes,
                                    cls_MetadataDomain domain, unsigned component);
/// Attributes stand in their order with their codes.
void ExpectAttributes(std::vector<ExpectedClass> const& classes);
/// Descriptions say the same, and are found by the names of scripts.
void ExpectDescriptions(std::vector<ExpectedClass> const& classes);
/// The cmd functions give the names.
void ExpectScriptNames(std::vector<ExpectedClass> const& classes);
/// New objects hold the defaults; abstract classes are abstract.
void ExpectDefaults(std::vector<ExpectedClass> const& classes);

/// Holds literals against an enumeration's rows, and the crossings of its primitive.
template <class E>
void ExpectLiterals(std::string const& name, std::vector<std::string> const& literals) {
    SCOPED_TRACE(name);
    unsigned number = 0;
    for (omu_EnumRow const* row = omu_Rows(E()); row->literal; ++row, ++number) {
        ASSERT_LT(number, literals.size());
        EXPECT_EQ(row->literal, literals[number]);
        EXPECT_EQ(row->value, number);
        EXPECT_STREQ((omu_PrimEnum<E, 1>(static_cast<E>(number)).GetString()),
                     literals[number].c_str());
        E const value = omu_PrimEnum<E, 1>(cow_String(literals[number].c_str()));
        EXPECT_EQ(static_cast<unsigned>(value), number);
    }
    EXPECT_EQ(number, literals.size());
    EXPECT_THROW((omu_PrimEnum<E, 1>(static_cast<E>(number))), omu_ValueErrorException);
    EXPECT_THROW((omu_PrimEnum<E, 1>(cow_String(""))), omu_ValueErrorException);
}

/// Brings the library up.
class LibraryTest : public testing::Test {
protected:
    LibraryTest() {
        DDB_NonGeometricAttributes_initialize(m_count);
        DomainOf(cls_DomainDatabase);
    }
    ~LibraryTest() override { DDB_NonGeometricAttributes_finalize(m_count); }

private:
    int m_count = 0;
};

}  // namespace nga_test
