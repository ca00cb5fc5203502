#pragma once

#include <cstddef>

class dbc_Row;
class dbc_Table;

inline constexpr unsigned kmaC_CapCreepTypeId = 0x238000A;

/// Registers the superseded layouts of materials.
void kmaC_RegisterOldClasses();

// What the steps do to a row, named by the class and the version that they lead to.
void* kmaC_AnnealTemperatureTo452(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_CapPlasticityTo452(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_DamageInitiationTo883(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_DampingTo1050(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_ExpansionTo435(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_HyperelasticTo324(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_HyperelasticTo328(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_HyperelasticTo864(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_HyperfoamTo864(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_MaterialTo1053(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_MohrCoulombTo404(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_PermeabilityTo404(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_PiezoelectricTo516(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_PlasticTo419(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_PlasticTo1107(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_RegularizationTo404(dbc_Row const& in, dbc_Row& out, int);
/// Of biaxial, planar and uniaxial test data.
void* kmaC_TestDataTo324(dbc_Row const& in, dbc_Row& out, int);
/// Of gasket thickness and transverse shear.
void* kmaC_UnitsTo404(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_UserMaterialTo451(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_ViscoelasticTo855(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_ViscoelasticTo876(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_VolumetricTestDataTo324(dbc_Row const& in, dbc_Row& out, int);
void* kmaC_VolumetricTestDataTo325(dbc_Row const& in, dbc_Row& out, int);
/// Steps that are declared with a conversion, and convert nothing.
void* kmaC_NothingTo(dbc_Row const& in, dbc_Row& out, int);
/// Closes the tables that both steps of plasticity keep.
void* kmaC_PlasticFinalize(dbc_Table const& in, dbc_Table& out);
