#include "module/ClassFacts.h"
#include "support/RecordingWriteAgent.h"
#include "support/StoredObject.h"

// What connector behaviours write, in order, and what they ask of a record that they are read from.

namespace kbeC_records_test {

class ConnectorRecords : public nga_test::LibraryTest {};

std::string Ints(std::string const& field, std::string const& values) {
    return "field " + field + " {\n  start 0x230001\n  check 54\n  ints" + values + "\n}\n";
}

TEST_F(ConnectorRecords, OfAnElasticityAreItsNineFieldsBehindItsBase) {
    kbeC_ConnectorElasticity elasticity;
    elasticity.behavior = kbeC_ConnectorElasticity::BehaviorEnm::RIGID;
    elasticity.components.Append(2);
    elasticity.components.Append(1);
    nga_test::WriteLog log;
    std::string const written = log.Write(elasticity);
    std::string const head =
        "start 0x2A80017\n"
        "base 0x2A80008 {\n"
        "  start 0x2A80008\n"
        "}\n"
        "text 0:behavior=RIGID\n"
        "text 1:coupling=UNCOUPLED\n"
        "int 2:dependencies=0\n"
        "bool 3:temperatureDependency=false\n"
        "bool 4:frequencyDependency=false\n"
        "field 5:table {\n";
    EXPECT_EQ(written.substr(0, head.size()), head);
    std::string const tail =
        Ints("6:independentComponents", "") + Ints("7:components", " 2 1") + "null 8:options\n";
    ASSERT_GE(written.size(), tail.size());
    EXPECT_EQ(written.substr(written.size() - tail.size()), tail);
    EXPECT_EQ(log.Write(elasticity), "start 0x2A80017 again\n");

    nga_test::WriteLog other;
    elasticity.options = new kbeC_ConnectorOptions;
    std::string const withOptions = other.Write(elasticity);
    EXPECT_NE(withOptions.find("field 8:options with handle {\n"
                               "  start 0x2A8003E\n"
                               "  bool 0:useBehRegSettings=true\n"
                               "  bool 1:regularize=true\n"
                               "  bool 2:defaultTolerance=true\n"
                               "  double 3:regularization=0.029999999999999999\n"
                               "  bool 4:defaultRateFactor=true\n"
                               "  double 5:rateFactor=0.90000000000000002\n"
                               "  text 6:interpolation=LINEAR\n"
                               "  bool 7:useBehExtSettings=true\n"
                               "  text 8:extrapolation=CONSTANT\n"
                               "}\n"),
              std::string::npos)
        << withOptions;
}

TEST_F(ConnectorRecords, OfAFrictionHoldItsPotentialsByValue) {
    kbeC_ConnectorFriction friction;
    kbeC_ConnectorPotential potential;
    potential.componentNumber = 3;
    friction.connectorPotentials.Append(potential);
    std::string const written = nga_test::WriteLog().Write(friction);
    EXPECT_NE(written.find("field 13:connectorPotentials {\n"
                           "  start 0x230001\n"
                           "  check 1\n"
                           "  list 1\n"
                           "  element {\n"
                           "    start 0x2A8001F\n"
                           "    text 0:componentStyle=COMPONENT_NUMBER\n"
                           "    int 1:componentNumber=3\n"
                           "    text 2:sign=POSITIVE\n"
                           "    double 3:scaleFactor=1\n"
                           "    double 4:positiveExponent=2\n"
                           "    double 5:shiftFactor=0\n"
                           "    text 6:hFunction=ABS\n"
                           "    null 7:derivedComponent\n"
                           "  }\n"),
              std::string::npos)
        << written;
}

TEST_F(ConnectorRecords, AreReadWithZeroAndFalseForWhatIsMissing) {
    nga_test::StoredObject stored;
    stored.texts["interpolation"] = "LOGARITHMIC";
    stored.texts["extrapolation"] = "LINEAR";
    cls_ReadVisitor const visitor(stored.Memento());
    kbeC_ConnectorOptions const options(visitor);
    EXPECT_FALSE(options.useBehRegSettings);
    EXPECT_FALSE(options.defaultRateFactor);
    EXPECT_EQ(options.rateFactor, 0.0);
    EXPECT_EQ(options.interpolation, kbeC_ConnectorOptions::InterpolationEnm::LOGARITHMIC);
    EXPECT_EQ(options.uid, stored.uid);
}

TEST_F(ConnectorRecords, WithoutAKnownLiteralAreRefused) {
    for (char const* literal : {"CUBIC", "linear", ""}) {
        nga_test::StoredObject stored;
        stored.texts["interpolation"] = literal;
        stored.texts["extrapolation"] = "LINEAR";
        cls_ReadVisitor const visitor(stored.Memento());
        EXPECT_THROW(kbeC_ConnectorOptions{visitor}, omu_ValueErrorException) << literal;
    }
}

TEST_F(ConnectorRecords, OfABehaviourGiveBothLevelsItsIdentity) {
    nga_test::StoredObject stored;
    cls_ReadVisitor const visitor(stored.Memento());
    kbeC_ConnectorStop const stop(visitor);
    EXPECT_EQ(stop.uid, stored.uid);
    EXPECT_EQ(stop.kbeC_ConnectorBehaviorOption::uid, stored.uid);
}

TEST_F(ConnectorRecords, OfAListOfBehavioursAreReadWithTheirGaps) {
    nga_test::StoredObject stored;
    stored.elements.resize(3);
    stored.elements[0].object = nga_test::StoredObject::Erased(
        static_cast<kbeC_ConnectorBehaviorOption*>(new kbeC_ConnectorStop));
    stored.elements[2].object = nga_test::StoredObject::Erased(
        static_cast<kbeC_ConnectorBehaviorOption*>(new kbeC_ConnectorLock));
    cls_ReadVisitor const visitor(stored.Memento());
    kbeC_ConnectorBehaviorOptionList const list(visitor);
    ASSERT_EQ(list.Size(), 3);
    EXPECT_EQ(list.list.uid, stored.uid);
    EXPECT_EQ(list.ConstGet(0).ConstGet().DynTypeId(), kbeC_ConnectorStop::TypeId());
    EXPECT_EQ(list.ConstGet(1).GetPtr(), nullptr);
    EXPECT_EQ(list.ConstGet(2).ConstGet().DynTypeId(), kbeC_ConnectorLock::TypeId());
}

TEST_F(ConnectorRecords, ColumnsOfManyComponentsAreCountedInSixtyFourBits) {
    // 65536 * 65537 / 2 columns: 32768 modulo two to the power of 32.
    kbeC_ConnectorElasticity elasticity;
    elasticity.behavior = kbeC_ConnectorElasticity::BehaviorEnm::LINEAR;
    elasticity.coupling = kbeC_ConnectorElasticity::CouplingEnm::COUPLED;
    for (int i = 0; i < 65536; ++i) elasticity.components.Append(1);
    cow_2DArray<double> cells(1, 32768);
    for (int i = 0; i < cells.Size(); ++i) cells.Get().Data()[i] = 1.0;
    elasticity.table = mdl_PropertyTable(cells);
    try {
        elasticity.AssertValid();
        ADD_FAILURE() << "nothing thrown";
    } catch (nex_TextException const& failure) {
        EXPECT_STREQ(failure.UserReport().Text(),
                     "The number of dependencies does not match the table.");
    }
}

}  // namespace kbeC_records_test
