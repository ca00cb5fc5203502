#pragma once

#include "cow_Virtual.h"
#include "mdl_Describe.h"

// Described classes that no module owns, with a field of every type. A test that includes this
// defines them with NGA_DEFINE_SPECIMENS, in one source of its program.

extern mdl_Module const specimen_Module;

/// A class without a parent, held by value, by handle and in lists.
class specimen_Part : public mem_AllocationOperators {
    DD_ROOT(specimen_Part, 0x7770001, 203, "Part")
public:
    virtual ~specimen_Part() = default;
    virtual specimen_Part* Copy() const;
    virtual void AssertValid() const;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    DD_FIELD(int, number, 4)
    DD_END
};

/// An abstract class with a field of its own level.
class specimen_Base : public mem_AllocationOperators {
    DD_ABSTRACT(specimen_Base, 0x7770002, 204)
public:
    virtual ~specimen_Base() = default;
    virtual specimen_Base* Copy() const = 0;
    virtual void AssertValid() const = 0;
    virtual unsigned DynTypeId() const;
    virtual void DBWrite(cls_WriteVisitor const& visitor) const;
    DD_FIELD(int, level, 1)
    DD_END

protected:
    specimen_Base() = default;
    specimen_Base(specimen_Base const&) = default;
    specimen_Base& operator=(specimen_Base const&) = default;
    explicit specimen_Base(cls_ReadVisitor const& visitor) : uid() {
        Description().ReadFields(this, visitor);
        uid = visitor.GetUid();
    }
};

using specimen_BaseHandle = cow_ArrayCOW<specimen_Base, cow_Virtual<specimen_Base>>;
using specimen_BaseList = mdl_1DArrayList<specimen_BaseHandle, specimen_Base>;

/// A field of every type. Its script names differ from its schema names in two places.
class specimen_Whole : public specimen_Base {
    DD_CLASS(specimen_Whole, specimen_Base, 0x7770003, 205, "Whole")
public:
    DD_ENUM(ColourEnm, RED, GREEN, DARK_BLUE)
    DD_FIELD(int, count, 3)
    DD_FIELD(double, real, 0.25)
    DD_FIELD_AS(cow_String, text, "label", "none")
    DD_FIELD(bool, flag, true)
    DD_FIELD(ColourEnm, colour, ColourEnm::GREEN)
    DD_FIELD(specimen_Part, part)
    DD_OPTION(specimen_Part, option)
    DD_FIELD(specimen_BaseList, options)
    DD_FIELD(cls_xo1DArrayList<specimen_Part>, parts)
    DD_FIELD(cls_xp1DArrayListInt, ints)
    DD_FIELD(cls_xp1DArrayListDouble, reals)
    DD_FIELD(cls_xpMapString2Float, factors)
    DD_FIELD(cls_xp2DArrayDouble, cells)
    DD_END
};

#define NGA_DEFINE_SPECIMENS                                                        \
    mdl_Module const specimen_Module = {"spe", [](int) { return atr_String(); },    \
                                        [](int code) { throw code; }};              \
    DD_DEFINE_ROOT(specimen_Part, specimen_Module)                                  \
    DD_DEFINE_ABSTRACT(specimen_Base, specimen_Module)                              \
    DD_DEFINE(specimen_Whole, specimen_Module)                                      \
    void specimen_Part::Rules(mdl_RuleVisitor& v) const { v.Rule(number >= 0, 7); } \
    void specimen_Whole::Rules(mdl_RuleVisitor& v) const {                          \
        if (!v.Rule(count >= 0, 1)) return;                                         \
        v.Ask(option);                                                              \
        v.Ask(part);                                                                \
        v.AskEach(options);                                                         \
        v.AskEach(parts);                                                           \
        v.Rule(real >= 0.0, 2);                                                     \
    }
