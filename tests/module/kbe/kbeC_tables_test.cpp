#include <algorithm>
#include <climits>
#include <random>
#include <set>

#include "kbeC_UnderTest.h"
#include "support/Tables.h"

// The shape of the tables of behaviours, and the order of their rows.

namespace kbeC_tables_test {

using kbeC_test::Object;
using kbeC_test::passes;
using kbeC_test::TextOfVerdict;
using nga_test::Rows;

struct Shape {
    std::string behavior;
    std::string coupling;
    int components;
    int independent;
    int elasticity;
    int damping;
};
std::vector<Shape> const shapes = {
#define COLUMNS(behavior, coupling, n, i, elasticity, damping) \
    {#behavior, #coupling, n, i, elasticity, damping},
#include "kbeC_columns.inc"
#undef COLUMNS
};

struct Keys {
    std::string className;
    std::string settings;
    std::string table;
    int keys;
};
std::vector<Keys> const keyLines = {
#define KEYS(C, settings, table, keys) {#C, settings, #table, keys},
#include "kbeC_keys.inc"
#undef KEYS
};

std::string Numbers(int count) {
    if (count == 0) return "none";
    std::string numbers;
    for (int i = 0; i < count; ++i) numbers += (i ? "," : "") + std::to_string(i % 6 + 1);
    return numbers;
}

class ConnectorTables : public kbeC_test::ConnectorTest {};

TEST_F(ConnectorTables, ListEveryBehaviorByEveryCoupling) {
    std::set<std::string> listed;
    for (Shape const& shape : shapes) listed.insert(shape.behavior + " " + shape.coupling);
    EXPECT_EQ(listed.size(), 2u * 4u);
}

TEST_F(ConnectorTables, NeedAsManyColumnsAsTheirBehaviorAndCouplingSay) {
    int tried = 0;
    for (Shape const& shape : shapes) {
        for (bool const isElasticity : {true, false}) {
            std::string const className =
                isElasticity ? "kbeC_ConnectorElasticity" : "kbeC_ConnectorDamping";
            std::string const base = "behavior=" + shape.behavior + " coupling=" + shape.coupling +
                                     " components=" + Numbers(shape.components) +
                                     " independentComponents=" + Numbers(shape.independent);
            bool const mayVary = shape.behavior == "LINEAR" && shape.coupling == "UNCOUPLED";
            for (int fields : {0, 2}) {
                for (int temperature : {0, 1}) {
                    for (int frequency : {0, 1}) {
                        if (frequency && !mayVary) continue;
                        int const needed = (isElasticity ? shape.elasticity : shape.damping) +
                                           fields + temperature + frequency;
                        std::string const settings =
                            base + " dependencies=" + std::to_string(fields) +
                            " temperatureDependency=" + (temperature ? "true" : "false") +
                            " frequencyDependency=" + (frequency ? "true" : "false") + " table=1x";
                        for (int columns = 0; columns <= needed + 2; ++columns) {
                            EXPECT_EQ(
                                Object(className, settings + std::to_string(columns)).Verdict(),
                                columns == needed ? passes : TextOfVerdict("11"))
                                << className << ' ' << settings << columns;
                            ++tried;
                        }
                    }
                }
            }
        }
    }
    EXPECT_GT(tried, 500);
}

TEST_F(ConnectorTables, ARigidElasticityTakesAnyShape) {
    for (std::string const coupling :
         {"UNCOUPLED", "COUPLED", "COUPLED_POSITION", "COUPLED_MOTION"})
        for (int columns : {0, 1, 7})
            EXPECT_EQ(Object("kbeC_ConnectorElasticity",
                             "behavior=RIGID components=1,2 dependencies=3 coupling=" + coupling +
                                 " table=2x" + std::to_string(columns))
                          .Verdict(),
                      passes);
}

TEST_F(ConnectorTables, NumbersOfAnySizeAreAddedWithoutOverflow) {
    char const* const all = "dependencies=max temperatureDependency=true components=1 table=1x1";
    for (char const* className : {"kbeC_ConnectorElasticity", "kbeC_ConnectorDamping"}) {
        EXPECT_EQ(Object(className, all).Verdict(), TextOfVerdict("11"));
        EXPECT_EQ(Object(className, std::string(all) + " behavior=NONLINEAR").Verdict(),
                  TextOfVerdict("11"));
    }
    kbeC_ConnectorDamping damping;
    damping.behavior = kbeC_ConnectorDamping::BehaviorEnm::NONLINEAR;
    damping.coupling = kbeC_ConnectorDamping::CouplingEnm::COUPLED_MOTION;
    damping.dependencies = INT_MAX;
    damping.temperatureDependency = true;
    EXPECT_EQ(damping.KeyColumns(), 2147483649LL);
    kbeC_ConnectorFriction friction;
    friction.dependencies = INT_MAX;
    friction.temperatureDependency = friction.slipDependency = true;
    EXPECT_EQ(friction.KeyColumns(), 2147483649LL);
    kbeC_CDCTerm term;
    term.fieldDependencies = INT_MAX;
    term.tempDependency = true;
    EXPECT_EQ(term.KeyColumns(), 2147483648LL);
    kbeC_ConnectorPlasticity plasticity;
    plasticity.isotropicDependencies = plasticity.kinematicDependencies = INT_MAX;
    plasticity.isotropicTemperature = plasticity.kinematicTemperature = true;
    EXPECT_EQ(plasticity.IsotropicKeyColumns(), 2147483649LL);
    EXPECT_EQ(plasticity.KinematicKeyColumns(), 2147483649LL);
    kbeC_ConnectorDamage damage;
    damage.initiationDependencies = damage.evolutionDependencies = INT_MAX;
    damage.initiationTemperature = damage.evolutionTemperature = true;
    EXPECT_EQ(damage.InitiationKeyColumns(), 2147483648LL);
    EXPECT_EQ(damage.EvolutionKeyColumns(), 2147483648LL);
    // Nothing to compare: no number of keys is too large.
    friction.table = mdl_PropertyTable(1, 2);
    friction.SortDataTable();
    EXPECT_EQ(friction.table.Rows(), 1);
}

// ---- order of rows ---------------------------------------------------------------------------

constexpr int width = 7;

/// Rows whose order tells by how many of their last columns they were sorted.
Rows TellingRows() {
    std::mt19937 random(5);
    Rows rows;
    for (int r = 0; r < 60; ++r) {
        rows.emplace_back();
        rows.back().push_back(60.0 - r);
        for (int c = 1; c < width; ++c) rows.back().push_back(static_cast<double>(random() % 2));
    }
    return rows;
}

Rows SortedByLast(Rows rows, int keys) {
    std::stable_sort(rows.begin(), rows.end(), [&](auto const& a, auto const& b) {
        for (int key = width - 1; key >= width - keys; --key) {
            std::size_t const k = static_cast<std::size_t>(key);
            if (a[k] != b[k]) return a[k] < b[k];
        }
        return false;
    });
    return rows;
}

mdl_PropertyTable& TableOf(Object const& object, std::string const& name) {
    mdl_Field const* const field = object.Description().FindField(name.c_str());
    return *static_cast<mdl_PropertyTable*>(field->At(object.Address()));
}

int KeysSeenIn(mdl_PropertyTable const& table) {
    Rows rows;
    for (int r = 0; r < table.Rows(); ++r) {
        rows.emplace_back();
        for (int c = 0; c < table.Columns(); ++c) rows.back().push_back(table.Cell(r, c));
    }
    for (int keys = 0; keys <= width; ++keys)
        if (rows == SortedByLast(TellingRows(), keys)) return keys;
    return -1;
}

TEST_F(ConnectorTables, TheTellingRowsTellEveryNumberOfKeys) {
    std::set<Rows> orders;
    for (int keys = 0; keys <= width; ++keys) orders.insert(SortedByLast(TellingRows(), keys));
    EXPECT_EQ(orders.size(), static_cast<std::size_t>(width) + 1);
}

TEST_F(ConnectorTables, RowsAreSortedByTheKeysOfTheirBehavior) {
    std::set<std::string> classes;
    for (Keys const& line : keyLines) {
        SCOPED_TRACE(line.className + " {" + line.settings + "} " + line.table);
        classes.insert(line.className);
        Object object(line.className, line.settings);
        TableOf(object, line.table) = mdl_PropertyTable(nga_test::ArrayOf(TellingRows()));
        object.SortDataTable();
        EXPECT_EQ(KeysSeenIn(TableOf(object, line.table)), line.keys);
    }
    EXPECT_EQ(classes.size(), 6u);
}

TEST_F(ConnectorTables, TheNumberOfKeysIsToBeHadBeforeSorting) {
    kbeC_ConnectorElasticity elasticity;
    elasticity.dependencies = 2;
    EXPECT_EQ(elasticity.KeyColumns(), 2);
    kbeC_ConnectorDamage damage;
    damage.softening = kbeC_ConnectorDamage::SofteningEnm::TABULAR;
    EXPECT_EQ(damage.InitiationKeyColumns(), 0);
    EXPECT_EQ(damage.EvolutionKeyColumns(), 1);
    kbeC_ConnectorPlasticity const plasticity;
    EXPECT_EQ(plasticity.IsotropicKeyColumns(), 1);
    EXPECT_EQ(plasticity.KinematicKeyColumns(), 1);
}

TEST_F(ConnectorTables, ATableWithFewerColumnsThanKeysIsNotToBeSorted) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    kbeC_ConnectorElasticity elasticity;
    elasticity.dependencies = INT_MAX;
    elasticity.temperatureDependency = true;
    elasticity.table = mdl_PropertyTable(2, 1);
    EXPECT_DEATH(elasticity.SortDataTable(), "");
}

TEST_F(ConnectorTables, SortingLeavesACopyAlone) {
    kbeC_ConnectorElasticity elasticity;
    elasticity.temperatureDependency = true;
    elasticity.table = mdl_PropertyTable(nga_test::ArrayOf({{1, 2}, {2, 1}}));
    kbeC_ConnectorElasticity const copy(elasticity);
    elasticity.SortDataTable();
    nga_test::ExpectRows(elasticity.table.table, {{2, 1}, {1, 2}});
    nga_test::ExpectRows(copy.table.table, {{1, 2}, {2, 1}});
}

}  // namespace kbeC_tables_test
