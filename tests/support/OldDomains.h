#pragma once

#include <map>
#include <string>
#include <vector>

namespace old_test {

/// What a generated field may hold, so that the object that comes of it is valid.
struct Domain {
    double low = 0, high = 0;   ///< of a number
    std::string literal;        ///< of an enumeration
    int columns = 0;            ///< of a table
    std::vector<double> cells;  ///< of a table or list
};

inline Domain Between(double low, double high) { return {low, high, {}, 0, {}}; }
inline Domain Literally(char const* literal) { return {0, 0, literal, 0, {}}; }
inline Domain Cells(int columns, std::vector<double> cells) {
    return {0, 0, {}, columns, std::move(cells)};
}

/// By class and field, or by module and field where it holds for all its classes; old names and
/// new ones. Without an entry, any value will do.
inline std::map<std::string, Domain> const& Domains() {
    static std::map<std::string, Domain> const domains = {
        // Amplitudes: times rise, a spectrum has three columns.
        {"kamC.smooth", Between(0, 0.5)},
        {"kamC_BaselineCorrection.intervals", Cells(1, {0.5, 1.5, 2.5})},
        {"kamC_SolutionDependent.initial", Between(0.5, 0.6)},
        {"kamC_SolutionDependent.minimum", Between(0.1, 0.2)},
        {"kamC_SolutionDependent.maximum", Between(1, 100)},
        {"kamC_Spectrum.table", Cells(3, {9.81, 1, 0.02, 4.9, 10, 0.02})},
        {"kamC_PsdDefinition.table", Cells(3, {2, 0, 10, 1, 0, 100})},
        {"kamC_Periodic.data", Cells(2, {0.1, 0.2, 0.05, 0.1})},
        {"kamC_SmoothStep.data", Cells(2, {0, 0, 1, 1})},
        {"kamC_Tabular.data", Cells(2, {0, 0, 1, 1, 2, 0.5})},
        {"kamC_Periodic.table", Cells(2, {0.1, 0.2, 0.05, 0.1})},
        {"kamC_SmoothStep.table", Cells(2, {0, 0, 1, 1})},
        {"kamC_Tabular.table", Cells(2, {0, 0, 1, 1, 2, 0.5})},
        // Profiles: thicknesses are small against dimensions.
        {"kbpC.a", Between(10, 20)},
        {"kbpC.b", Between(10, 20)},
        {"kbpC.h", Between(10, 20)},
        {"kbpC.r", Between(10, 20)},
        {"kbpC.height", Between(10, 20)},
        {"kbpC.width", Between(10, 20)},
        {"kbpC.t", Between(0.1, 1)},
        {"kbpC.t1", Between(0.1, 1)},
        {"kbpC.t2", Between(0.1, 1)},
        {"kbpC.t3", Between(0.1, 1)},
        {"kbpC.t4", Between(0.1, 1)},
        {"kbpC.tf", Between(0.1, 1)},
        {"kbpC.tw", Between(0.1, 1)},
        {"kbpC.thickness", Between(0.1, 1)},
        {"kbpC_ArbitraryProfile.t", Cells(1, {0.5, 0.75})},
        {"kbpC_BoxProfile.tempThick", Cells(1, {0.5, 0.75, 0.625, 0.875})},
        {"kbpC_GeneralizedProfile.i12", Between(0, 0.5)},
        {"kbpC_GeneralizedProfile.I12", Between(0, 0.5)},
        // Filters.
        {"kflC.order", Between(1, 20)},
        {"kflC.rippleFactor", Between(0.1, 1)},
        // Materials.
        {"kmaC_InelasticHeatFraction.fraction", Between(0, 1)},
        {"kmaC_MohrCoulomb.deviatoricEccentricity", Between(0.51, 1)},
        {"kmaC_MohrCoulombPlasticity.deviatoricEccentricity", Between(0.51, 1)},
        {"kmaC_Hyperfoam.poisson", Between(0, 0.5)},
        {"kmaC_Hyperfoam.n", Between(1, 6)},
        {"kmaC_Hyperelastic.n", Between(1, 2)},
        {"kmaC_Hyperelastic.beta", Between(0, 1)},
        {"kmaC_Viscoelastic.nmax", Between(1, 13)},
        {"kmaC_Viscoelastic.preload", Literally("UNIAXIAL")},
        {"kmaC_Elastic.noTension", Between(0, 0)},
        {"kmaC_Plastic.rate", Between(0, 0)},
        {"kmaC_Plastic.table", Cells(4, {235, 0, 0, 1, 400, 0.2, 0, 2})},
        {"kmaC_MaterialTable.allowEmptyFirstRow", Between(1, 1)},
        {"kmaC_ThicknessBehavior.units", Literally("FORCE")},
        {"kmaC_ThicknessBehavior.variableUnits", Literally("FORCE")},
        {"kmaC_ThicknessBehavior.table", Cells(2, {0, 0, 10, 0.1, 20, 0.3})},
        {"kmaC_MullinsEffect.definition", Literally("CONSTANTS")},
        {"kmaC_MullinsEffect.table", Cells(3, {1.5, 0.2, 0.1})},
        // Connectors: each component by itself, linear, without dependencies, at the default rate.
        {"kbeC.coupling", Literally("UNCOUPLED")},
        {"kbeC.behavior", Literally("LINEAR")},
        {"kbeC.dependencies", Between(0, 0)},
        {"kbeC.temperatureDependency", Between(0, 0)},
        {"kbeC.frequencyDependency", Between(0, 0)},
        {"kbeC.independentComponents", Cells(1, {})},
        {"kbeC.dependentComponents", Cells(1, {})},
        {"kbeC_Tabular.table", Cells(2, {1200, 900})},
        {"kbeC_ConnectorElasticity.table", Cells(2, {1200, 900})},
        {"kbeC_ConnectorDamping.table", Cells(2, {35, 20})},
        {"kbeC.minDisplacement", Between(-2, -1)},
        {"kbeC.maxDisplacement", Between(1, 2)},
        {"kbeC.minMotion", Between(-2, -1)},
        {"kbeC.maxMotion", Between(1, 2)},
        {"kbeC.minForce", Between(-20, -10)},
        {"kbeC.maxForce", Between(10, 20)},
        {"kbeC.affectedComponent", Between(1, 6)},
        {"kbeC.lockingComponent", Between(1, 6)},
        {"kbeC.releaseComponent", Between(1, 6)},
        {"kbeC.tangentDirs", Between(1, 6)},
        {"kbeC.tangentDirection", Between(1, 6)},
        {"kbeC.contForceComponent", Between(1, 6)},
        {"kbeC.contactForceComponent", Between(1, 6)},
        {"kbeC.componentNumber", Between(1, 6)},
        {"kbeC.contForceStyle", Literally("NUMBER")},
        {"kbeC.contactForceStyle", Literally("COMPONENT_NUMBER")},
        {"kbeC.slipStyle", Literally("SPECIFY")},
        {"kbeC_Friction.componentType", Literally("NO_INDEP_COMPS")},
        {"kbeC_ConnectorFriction.componentType", Literally("NO_INDEPENDENT_COMPONENTS")},
        {"kbeC.isotropic", Between(1, 1)},
        {"kbeC.isotropicType", Literally("TABULAR")},
        {"kbeC.isotropicTemperature", Between(0, 0)},
        {"kbeC.isotropicDependencies", Between(0, 0)},
        {"kbeC.isotropicTable", Cells(3, {100, 0, 0, 140, 0.02, 0})},
        {"kbeC.kinematicType", Literally("HALF_CYCLE")},
        {"kbeC.kinematicTemperature", Between(0, 0)},
        {"kbeC.kinematicDependencies", Between(0, 0)},
        {"kbeC.kinematicTable", Cells(2, {100, 0, 140, 0.02})},
        {"kbeC.criterion", Literally("FORCE")},
        {"kbeC.initiationTemperature", Between(0, 0)},
        {"kbeC.initiationDependencies", Between(0, 0)},
        {"kbeC.initiationTable", Cells(2, {-5000, 6000})},
        {"kbeC.softening", Literally("LINEAR")},
        {"kbeC.evolutionTemperature", Between(0, 0)},
        {"kbeC.evolutionDependencies", Between(0, 0)},
        {"kbeC.evolutionTable", Cells(1, {0.05})},
        {"kbeC_ConnectorOptions.regularize", Between(1, 1)},
        {"kbeC_ConnectorOptions.defaultTolerance", Between(1, 1)},
        {"kbeC_ConnectorOptions.regularization", Between(0.03, 0.03)},
        {"kbeC_ConnectorOptions.defaultRateFactor", Between(1, 1)},
        {"kbeC_ConnectorOptions.rateFactor", Between(0.9, 0.9)},
        {"kbeC_ConnectorOptions.interpolation", Literally("LINEAR")},
    };
    return domains;
}

}  // namespace old_test
