#include <map>
#include <set>

#include "kbeC_UnderTest.h"
#include "support/Owned.h"

// The comparisons of every class, field by field, from the table beside this.

namespace kbeC_equality_test {

using kbeC_test::Object;

struct Line {
    std::string className;
    std::string settings;
    std::string change;
    bool differs;
};

std::vector<Line> const lines = {
#define DIFFERS(C, settings, change) {#C, settings, change, true},
#define SAME(C, settings, change) {#C, settings, change, false},
#include "kbeC_equality.inc"
#undef DIFFERS
#undef SAME
};

class ConnectorEquality : public kbeC_test::ConnectorTest {};

std::set<std::string> ListedClasses() {
    std::set<std::string> classes;
    for (Line const& line : lines) classes.insert(line.className);
    return classes;
}

TEST_F(ConnectorEquality, IsListedForEveryFieldOfEveryClassThatHasOne) {
    std::map<std::string, std::set<std::string>> listed;
    for (Line const& line : lines)
        if (line.differs)
            listed[line.className].insert(line.change.substr(0, line.change.find_first_of("=.[")));
    EXPECT_EQ(listed.size(), 13u);
    for (auto const& [className, fields] : listed) {
        std::set<std::string> all;
        Object const object(className);
        for (mdl_Field const& field : object.Description().Fields()) all.insert(field.Name());
        EXPECT_EQ(fields, all) << className;
    }
}

TEST_F(ConnectorEquality, IsDecidedByTheFieldsThatTakePart) {
    for (Line const& line : lines) {
        SCOPED_TRACE(line.className + " {" + line.settings + "} " + line.change);
        Object const a(line.className, line.settings);
        Object b(line.className, line.settings);
        EXPECT_TRUE(a.Equals(b));
        EXPECT_FALSE(a.Differs(b));
        b.Set(line.change);
        EXPECT_EQ(a.Equals(b), !line.differs);
        EXPECT_EQ(b.Equals(a), !line.differs);
        EXPECT_EQ(a.Differs(b), line.differs);
        EXPECT_EQ(b.Differs(a), line.differs);
    }
}

TEST_F(ConnectorEquality, ANaNEqualsNothing) {
    int tried = 0;
    for (std::string const& className : ListedClasses()) {
        for (mdl_Field const& field : Object(className).Description().Fields()) {
            std::string setting;
            if (field.Type().Kind() == mdl_FieldKind::Double)
                setting = std::string(field.Name()) + "=nan";
            else if (field.Type().Kind() == mdl_FieldKind::Object ||
                     field.Type().Kind() == mdl_FieldKind::Array)
                setting = std::string(field.Name()) + "=1,nan";
            else
                continue;
            Object const object(className, setting);
            EXPECT_FALSE(object.Equals(object)) << className << ' ' << setting;
            EXPECT_TRUE(object.Differs(object)) << className << ' ' << setting;
            ++tried;
        }
    }
    // 23 doubles and 9 tables.
    EXPECT_EQ(tried, 23 + 9);
}

TEST_F(ConnectorEquality, IdentitiesTakeNoPart) {
    for (std::string const& className : ListedClasses()) {
        Object const a(className);
        Object const b(className);
        EXPECT_NE(a.Description().Uid(a.Address()), b.Description().Uid(b.Address()));
        EXPECT_TRUE(a.Equals(b)) << className;
    }
}

TEST_F(ConnectorEquality, OptionsOfDifferentClassesDiffer) {
    char const* const options[] = {"kbeC_ConnectorElasticity", "kbeC_ConnectorDamping",
                                   "kbeC_ConnectorStop",       "kbeC_ConnectorLock",
                                   "kbeC_ConnectorFailure",    "kbeC_ConnectorFriction",
                                   "kbeC_ConnectorPlasticity", "kbeC_ConnectorDamage"};
    for (char const* a : options) {
        for (char const* b : options) {
            EXPECT_EQ(Object(a).Equals(Object(b)), a == b) << a << ' ' << b;
            EXPECT_EQ(Object(a).Differs(Object(b)), a != b) << a << ' ' << b;
        }
    }
}

TEST_F(ConnectorEquality, OptionsOfAKnownClassAreComparedToo) {
    kbeC_ConnectorLock a;
    kbeC_ConnectorLock b;
    kbeC_ConnectorBehaviorOption const& base = b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    EXPECT_TRUE(a == base);
    EXPECT_TRUE(base == a);
    b.minForce = 1.0;
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    EXPECT_TRUE(a != base);
    EXPECT_TRUE(base != a);
    kbeC_ConnectorFailure const other;
    EXPECT_TRUE(base != other);
}

TEST_F(ConnectorEquality, ACopySharesAndADeepCopyDoesNot) {
    kbeC_ConnectorFriction friction;
    friction.tangentialBehavior = new kbeC_TangentialBehavior;
    friction.derivedComponent = new kbeC_DerivedComponent;
    friction.derivedComponent.Get().cdcTerms.Append(kbeC_CDCTerm());
    friction.connectorPotentials.Append(kbeC_ConnectorPotential());
    nga_test::Owned<kbeC_ConnectorBehaviorOption> const copy(friction.Copy());
    nga_test::Owned<kbeC_ConnectorBehaviorOption> const deep(friction.DeepCopy());
    EXPECT_TRUE(*copy == friction);
    EXPECT_TRUE(*deep == friction);
    auto const& shallow = static_cast<kbeC_ConnectorFriction const&>(*copy);
    auto const& apart = static_cast<kbeC_ConnectorFriction const&>(*deep);
    EXPECT_EQ(copy->DynTypeId(), friction.DynTypeId());
    EXPECT_EQ(deep->DynTypeId(), friction.DynTypeId());
    EXPECT_EQ(shallow.uid, friction.uid);
    EXPECT_EQ(copy->uid, static_cast<kbeC_ConnectorBehaviorOption const&>(friction).uid);
    EXPECT_NE(apart.uid, friction.uid);
    EXPECT_EQ(shallow.tangentialBehavior.GetPtr(), friction.tangentialBehavior.GetPtr());
    EXPECT_NE(apart.tangentialBehavior.GetPtr(), friction.tangentialBehavior.GetPtr());
    EXPECT_NE(apart.derivedComponent.ConstGet().uid, friction.derivedComponent.ConstGet().uid);
    EXPECT_NE(apart.connectorPotentials.uid, friction.connectorPotentials.uid);
    EXPECT_NE(apart.connectorPotentials.ConstGet(0).uid,
              friction.connectorPotentials.ConstGet(0).uid);
    EXPECT_NE(apart.table.uid, friction.table.uid);
    EXPECT_NE(apart.independentComponents.uid, friction.independentComponents.uid);
}

}  // namespace kbeC_equality_test
