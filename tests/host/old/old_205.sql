-- A database of schema 205, written by hand. Make it with: sqlite3 old_205.nga < old_205.sql
-- The oldest archive: the material cards, load histories and sections of a design office as they
-- were first kept. Every class is in its first layout, and each row goes the longest way there is.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=205;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',205,0);
CREATE TABLE "cls_List"(
  "##OID" INTEGER PRIMARY KEY,
  "Target#Handle" BLOB,
  "Target#Columns" INTEGER,
  "Target#Kind" INTEGER,
  "#First" INTEGER,
  "#Count" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x230001,'cls_List','cls_List',203,0x1);
CREATE TABLE "cls_Map"(
  "##OID" INTEGER PRIMARY KEY,
  "Target#Kind" INTEGER,
  "#First" INTEGER,
  "#Count" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x230002,'cls_Map','cls_Map',203,0x1);
CREATE TABLE "cls_ListEntry"(
  "##OID" INTEGER PRIMARY KEY,
  "owner" INTEGER,
  "value#ClassID" INTEGER,
  "value#OID" INTEGER
);
INSERT INTO nga_Catalogue VALUES(0x230006,'cls_ListEntry','cls_ListEntry',203,0x1);
CREATE TABLE "cls_MapEntry"(
  "##OID" INTEGER PRIMARY KEY,
  "owner" INTEGER,
  "key" KEYBLOB,
  "value#ClassID" INTEGER,
  "value#OID" INTEGER,
  "value"
);
INSERT INTO nga_Catalogue VALUES(0x230007,'cls_MapEntry','cls_MapEntry',203,0x1);
CREATE TABLE "kmaC_MaterialOption"(
  "##OID" INTEGER PRIMARY KEY,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380002,'kmaC_MaterialOption','kmaC_MaterialOption',203,0x1);
CREATE TABLE "kmaC_MaterialTable"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "allowEmptyFirstRow" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380058,'kmaC_MaterialTable','kmaC_MaterialTable',203,0x1);
CREATE TABLE "kmaC_AnnealTemperature"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380071,'kmaC_AnnealTemperature','kmaC_AnnealTemperature',203,0x2380002);
CREATE TABLE "kmaC_Potential"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380042,'kmaC_Potential','kmaC_Potential',203,0x2380002);
CREATE TABLE "kmaC_Plastic"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "hardening" TEXT,
  "rate" INTEGER,
  "dataType" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "rateDependent#ClassID" INTEGER,
  "rateDependent#OID" INTEGER,
  "potential#ClassID" INTEGER,
  "potential#OID" INTEGER,
  "cyclicHardening#ClassID" INTEGER,
  "cyclicHardening#OID" INTEGER,
  "ornl#ClassID" INTEGER,
  "ornl#OID" INTEGER,
  "cycledPlastic#ClassID" INTEGER,
  "cycledPlastic#OID" INTEGER,
  "annealTemperature#ClassID" INTEGER,
  "annealTemperature#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238003C,'kmaC_Plastic','kmaC_Plastic',203,0x2380002);
CREATE TABLE "kmaC_RateDependent"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380043,'kmaC_RateDependent','kmaC_RateDependent',203,0x2380002);
CREATE TABLE "kmaC_Expansion"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "user" INTEGER,
  "zero",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380021,'kmaC_Expansion','kmaC_Expansion',203,0x2380002);
CREATE TABLE "kmaC_Damping"(
  "##OID" INTEGER PRIMARY KEY,
  "alpha",
  "beta",
  "composite",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380015,'kmaC_Damping','kmaC_Damping',203,0x2380002);
CREATE TABLE "kmaC_Viscous"(
  "##OID" INTEGER PRIMARY KEY,
  "law" TEXT,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380070,'kmaC_Viscous','kmaC_Viscous',203,0x2380002);
CREATE TABLE "kmaC_Regularization"(
  "##OID" INTEGER PRIMARY KEY,
  "rtol",
  "rate" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380062,'kmaC_Regularization','kmaC_Regularization',203,0x2380002);
CREATE TABLE "kmaC_Material"(
  "##OID" INTEGER PRIMARY KEY,
  "acousticMedium#ClassID" INTEGER,
  "acousticMedium#OID" INTEGER,
  "brittleCracking#ClassID" INTEGER,
  "brittleCracking#OID" INTEGER,
  "capPlasticity#ClassID" INTEGER,
  "capPlasticity#OID" INTEGER,
  "clayPlasticity#ClassID" INTEGER,
  "clayPlasticity#OID" INTEGER,
  "concrete#ClassID" INTEGER,
  "concrete#OID" INTEGER,
  "conductivity#ClassID" INTEGER,
  "conductivity#OID" INTEGER,
  "creep#ClassID" INTEGER,
  "creep#OID" INTEGER,
  "damping#ClassID" INTEGER,
  "damping#OID" INTEGER,
  "deformationPlasticity#ClassID" INTEGER,
  "deformationPlasticity#OID" INTEGER,
  "density#ClassID" INTEGER,
  "density#OID" INTEGER,
  "depvar#ClassID" INTEGER,
  "depvar#OID" INTEGER,
  "dielectric#ClassID" INTEGER,
  "dielectric#OID" INTEGER,
  "diffusivity#ClassID" INTEGER,
  "diffusivity#OID" INTEGER,
  "druckerPrager#ClassID" INTEGER,
  "druckerPrager#OID" INTEGER,
  "elastic#ClassID" INTEGER,
  "elastic#OID" INTEGER,
  "electricalConductivity#ClassID" INTEGER,
  "electricalConductivity#OID" INTEGER,
  "eos#ClassID" INTEGER,
  "eos#OID" INTEGER,
  "expansion#ClassID" INTEGER,
  "expansion#OID" INTEGER,
  "fluidBulkModulus#ClassID" INTEGER,
  "fluidBulkModulus#OID" INTEGER,
  "fluidDensity#ClassID" INTEGER,
  "fluidDensity#OID" INTEGER,
  "fluidExpansion#ClassID" INTEGER,
  "fluidExpansion#OID" INTEGER,
  "foam#ClassID" INTEGER,
  "foam#OID" INTEGER,
  "gel#ClassID" INTEGER,
  "gel#OID" INTEGER,
  "heatGeneration#ClassID" INTEGER,
  "heatGeneration#OID" INTEGER,
  "hyperelastic#ClassID" INTEGER,
  "hyperelastic#OID" INTEGER,
  "hyperfoam#ClassID" INTEGER,
  "hyperfoam#OID" INTEGER,
  "hypoelastic#ClassID" INTEGER,
  "hypoelastic#OID" INTEGER,
  "inelasticHeatFraction#ClassID" INTEGER,
  "inelasticHeatFraction#OID" INTEGER,
  "jointedMaterial#ClassID" INTEGER,
  "jointedMaterial#OID" INTEGER,
  "jouleHeatFraction#ClassID" INTEGER,
  "jouleHeatFraction#OID" INTEGER,
  "latentHeat#ClassID" INTEGER,
  "latentHeat#OID" INTEGER,
  "regularization#ClassID" INTEGER,
  "regularization#OID" INTEGER,
  "membraneElastic#ClassID" INTEGER,
  "membraneElastic#OID" INTEGER,
  "moistureSwelling#ClassID" INTEGER,
  "moistureSwelling#OID" INTEGER,
  "permeability#ClassID" INTEGER,
  "permeability#OID" INTEGER,
  "piezoelectric#ClassID" INTEGER,
  "piezoelectric#OID" INTEGER,
  "plastic#ClassID" INTEGER,
  "plastic#OID" INTEGER,
  "poreFluidExpansion#ClassID" INTEGER,
  "poreFluidExpansion#OID" INTEGER,
  "porousBulkModuli#ClassID" INTEGER,
  "porousBulkModuli#OID" INTEGER,
  "porousElastic#ClassID" INTEGER,
  "porousElastic#OID" INTEGER,
  "porousMetalPlasticity#ClassID" INTEGER,
  "porousMetalPlasticity#OID" INTEGER,
  "solubility#ClassID" INTEGER,
  "solubility#OID" INTEGER,
  "sorption#ClassID" INTEGER,
  "sorption#OID" INTEGER,
  "specificHeat#ClassID" INTEGER,
  "specificHeat#OID" INTEGER,
  "swelling#ClassID" INTEGER,
  "swelling#OID" INTEGER,
  "thicknessBehavior#ClassID" INTEGER,
  "thicknessBehavior#OID" INTEGER,
  "transShearElastic#ClassID" INTEGER,
  "transShearElastic#OID" INTEGER,
  "userDefinedField#ClassID" INTEGER,
  "userDefinedField#OID" INTEGER,
  "userMaterial#ClassID" INTEGER,
  "userMaterial#OID" INTEGER,
  "userOutputVariables#ClassID" INTEGER,
  "userOutputVariables#OID" INTEGER,
  "viscoelastic#ClassID" INTEGER,
  "viscoelastic#OID" INTEGER,
  "viscous#ClassID" INTEGER,
  "viscous#OID" INTEGER,
  "castIronPlasticity#ClassID" INTEGER,
  "castIronPlasticity#OID" INTEGER,
  "mohrCoulomb#ClassID" INTEGER,
  "mohrCoulomb#OID" INTEGER,
  "concreteDamagedPlasticity#ClassID" INTEGER,
  "concreteDamagedPlasticity#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380001,'kmaC_Material','kmaC_Material',203,0x1);
CREATE TABLE "kmaC_CapCreep"(
  "##OID" INTEGER PRIMARY KEY,
  "law" TEXT,
  "mechanism" TEXT,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238000A,'kmaC_CapCreep','kmaC_CapCreep',203,0x2380002);
CREATE TABLE "kmaC_CapHardening"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238000B,'kmaC_CapHardening','kmaC_CapHardening',203,0x2380002);
CREATE TABLE "kmaC_CapPlasticity"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "capCreep#ClassID" INTEGER,
  "capCreep#OID" INTEGER,
  "capHardening#ClassID" INTEGER,
  "capHardening#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238000C,'kmaC_CapPlasticity','kmaC_CapPlasticity',203,0x2380002);
CREATE TABLE "kmaC_MohrCoulombHardening"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380076,'kmaC_MohrCoulombHardening','kmaC_MohrCoulombHardening',205,0x2380002);
CREATE TABLE "kmaC_MohrCoulomb"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "mohrCoulombHardening#ClassID" INTEGER,
  "mohrCoulombHardening#OID" INTEGER,
  "deviatoricEccentricity",
  "eccentricity",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380075,'kmaC_MohrCoulomb','kmaC_MohrCoulomb',205,0x2380002);
CREATE TABLE "kmaC_SaturationDependence"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380065,'kmaC_SaturationDependence','kmaC_SaturationDependence',203,0x2380002);
CREATE TABLE "kmaC_VelocityDependence"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380066,'kmaC_VelocityDependence','kmaC_VelocityDependence',203,0x2380002);
CREATE TABLE "kmaC_Permeability"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "specific",
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "saturation#ClassID" INTEGER,
  "saturation#OID" INTEGER,
  "velocity#ClassID" INTEGER,
  "velocity#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380039,'kmaC_Permeability','kmaC_Permeability',203,0x2380002);
CREATE TABLE "kmaC_BiaxialTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380006,'kmaC_BiaxialTestData','kmaC_BiaxialTestData',203,0x2380002);
CREATE TABLE "kmaC_PlanarTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238003B,'kmaC_PlanarTestData','kmaC_PlanarTestData',203,0x2380002);
CREATE TABLE "kmaC_UniaxialTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380051,'kmaC_UniaxialTestData','kmaC_UniaxialTestData',203,0x2380002);
CREATE TABLE "kmaC_VolumetricTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "volinf",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380057,'kmaC_VolumetricTestData','kmaC_VolumetricTestData',203,0x2380002);
CREATE TABLE "kmaC_Hysteresis"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238005F,'kmaC_Hysteresis','kmaC_Hysteresis',203,0x2380002);
CREATE TABLE "kmaC_Hyperelastic"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "n" INTEGER,
  "type" TEXT,
  "beta",
  "moduliTimeScale" TEXT,
  "properties" INTEGER,
  "compressible" INTEGER,
  "testData" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "biaxialTestData#ClassID" INTEGER,
  "biaxialTestData#OID" INTEGER,
  "planarTestData#ClassID" INTEGER,
  "planarTestData#OID" INTEGER,
  "uniaxialTestData#ClassID" INTEGER,
  "uniaxialTestData#OID" INTEGER,
  "volumetricTestData#ClassID" INTEGER,
  "volumetricTestData#OID" INTEGER,
  "hysteresis#ClassID" INTEGER,
  "hysteresis#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238002E,'kmaC_Hyperelastic','kmaC_Hyperelastic',203,0x2380002);
CREATE TABLE "kmaC_Trs"(
  "##OID" INTEGER PRIMARY KEY,
  "definition" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380050,'kmaC_Trs','kmaC_Trs',203,0x2380002);
CREATE TABLE "kmaC_ShearTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "shrinf",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380047,'kmaC_ShearTestData','kmaC_ShearTestData',203,0x2380002);
CREATE TABLE "kmaC_Viscoelastic"(
  "##OID" INTEGER PRIMARY KEY,
  "domain" TEXT,
  "frequency" TEXT,
  "time" TEXT,
  "errtol",
  "nmax" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "combinedTestData#ClassID" INTEGER,
  "combinedTestData#OID" INTEGER,
  "shearTestData#ClassID" INTEGER,
  "shearTestData#OID" INTEGER,
  "trs#ClassID" INTEGER,
  "trs#OID" INTEGER,
  "volumetricTestData#ClassID" INTEGER,
  "volumetricTestData#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380055,'kmaC_Viscoelastic','kmaC_Viscoelastic',203,0x2380002);
CREATE TABLE "kmaC_SimpleShearTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380048,'kmaC_SimpleShearTestData','kmaC_SimpleShearTestData',203,0x2380002);
CREATE TABLE "kmaC_Hyperfoam"(
  "##OID" INTEGER PRIMARY KEY,
  "testData" INTEGER,
  "poisson",
  "n" INTEGER,
  "temperatureDependency" INTEGER,
  "moduli" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "biaxialTestData#ClassID" INTEGER,
  "biaxialTestData#OID" INTEGER,
  "volumetricTestData#ClassID" INTEGER,
  "volumetricTestData#OID" INTEGER,
  "planarTestData#ClassID" INTEGER,
  "planarTestData#OID" INTEGER,
  "simpleShearTestData#ClassID" INTEGER,
  "simpleShearTestData#OID" INTEGER,
  "uniaxialTestData#ClassID" INTEGER,
  "uniaxialTestData#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238002F,'kmaC_Hyperfoam','kmaC_Hyperfoam',203,0x2380002);
CREATE TABLE "kmaC_BrittleShear"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380008,'kmaC_BrittleShear','kmaC_BrittleShear',203,0x2380002);
CREATE TABLE "kmaC_BrittleCracking"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "brittleShear#ClassID" INTEGER,
  "brittleShear#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380007,'kmaC_BrittleCracking','kmaC_BrittleCracking',203,0x2380002);
CREATE TABLE "kmaC_Density"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380017,'kmaC_Density','kmaC_Density',203,0x2380002);
CREATE TABLE "kmaC_DetonationPoint"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380061,'kmaC_DetonationPoint','kmaC_DetonationPoint',203,0x2380002);
CREATE TABLE "kmaC_Eos"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "detonationPoint#ClassID" INTEGER,
  "detonationPoint#OID" INTEGER,
  "eosShear#ClassID" INTEGER,
  "eosShear#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380020,'kmaC_Eos','kmaC_Eos',203,0x2380002);
CREATE TABLE "kmaC_EosShear"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380060,'kmaC_EosShear','kmaC_EosShear',203,0x2380002);
CREATE TABLE "kmaC_FluidDensity"(
  "##OID" INTEGER PRIMARY KEY,
  "temperature",
  "pressure",
  "density",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380028,'kmaC_FluidDensity','kmaC_FluidDensity',203,0x2380002);
CREATE TABLE "kmaC_FluidBulkModulus"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380027,'kmaC_FluidBulkModulus','kmaC_FluidBulkModulus',203,0x2380002);
CREATE TABLE "kmaC_Piezoelectric"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238003A,'kmaC_Piezoelectric','kmaC_Piezoelectric',203,0x2380002);
CREATE TABLE "kmaC_ContactArea"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238005E,'kmaC_ContactArea','kmaC_ContactArea',203,0x2380002);
CREATE TABLE "kmaC_ThicknessBehavior"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "tensileStiffnessFactor",
  "units" TEXT,
  "yieldOnsetMethod" TEXT,
  "yieldOnset",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "contactArea#ClassID" INTEGER,
  "contactArea#OID" INTEGER,
  "unloadingTemperatureDependency" INTEGER,
  "unloadingDependencies" INTEGER,
  "unloadingTable#ClassID" INTEGER,
  "unloadingTable#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238005D,'kmaC_ThicknessBehavior','kmaC_ThicknessBehavior',203,0x2380002);
CREATE TABLE "kmaC_TransShearElastic"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "units" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238005C,'kmaC_TransShearElastic','kmaC_TransShearElastic',203,0x2380002);
CREATE TABLE "kmaC_UserMaterial"(
  "##OID" INTEGER PRIMARY KEY,
  "constants" INTEGER,
  "type" TEXT,
  "unsymm" INTEGER,
  "mechanicalTable#ClassID" INTEGER,
  "mechanicalTable#OID" INTEGER,
  "thermalTable#ClassID" INTEGER,
  "thermalTable#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380053,'kmaC_UserMaterial','kmaC_UserMaterial',203,0x2380002);
CREATE TABLE "kamC_BaselineCorrection"(
  "##OID" INTEGER PRIMARY KEY,
  "intervals#ClassID" INTEGER,
  "intervals#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440001,'kamC_BaselineCorrection','kamC_BaselineCorrection',203,0x1);
CREATE TABLE "kamC_Amplitude"(
  "##OID" INTEGER PRIMARY KEY,
  "definition" TEXT,
  "time" TEXT,
  "value" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440002,'kamC_Amplitude','kamC_Amplitude',203,0x1);
CREATE TABLE "kamC_Tabular"(
  "##OID" INTEGER PRIMARY KEY,
  "smooth",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "baselineCorrection#ClassID" INTEGER,
  "baselineCorrection#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440008,'kamC_Tabular','kamC_Tabular',203,0x2440002);
CREATE TABLE "kamC_EquallySpaced"(
  "##OID" INTEGER PRIMARY KEY,
  "smooth",
  "fixedInterval",
  "begin",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "baselineCorrection#ClassID" INTEGER,
  "baselineCorrection#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440004,'kamC_EquallySpaced','kamC_EquallySpaced',203,0x2440002);
CREATE TABLE "kamC_Periodic"(
  "##OID" INTEGER PRIMARY KEY,
  "frequency",
  "start",
  "a_0",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440006,'kamC_Periodic','kamC_Periodic',203,0x2440002);
CREATE TABLE "kamC_SmoothStep"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x244000B,'kamC_SmoothStep','kamC_SmoothStep',203,0x2440002);
CREATE TABLE "kamC_Decay"(
  "##OID" INTEGER PRIMARY KEY,
  "initial",
  "maximum",
  "start",
  "decayTime",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440003,'kamC_Decay','kamC_Decay',203,0x2440002);
CREATE TABLE "kbpC_BeamProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640001,'kbpC_BeamProfile','kbpC_BeamProfile',203,0x1);
CREATE TABLE "kbpC_BoxProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "height",
  "width",
  "tempThick#ClassID" INTEGER,
  "tempThick#OID" INTEGER,
  "uniform" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640007,'kbpC_BoxProfile','kbpC_BoxProfile',203,0x2640001);
CREATE TABLE "kbpC_PipeProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "radius",
  "thickness",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640005,'kbpC_PipeProfile','kbpC_PipeProfile',203,0x2640001);
CREATE TABLE "kbpC_IbeamProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "l",
  "h",
  "b1",
  "b2",
  "t1",
  "t2",
  "t3",
  "integration" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640006,'kbpC_IbeamProfile','kbpC_IbeamProfile',203,0x2640001);
CREATE TABLE "kbpC_GeneralizedProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "linearBehavior" INTEGER,
  "area",
  "i11",
  "i12",
  "i22",
  "jTorsion",
  "gammaO",
  "gammaW",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640002,'kbpC_GeneralizedProfile','kbpC_GeneralizedProfile',203,0x2640001);
CREATE TABLE "kbpC_ArbitraryProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "x#ClassID" INTEGER,
  "x#OID" INTEGER,
  "y#ClassID" INTEGER,
  "y#OID" INTEGER,
  "t#ClassID" INTEGER,
  "t#OID" INTEGER,
  "numSegments" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640009,'kbpC_ArbitraryProfile','kbpC_ArbitraryProfile',203,0x2640001);
CREATE TABLE "kmaC_MCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007D,'kmaC_MCWrapper','kmaC_MCWrapper',203,0x1);
CREATE TABLE "kamC_ACWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440017,'kamC_ACWrapper','kamC_ACWrapper',203,0x1);
CREATE TABLE "kbpC_BPCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640014,'kbpC_BPCWrapper','kbpC_BPCWrapper',203,0x1);

-- A structural steel under cyclic load. Combined hardening by parameters: yield stress, modulus C,
-- gamma, temperature. The gamma of the first row was taken out of the table when it became a
-- field, and later it was put back into every row: so the 95 of the second row is lost, and 120
-- stands in both. The anneal temperature belonged to its own table of temperatures; its flag goes,
-- comes back as 0, and goes for good.
-- 650, 0; 700, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'000000000050844000000000000000000000000000E08540000000000000F03F',2,82,x'0100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,0,-1,x'0200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'0300000000000000CD00000000005EED');
INSERT INTO "kmaC_AnnealTemperature"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,1,37224536,0,0,x'0400000000000000CD00000000005EED');
-- 1, 1, 1.1, 1, 1, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'000000000000F03F000000000000F03F9A9999999999F13F000000000000F03F000000000000F03F000000000000F03F',6,82,x'0500000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,1,0,-1,x'0600000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'0700000000000000CD00000000005EED');
INSERT INTO "kmaC_Potential"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,1,1,x'0800000000000000CD00000000005EED');
-- 250, 21000, 120, 20; 180, 15000, 95, 400
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'0000000000406F40000000000082D4400000000000005E400000000000003440000000000080664000000000004CCD400000000000C057400000000000007940',4,82,x'0900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,2,0,-1,x'0A00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'0B00000000000000CD00000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","potential#ClassID","potential#OID","annealTemperature#ClassID","annealTemperature#OID","##BaseClassOID","##Uid")
  VALUES(0,1,0,'COMBINED',0,'PARAMETERS',37224536,2,37224514,0,37224561,0,2,x'0C00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s %s %s:%s %s %s %s %s:%s',"hardening","rate","dataType","strainRangeDependency","numBackstresses","temperatureDependency","dependencies","table#ClassID","table#OID","rateDependent#OID" IS NULL,"potential#ClassID","potential#OID","cyclicHardening#OID" IS NULL,"ornl#OID" IS NULL,"cycledPlastic#OID" IS NULL,"annealTemperature#ClassID","annealTemperature#OID") FROM kmaC_Plastic WHERE "##OID"=0
-- is: COMBINED 0 PARAMETERS 0 1 1 0 37224536:2 1 37224514:0 1 1 1 37224561:0
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 4 0000000000406F40000000000082D4400000000000005E400000000000003440000000000080664000000000004CCD400000000000005E400000000000007940
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Plastic') WHERE name IN ('gamma')
-- is: 0
-- after: SELECT printf('%s %s:%s',"dependencies","table#ClassID","table#OID") FROM kmaC_AnnealTemperature WHERE "##OID"=0
-- is: 1 37224536:0
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_AnnealTemperature o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 2 000000000050844000000000000000000000000000E08540000000000000F03F
-- after: SELECT count(*) FROM pragma_table_info('kmaC_AnnealTemperature') WHERE name IN ('temperatureDependency')
-- is: 0
-- The array of the first layout is left where it was, for nobody to refer to.
-- after: SELECT hex("Target#Handle") FROM cls_List WHERE "##OID"=2
-- is: 0000000000406F40000000000082D4400000000000005E400000000000003440000000000080664000000000004CCD400000000000C057400000000000007940

-- Two stabilized curves. The copper's table has a third column that neither temperature nor a
-- field accounts for: its strain range. The alloy's has not.
-- 60, 0, 0.01; 75, 0.002, 0.01
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'0000000000004E4000000000000000007B14AE47E17A843F0000000000C05240FCA9F1D24D62603F7B14AE47E17A843F',3,82,x'0D00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,3,0,-1,x'0E00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'0F00000000000000CD00000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,0,0,'COMBINED',0,'STABILIZED',37224536,3,3,x'1000000000000000CD00000000005EED');
-- 95, 0; 110, 0.004
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'0000000000C0574000000000000000000000000000805B40FCA9F1D24D62703F',2,82,x'1100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(4,2293761,4,0,-1,x'1200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'1300000000000000CD00000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,0,0,'COMBINED',0,'STABILIZED',37224536,4,4,x'1400000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s:%s',"strainRangeDependency","numBackstresses","hardening","dataType","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=1
-- is: 1 1 COMBINED STABILIZED 37224536:3
-- after: SELECT printf('%s %s %s %s %s:%s',"strainRangeDependency","numBackstresses","hardening","dataType","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=2
-- is: 0 1 COMBINED STABILIZED 37224536:4
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=1
-- is: 3 0000000000004E4000000000000000007B14AE47E17A843F0000000000C05240FCA9F1D24D62603F7B14AE47E17A843F

-- A nickel alloy whose table has four columns, all of them accounted for by its temperature and
-- its one field.
-- 310, 0, 20, 1; 260, 0, 500, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'000000000060734000000000000000000000000000003440000000000000F03F000000000040704000000000000000000000000000407F400000000000000040',4,82,x'1500000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(5,2293761,5,0,-1,x'1600000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'1700000000000000CD00000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,1,1,'COMBINED',0,'STABILIZED',37224536,5,5,x'1800000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s:%s',"strainRangeDependency","numBackstresses","hardening","dataType","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=3
-- is: 0 1 COMBINED STABILIZED 1 1 37224536:5
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=3
-- is: 4 000000000060734000000000000000000000000000003440000000000000F03F000000000040704000000000000000000000000000407F400000000000000040

-- Two cards of one brass share their table. Its gamma is taken out and put back for each of them,
-- of the table as it was before: it is not put in twice.
-- 90, 8000, 40; 85, 7500, 30
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'0000000000805640000000000040BF400000000000004440000000000040554000000000004CBD400000000000003E40',3,82,x'1900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(6,2293761,6,0,-1,x'1A00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(6,-1,x'1B00000000000000CD00000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(4,0,0,'COMBINED',0,'PARAMETERS',37224536,6,6,x'1C00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(7,-1,x'1D00000000000000CD00000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(5,0,0,'COMBINED',0,'PARAMETERS',37224536,6,7,x'1E00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s:%s',"numBackstresses","strainRangeDependency","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=4
-- is: 1 0 37224536:6
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=4
-- is: 3 0000000000805640000000000040BF400000000000004440000000000040554000000000004CBD400000000000004440
-- after: SELECT printf('%s %s %s:%s',"numBackstresses","strainRangeDependency","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=5
-- is: 1 0 37224536:6
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=5
-- is: 3 0000000000805640000000000040BF400000000000004440000000000040554000000000004CBD400000000000004440

-- A mild steel of isotropic hardening by strain rate and temperature. Its table is nobody's
-- business, though it has columns enough for a gamma.
-- 210, 0, 0, 20; 340, 0.15, 0, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'0000000000406A400000000000000000000000000000000000000000000034400000000000407540333333333333C33F00000000000000000000000000003440',4,82,x'1F00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(7,2293761,7,0,-1,x'2000000000000000CD00000000005EED');
-- 40.4, 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'33333333333344400000000000001440',2,82,x'2100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(8,2293761,8,0,-1,x'2200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(8,-1,x'2300000000000000CD00000000005EED');
INSERT INTO "kmaC_RateDependent"("##OID","type","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'POWER_LAW',0,0,37224536,8,8,x'2400000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(9,-1,x'2500000000000000CD00000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","rateDependent#ClassID","rateDependent#OID","##BaseClassOID","##Uid")
  VALUES(6,1,0,'ISOTROPIC',1,'PARAMETERS',37224536,7,37224515,0,9,x'2600000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s',"hardening","rate","dataType","strainRangeDependency","numBackstresses","table#ClassID","table#OID","rateDependent#ClassID","rateDependent#OID","potential#OID" IS NULL) FROM kmaC_Plastic WHERE "##OID"=6
-- is: ISOTROPIC 1 PARAMETERS 0 1 37224536:7 37224515:0 1
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=6
-- is: 4 0000000000406A400000000000000000000000000000000000000000000034400000000000407540333333333333C33F00000000000000000000000000003440

-- What else is known of these metals: an expansion that a subroutine gives, one that stands in the
-- table by direction, damping, creep at two layers, and the tolerance that their tables are
-- regularized to.
-- 1.2e-05, 20; 1.35e-05, 400
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(9,x'54E41071732AE93E0000000000003440DE0033DFC14FEC3E0000000000007940',2,82,x'2700000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(9,2293761,9,0,-1,x'2800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(10,-1,x'2900000000000000CD00000000005EED');
INSERT INTO "kmaC_Expansion"("##OID","temperatureDependency","dependencies","type","user","zero","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,0,'USER',0,20.0,37224536,9,10,x'2A00000000000000CD00000000005EED');
-- The type "USER" became a flag, whatever the old flag said, which had gone by then.
-- after: SELECT printf('%s %s %s %s %s %s:%s',"type","userSubroutine","zero","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Expansion WHERE "##OID"=0
-- is: ISOTROPIC 1 20.0 1 0 37224536:9
-- 1.6e-05, 1.7e-05, 2.1e-05
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(10,x'8DEDB5A0F7C6F03E664CC11A67D3F13EC9C7EE022505F63E',3,82,x'2B00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(10,2293761,10,0,-1,x'2C00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(11,-1,x'2D00000000000000CD00000000005EED');
INSERT INTO "kmaC_Expansion"("##OID","temperatureDependency","dependencies","type","user","zero","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,0,0,'ORTHOTROPIC',1,-40.0,37224536,10,11,x'2E00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s',"type","userSubroutine","zero","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Expansion WHERE "##OID"=1
-- is: ORTHOTROPIC 0 -40.0 0 0 37224536:10
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Expansion') WHERE name IN ('user')
-- is: 0
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(12,-1,x'2F00000000000000CD00000000005EED');
INSERT INTO "kmaC_Damping"("##OID","alpha","beta","composite","##BaseClassOID","##Uid")
  VALUES(0,4.5,0.00025,0.02,12,x'3000000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s',"alpha","beta","composite","structural") FROM kmaC_Damping WHERE "##OID"=0
-- is: 4.5 0.00025 0.02 0.0
-- 2.5e-10, 4, -0.2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'95D626E80B2EF13D00000000000010409A9999999999C9BF',3,82,x'3100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(11,2293761,11,0,-1,x'3200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(13,-1,x'3300000000000000CD00000000005EED');
INSERT INTO "kmaC_Viscous"("##OID","law","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'TIME',0,0,37224536,11,13,x'3400000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s',"law","temperatureDependency","dependencies","table#ClassID","table#OID","potential#OID" IS NULL) FROM kmaC_Viscous WHERE "##OID"=0
-- is: TIME 0 0 37224536:11 1
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(14,-1,x'3500000000000000CD00000000005EED');
INSERT INTO "kmaC_Regularization"("##OID","rtol","rate","##BaseClassOID","##Uid")
  VALUES(0,0.05,'LINEAR',14,x'3600000000000000CD00000000005EED');
-- after: SELECT printf('%s %s',"rtol","strainRateRegularization") FROM kmaC_Regularization WHERE "##OID"=0
-- is: 0.05 LINEAR
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Regularization') WHERE name IN ('rate')
-- is: 0
INSERT INTO "kmaC_Material"("##OID","damping#ClassID","damping#OID","expansion#ClassID","expansion#OID","regularization#ClassID","regularization#OID","plastic#ClassID","plastic#OID","viscous#ClassID","viscous#OID","##BaseClassOID","##Uid")
  VALUES(0,37224469,0,37224481,0,37224546,0,37224508,0,37224560,0,-1,x'3700000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","expansion#ClassID","expansion#OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(1,37224481,1,37224508,1,-1,x'3800000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(2,37224508,2,-1,x'3900000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(3,37224508,6,-1,x'3A00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(4,37224508,3,-1,x'3B00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(5,37224508,4,-1,x'3C00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(6,37224508,5,-1,x'3D00000000000000CD00000000005EED');

-- Three clays with a cap. One creeps by cohesion, one by consolidation, and each has its class for
-- that since the creep of caps was split; the third does not creep, and keeps its hardening alone.
-- 1e-07, 1.1, -0.5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'48AFBC9AF2D77A3E9A9999999999F13F000000000000E0BF',3,82,x'3E00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(12,2293761,12,0,-1,x'3F00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(15,-1,x'4000000000000000CD00000000005EED');
INSERT INTO "kmaC_CapCreep"("##OID","law","mechanism","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'SINGHM','COHESION',1,2,37224536,12,15,x'4100000000000000CD00000000005EED');
-- 0.5, 0; 1.2, 0.02
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(13,x'000000000000E03F0000000000000000333333333333F33F7B14AE47E17A943F',2,82,x'4200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(13,2293761,13,0,-1,x'4300000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(16,-1,x'4400000000000000CD00000000005EED');
INSERT INTO "kmaC_CapHardening"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,13,16,x'4500000000000000CD00000000005EED');
-- 0.2, 30, 0.4, 0.0011, 0.02, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(14,x'9A9999999999C93F0000000000003E409A9999999999D93F2F6EA301BC05523F7B14AE47E17A943F000000000000F03F',6,82,x'4600000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(14,2293761,14,0,-1,x'4700000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(17,-1,x'4800000000000000CD00000000005EED');
INSERT INTO "kmaC_CapPlasticity"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","capCreep#ClassID","capCreep#OID","capHardening#ClassID","capHardening#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,14,37224458,0,37224459,0,17,x'4900000000000000CD00000000005EED');
-- 3e-08, 1.4, -0.6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(15,x'2B69A4292B1B603E666666666666F63F333333333333E3BF',3,82,x'4A00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(15,2293761,15,0,-1,x'4B00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(18,-1,x'4C00000000000000CD00000000005EED');
INSERT INTO "kmaC_CapCreep"("##OID","law","mechanism","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,'TIME','CONSOLIDATION',0,1,37224536,15,18,x'4D00000000000000CD00000000005EED');
-- 0.15, 25, 0.35, 0.002, 0.01, 1, 15
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(16,x'333333333333C33F0000000000003940666666666666D63FFCA9F1D24D62603F7B14AE47E17A843F000000000000F03F0000000000002E40',7,82,x'4E00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(16,2293761,16,0,-1,x'4F00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(19,-1,x'5000000000000000CD00000000005EED');
INSERT INTO "kmaC_CapPlasticity"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","capCreep#ClassID","capCreep#OID","##BaseClassOID","##Uid")
  VALUES(1,1,0,37224536,16,37224458,1,19,x'5100000000000000CD00000000005EED');
-- 0.3, 0; 0.9, 0.04
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(17,x'333333333333D33F0000000000000000CDCCCCCCCCCCEC3F7B14AE47E17AA43F',2,82,x'5200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(17,2293761,17,0,-1,x'5300000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(20,-1,x'5400000000000000CD00000000005EED');
INSERT INTO "kmaC_CapHardening"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,0,0,37224536,17,20,x'5500000000000000CD00000000005EED');
-- 0.1, 22, 0.3, 0.0015, 0.01, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(18,x'9A9999999999B93F0000000000003640333333333333D33FFA7E6ABC7493583F7B14AE47E17A843F000000000000F03F',6,82,x'5600000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(18,2293761,18,0,-1,x'5700000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(21,-1,x'5800000000000000CD00000000005EED');
INSERT INTO "kmaC_CapPlasticity"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","capHardening#ClassID","capHardening#OID","##BaseClassOID","##Uid")
  VALUES(2,0,3,37224536,18,37224459,1,21,x'5900000000000000CD00000000005EED');
-- The clay of the dam has the creep of the London clay, and gets a row of its own of it. The silt
-- creeps by a mechanism that nobody wrote down, which is taken for consolidation.
-- 0.2, 30, 0.4, 0.0011, 0.02, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(19,x'9A9999999999C93F0000000000003E409A9999999999D93F2F6EA301BC05523F7B14AE47E17A943F000000000000F03F',6,82,x'5A00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(19,2293761,19,0,-1,x'5B00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(22,-1,x'5C00000000000000CD00000000005EED');
INSERT INTO "kmaC_CapPlasticity"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","capCreep#ClassID","capCreep#OID","##BaseClassOID","##Uid")
  VALUES(3,0,0,37224536,19,37224458,0,22,x'5D00000000000000CD00000000005EED');
-- 2e-08, 1.2, -0.3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(20,x'3A8C30E28E79553E333333333333F33F333333333333D3BF',3,82,x'5E00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(20,2293761,20,0,-1,x'5F00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(23,-1,x'6000000000000000CD00000000005EED');
INSERT INTO "kmaC_CapCreep"("##OID","law","mechanism","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,'STRAIN',NULL,0,0,37224536,20,23,x'6100000000000000CD00000000005EED');
-- 0.12, 24, 0.3, 0.001, 0.01, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(21,x'B81E85EB51B8BE3F0000000000003840333333333333D33FFCA9F1D24D62503F7B14AE47E17A843F000000000000F03F',6,82,x'6200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(21,2293761,21,0,-1,x'6300000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(24,-1,x'6400000000000000CD00000000005EED');
INSERT INTO "kmaC_CapPlasticity"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","capCreep#ClassID","capCreep#OID","##BaseClassOID","##Uid")
  VALUES(4,0,0,37224536,21,37224458,2,24,x'6500000000000000CD00000000005EED');
-- A creep that no cap refers to is simply gone.
-- 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(22,x'0000000000001440',1,82,x'6600000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(22,2293761,22,0,-1,x'6700000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(25,-1,x'6800000000000000CD00000000005EED');
INSERT INTO "kmaC_CapCreep"("##OID","law","mechanism","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,'USER','COHESION',0,0,37224536,22,25,x'6900000000000000CD00000000005EED');
-- after: SELECT printf('%s:%s %s:%s %s %s',"table#ClassID","table#OID","capCreepCohesion#ClassID","capCreepCohesion#OID","capCreepConsolidation#OID" IS NULL,"capHardening#OID" IS NULL) FROM kmaC_CapPlasticity WHERE "##OID"=3
-- is: 37224536:19 37224574:1 1 1
-- after: SELECT printf('%s:%s %s %s:%s %s',"table#ClassID","table#OID","capCreepCohesion#OID" IS NULL,"capCreepConsolidation#ClassID","capCreepConsolidation#OID","capHardening#OID" IS NULL) FROM kmaC_CapPlasticity WHERE "##OID"=4
-- is: 37224536:21 1 37224575:1 1
-- after: SELECT printf('%s %s %s %s:%s',"law","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_CapCreepCohesion WHERE "##OID"=1
-- is: SINGHM 1 2 37224536:12
-- after: SELECT printf('%s %s %s %s:%s',"law","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_CapCreepConsolidation WHERE "##OID"=1
-- is: STRAIN 0 0 37224536:20
-- after: SELECT printf('%s %s %s:%s %s:%s %s %s:%s',"temperatureDependency","dependencies","table#ClassID","table#OID","capCreepCohesion#ClassID","capCreepCohesion#OID","capCreepConsolidation#OID" IS NULL,"capHardening#ClassID","capHardening#OID") FROM kmaC_CapPlasticity WHERE "##OID"=0
-- is: 0 0 37224536:14 37224574:0 1 37224459:0
-- after: SELECT printf('%s %s %s:%s %s %s:%s %s',"temperatureDependency","dependencies","table#ClassID","table#OID","capCreepCohesion#OID" IS NULL,"capCreepConsolidation#ClassID","capCreepConsolidation#OID","capHardening#OID" IS NULL) FROM kmaC_CapPlasticity WHERE "##OID"=1
-- is: 1 0 37224536:16 1 37224575:0 1
-- after: SELECT printf('%s %s %s:%s %s %s %s:%s',"temperatureDependency","dependencies","table#ClassID","table#OID","capCreepCohesion#OID" IS NULL,"capCreepConsolidation#OID" IS NULL,"capHardening#ClassID","capHardening#OID") FROM kmaC_CapPlasticity WHERE "##OID"=2
-- is: 0 3 37224536:18 1 1 37224459:1
-- after: SELECT printf('%s %s %s %s:%s',"law","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_CapCreepCohesion WHERE "##OID"=0
-- is: SINGHM 1 2 37224536:12
-- after: SELECT printf('%s %s %s %s:%s',"law","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_CapCreepConsolidation WHERE "##OID"=0
-- is: TIME 0 1 37224536:15
-- after: SELECT "##BaseClassOID" FROM kmaC_CapCreepCohesion UNION ALL SELECT "##BaseClassOID" FROM kmaC_CapCreepConsolidation
-- is: -1 -1 -1 -1
-- after: SELECT count(*) FROM nga_Catalogue WHERE ClassName IN ('kmaC_CapCreep')
-- is: 0

-- The sand under the quay: Mohr-Coulomb with the one eccentricity that is the meridional one now,
-- and a permeability with the weight of its water, by saturation and by velocity. The clay's
-- permeability depends on neither.
-- 12, 0; 9, 0.05
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(23,x'0000000000002840000000000000000000000000000022409A9999999999A93F',2,82,x'6A00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(23,2293761,23,0,-1,x'6B00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(26,-1,x'6C00000000000000CD00000000005EED');
INSERT INTO "kmaC_MohrCoulombHardening"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,23,26,x'6D00000000000000CD00000000005EED');
-- 32, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(24,x'00000000000040400000000000000040',2,82,x'6E00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(24,2293761,24,1,-1,x'6F00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(27,-1,x'7000000000000000CD00000000005EED');
INSERT INTO "kmaC_MohrCoulomb"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","mohrCoulombHardening#ClassID","mohrCoulombHardening#OID","deviatoricEccentricity","eccentricity","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,24,37224566,0,0.6,0.15,27,x'7100000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s:%s %s:%s',"deviatoricEccentricity","meridionalEccentricity","temperatureDependency","dependencies","table#ClassID","table#OID","mohrCoulombHardening#ClassID","mohrCoulombHardening#OID") FROM kmaC_MohrCoulomb WHERE "##OID"=0
-- is: 0.6 0.15 0 0 37224536:24 37224566:0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_MohrCoulomb') WHERE name IN ('eccentricity')
-- is: 0
-- 1, 1; 0.4, 0.6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(25,x'000000000000F03F000000000000F03F9A9999999999D93F333333333333E33F',2,82,x'7200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(25,2293761,25,0,-1,x'7300000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(28,-1,x'7400000000000000CD00000000005EED');
INSERT INTO "kmaC_SaturationDependence"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,25,28,x'7500000000000000CD00000000005EED');
-- 0.08, 0.3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(26,x'7B14AE47E17AB43F333333333333D33F',2,82,x'7600000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(26,2293761,26,0,-1,x'7700000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(29,-1,x'7800000000000000CD00000000005EED');
INSERT INTO "kmaC_VelocityDependence"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,26,29,x'7900000000000000CD00000000005EED');
-- 0.0001, 0.6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(27,x'2D431CEBE2361A3F333333333333E33F',2,82,x'7A00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(27,2293761,27,0,-1,x'7B00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(30,-1,x'7C00000000000000CD00000000005EED');
INSERT INTO "kmaC_Permeability"("##OID","temperatureDependency","specific","type","table#ClassID","table#OID","saturation#ClassID","saturation#OID","velocity#ClassID","velocity#OID","##BaseClassOID","##Uid")
  VALUES(0,0,9.81e-06,'ISOTROPIC',37224536,27,37224549,0,37224550,0,30,x'7D00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s:%s %s:%s',"type","specificWeight","temperatureDependency","table#ClassID","table#OID","saturationDependence#ClassID","saturationDependence#OID","velocityDependence#ClassID","velocityDependence#OID") FROM kmaC_Permeability WHERE "##OID"=0
-- is: ISOTROPIC 9.81e-06 0 37224536:27 37224549:0 37224550:0
-- 2e-09, 1e-09, 2e-09, 0.9, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(28,x'95D626E80B2E213E95D626E80B2E113E95D626E80B2E213ECDCCCCCCCCCCEC3F0000000000003440',5,82,x'7E00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(28,2293761,28,0,-1,x'7F00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(31,-1,x'8000000000000000CD00000000005EED');
INSERT INTO "kmaC_Permeability"("##OID","temperatureDependency","specific","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,1,1e-05,'ORTHOTROPIC',37224536,28,31,x'8100000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s %s',"type","specificWeight","temperatureDependency","table#ClassID","table#OID","saturationDependence#OID" IS NULL,"velocityDependence#OID" IS NULL) FROM kmaC_Permeability WHERE "##OID"=1
-- is: ORTHOTROPIC 1.0e-05 1 37224536:28 1 1
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Permeability') WHERE name IN ('specific','saturation#ClassID','saturation#OID','velocity#ClassID','velocity#OID')
-- is: 0
INSERT INTO "kmaC_Material"("##OID","capPlasticity#ClassID","capPlasticity#OID","permeability#ClassID","permeability#OID","##BaseClassOID","##Uid")
  VALUES(7,37224460,0,37224505,1,-1,x'8200000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","capPlasticity#ClassID","capPlasticity#OID","##BaseClassOID","##Uid")
  VALUES(8,37224460,1,-1,x'8300000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","capPlasticity#ClassID","capPlasticity#OID","##BaseClassOID","##Uid")
  VALUES(9,37224460,2,-1,x'8400000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","capPlasticity#ClassID","capPlasticity#OID","##BaseClassOID","##Uid")
  VALUES(10,37224460,3,-1,x'8500000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","capPlasticity#ClassID","capPlasticity#OID","##BaseClassOID","##Uid")
  VALUES(11,37224460,4,-1,x'8600000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","permeability#ClassID","permeability#OID","mohrCoulomb#ClassID","mohrCoulomb#OID","##BaseClassOID","##Uid")
  VALUES(12,37224505,0,37224565,0,-1,x'8700000000000000CD00000000005EED');

-- A natural rubber with all its tests. Each test gets the smoothing that says none was chosen, and
-- the flags that it had no columns for; the volumetric one gets its flag of lateral strain only to
-- lose it again. The fit gets the responses that were the only ones then.
-- 0.095, 0.02; 0.24, 0.14
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(29,x'52B81E85EB51B83F7B14AE47E17A943FB81E85EB51B8CE3FEC51B81E85EBC13F',2,82,x'8800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(29,2293761,29,0,-1,x'8900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(32,-1,x'8A00000000000000CD00000000005EED');
INSERT INTO "kmaC_BiaxialTestData"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,29,32,x'8B00000000000000CD00000000005EED');
-- 0.062, 0.069; 0.16, 0.16
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(30,x'5839B4C876BEAF3F448B6CE7FBA9B13F7B14AE47E17AC43F7B14AE47E17AC43F',2,82,x'8C00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(30,2293761,30,0,-1,x'8D00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(33,-1,x'8E00000000000000CD00000000005EED');
INSERT INTO "kmaC_PlanarTestData"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,30,33,x'8F00000000000000CD00000000005EED');
-- 0.155, 0.1338; 0.3, 0.2675
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(31,x'D7A3703D0AD7C33FE3361AC05B20C13F333333333333D33F1F85EB51B81ED13F',2,82,x'9000000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(31,2293761,31,0,-1,x'9100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(34,-1,x'9200000000000000CD00000000005EED');
INSERT INTO "kmaC_UniaxialTestData"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,31,34,x'9300000000000000CD00000000005EED');
-- 10, 0.99; 50, 0.955
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(32,x'0000000000002440AE47E17A14AEEF3F00000000000049408FC2F5285C8FEE3F',2,82,x'9400000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(32,2293761,32,0,-1,x'9500000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(35,-1,x'9600000000000000CD00000000005EED');
INSERT INTO "kmaC_VolumetricTestData"("##OID","volinf","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0.9,37224536,32,35,x'9700000000000000CD00000000005EED');
-- 1.6, 0.06, 4, -1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(33,x'9A9999999999F93FB81E85EB51B8AE3F0000000000001040000000000000F0BF',4,82,x'9800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(33,2293761,33,0,-1,x'9900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(36,-1,x'9A00000000000000CD00000000005EED');
INSERT INTO "kmaC_Hysteresis"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,33,36,x'9B00000000000000CD00000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(34,x'',0,82,x'9C00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(34,2293761,34,0,-1,x'9D00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(37,-1,x'9E00000000000000CD00000000005EED');
INSERT INTO "kmaC_Hyperelastic"("##OID","temperatureDependency","n","type","beta","moduliTimeScale","properties","compressible","testData","table#ClassID","table#OID","biaxialTestData#ClassID","biaxialTestData#OID","planarTestData#ClassID","planarTestData#OID","uniaxialTestData#ClassID","uniaxialTestData#OID","volumetricTestData#ClassID","volumetricTestData#OID","hysteresis#ClassID","hysteresis#OID","##BaseClassOID","##Uid")
  VALUES(0,0,3,'OGDEN',1.7976931348623157e+308,'LONG_TERM',0,1,1,37224536,34,37224454,0,37224507,0,37224529,0,37224535,0,37224543,0,37,x'9F00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s:%s',"smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_BiaxialTestData WHERE "##OID"=0
-- is: 2147483647 0 0 0 37224536:29
-- after: SELECT printf('%s %s %s %s %s:%s',"smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_PlanarTestData WHERE "##OID"=0
-- is: 2147483647 0 0 0 37224536:30
-- after: SELECT printf('%s %s %s %s %s:%s',"smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_UniaxialTestData WHERE "##OID"=0
-- is: 2147483647 0 0 0 37224536:31
-- after: SELECT printf('%s %s %s %s %s:%s',"volinf","smoothing","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_VolumetricTestData WHERE "##OID"=0
-- is: 0.9 2147483647 0 0 37224536:32
-- after: SELECT count(*) FROM pragma_table_info('kmaC_VolumetricTestData') WHERE name IN ('lateralNominalStrain')
-- is: 0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s %s:%s %s:%s',"type","moduliTimeScale","temperatureDependency","n","beta"=1.7976931348623157e308,"testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","biaxialTestData#ClassID","biaxialTestData#OID","planarTestData#ClassID","planarTestData#OID","uniaxialTestData#ClassID","uniaxialTestData#OID","volumetricTestData#ClassID","volumetricTestData#OID","hysteresis#ClassID","hysteresis#OID") FROM kmaC_Hyperelastic WHERE "##OID"=0
-- is: OGDEN LONG_TERM 0 3 1 1 1 0 UNIAXIAL DEFAULT 0.0 37224536:34 37224454:0 37224507:0 37224529:0 37224535:0 37224543:0

-- A neoprene by its coefficients, without a test: what was not referred to then is not now.
-- 0.176, 0.0043, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(35,x'BA490C022B87C63F22FDF675E09C713F0000000000000000',3,82,x'A000000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(35,2293761,35,0,-1,x'A100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(38,-1,x'A200000000000000CD00000000005EED');
INSERT INTO "kmaC_Hyperelastic"("##OID","temperatureDependency","n","type","beta","moduliTimeScale","properties","compressible","testData","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,0,1,'MOONEY_RIVLIN',1.7976931348623157e+308,'INSTANTANEOUS',0,0,0,37224536,35,38,x'A300000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s:%s %s %s %s %s %s',"type","moduliTimeScale","n","testData","compressible","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","biaxialTestData#OID" IS NULL,"planarTestData#OID" IS NULL,"uniaxialTestData#OID" IS NULL,"volumetricTestData#OID" IS NULL,"hysteresis#OID" IS NULL) FROM kmaC_Hyperelastic WHERE "##OID"=1
-- is: MOONEY_RIVLIN INSTANTANEOUS 1 0 0 UNIAXIAL DEFAULT 0.0 37224536:35 1 1 1 1 1

-- The same neoprene relaxes. Each viscoelastic option gets a type, a preload and a volumetric
-- table of its own, which is empty, may begin with a row of zeros, and is a material table no
-- archive had.
-- 20, 4.9, 120
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(36,x'00000000000034409A999999999913400000000000005E40',3,82,x'A400000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(36,2293761,36,0,-1,x'A500000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(39,-1,x'A600000000000000CD00000000005EED');
INSERT INTO "kmaC_Trs"("##OID","definition","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'WLF',37224536,36,39,x'A700000000000000CD00000000005EED');
-- 0.95, 0.1; 0.62, 10
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(37,x'666666666666EE3F9A9999999999B93FD7A3703D0AD7E33F0000000000002440',2,82,x'A800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(37,2293761,37,0,-1,x'A900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(40,-1,x'AA00000000000000CD00000000005EED');
INSERT INTO "kmaC_ShearTestData"("##OID","shrinf","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0.4,37224536,37,40,x'AB00000000000000CD00000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(38,x'',0,82,x'AC00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(38,2293761,38,1,-1,x'AD00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(41,-1,x'AE00000000000000CD00000000005EED');
INSERT INTO "kmaC_Viscoelastic"("##OID","domain","frequency","time","errtol","nmax","table#ClassID","table#OID","shearTestData#ClassID","shearTestData#OID","trs#ClassID","trs#OID","##BaseClassOID","##Uid")
  VALUES(0,'TIME','FORMULA','RELAXATION_TEST_DATA',0.02,8,37224536,38,37224519,0,37224528,0,41,x'AF00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s %s %s:%s %s:%s %s',"domain","frequency","type","preload","time","errtol","nmax","table#ClassID","table#OID","combinedTestData#OID" IS NULL,"shearTestData#ClassID","shearTestData#OID","trs#ClassID","trs#OID","volumetricTestData#OID" IS NULL) FROM kmaC_Viscoelastic WHERE "##OID"=0
-- is: TIME FORMULA ISOTROPIC NONE RELAXATION_TEST_DATA 0.02 8 37224536:38 1 37224519:0 37224528:0 1
-- after: SELECT t.allowEmptyFirstRow||' '||length(l."Target#Handle")||' '||(v."volumetricTable#ClassID"=0x2380058)||' '||(v."volumetricTable#OID"<>v."table#OID") FROM kmaC_Viscoelastic v JOIN kmaC_MaterialTable t ON t."##OID"=v."volumetricTable#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE v."##OID"=0
-- is: 1 0 1 1

-- A crushed foam of polyurethane, with tests in uniaxial compression and simple shear. Its
-- volumetric test is the rubber's, which both refer to: it is one row before and after.
-- 0.08, 0.1, 0; 0.16, 0.22, 0.01
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(39,x'7B14AE47E17AB43F9A9999999999B93F00000000000000007B14AE47E17AC43F295C8FC2F528CC3F7B14AE47E17A843F',3,82,x'B000000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(39,2293761,39,0,-1,x'B100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(42,-1,x'B200000000000000CD00000000005EED');
INSERT INTO "kmaC_SimpleShearTestData"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,39,42,x'B300000000000000CD00000000005EED');
-- -0.05, -0.1; -0.12, -0.4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(40,x'9A9999999999A9BF9A9999999999B9BFB81E85EB51B8BEBF9A9999999999D9BF',2,82,x'B400000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(40,2293761,40,0,-1,x'B500000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(43,-1,x'B600000000000000CD00000000005EED');
INSERT INTO "kmaC_UniaxialTestData"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,37224536,40,43,x'B700000000000000CD00000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(41,x'',0,82,x'B800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(41,2293761,41,0,-1,x'B900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(44,-1,x'BA00000000000000CD00000000005EED');
INSERT INTO "kmaC_Hyperfoam"("##OID","testData","poisson","n","temperatureDependency","moduli","table#ClassID","table#OID","volumetricTestData#ClassID","volumetricTestData#OID","simpleShearTestData#ClassID","simpleShearTestData#OID","uniaxialTestData#ClassID","uniaxialTestData#OID","##BaseClassOID","##Uid")
  VALUES(0,1,0.0,2,0,'LONG_TERM',37224536,41,37224535,0,37224520,0,37224529,1,44,x'BB00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s %s:%s %s %s:%s %s:%s',"testData","poisson","n","temperatureDependency","moduli","table#ClassID","table#OID","biaxialTestData#OID" IS NULL,"volumetricTestData#ClassID","volumetricTestData#OID","planarTestData#OID" IS NULL,"simpleShearTestData#ClassID","simpleShearTestData#OID","uniaxialTestData#ClassID","uniaxialTestData#OID") FROM kmaC_Hyperfoam WHERE "##OID"=0
-- is: 1 0.0 2 0 LONG_TERM 37224536:41 1 37224535:0 1 37224520:0 37224529:1
-- after: SELECT printf('%s %s %s %s %s:%s',"smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_UniaxialTestData WHERE "##OID"=1
-- is: 2147483647 0 0 0 37224536:40
-- after: SELECT count(*) FROM kmaC_VolumetricTestData
-- is: 1
INSERT INTO "kmaC_Material"("##OID","hyperelastic#ClassID","hyperelastic#OID","##BaseClassOID","##Uid")
  VALUES(13,37224494,0,-1,x'BC00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","hyperelastic#ClassID","hyperelastic#OID","viscoelastic#ClassID","viscoelastic#OID","##BaseClassOID","##Uid")
  VALUES(14,37224494,1,37224533,0,-1,x'BD00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","hyperfoam#ClassID","hyperfoam#OID","##BaseClassOID","##Uid")
  VALUES(15,37224495,0,-1,x'BE00000000000000CD00000000005EED');

-- A concrete that cracks. The option lives on in its own table and gets a place for its failure;
-- but the material's reference to it was dropped when cracking was left out for a while, so that
-- nothing refers to it now.
-- 0.005, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(42,x'7B14AE47E17A743F0000000000000040',2,82,x'BF00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(42,2293761,42,0,-1,x'C000000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(45,-1,x'C100000000000000CD00000000005EED');
INSERT INTO "kmaC_BrittleShear"("##OID","temperatureDependency","dependencies","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'POWER_LAW',37224536,42,45,x'C200000000000000CD00000000005EED');
-- 2.9, 0; 0, 0.0012
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(43,x'333333333333074000000000000000000000000000000000613255302AA9533F',2,82,x'C300000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(43,2293761,43,0,-1,x'C400000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(46,-1,x'C500000000000000CD00000000005EED');
INSERT INTO "kmaC_BrittleCracking"("##OID","temperatureDependency","dependencies","type","table#ClassID","table#OID","brittleShear#ClassID","brittleShear#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'STRAIN',37224536,43,37224456,0,46,x'C600000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s:%s %s',"temperatureDependency","dependencies","type","table#ClassID","table#OID","brittleShear#ClassID","brittleShear#OID","brittleFailure#OID" IS NULL) FROM kmaC_BrittleCracking WHERE "##OID"=0
-- is: 0 0 STRAIN 37224536:43 37224456:0 1
-- 2.4e-09
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(44,x'4CCE61E3A79D243E',1,82,x'C700000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(44,2293761,44,1,-1,x'C800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(47,-1,x'C900000000000000CD00000000005EED');
INSERT INTO "kmaC_Density"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,44,47,x'CA00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","brittleCracking#ClassID","brittleCracking#OID","density#ClassID","density#OID","##BaseClassOID","##Uid")
  VALUES(16,37224455,0,37224471,0,-1,x'CB00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s:%s %s %s',"brittleCracking#OID" IS NULL,"density#ClassID","density#OID","description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=16
-- is: 1 37224471:0 1 1

-- An explosive by the expansion of its products, with its detonation point; and water by shock
-- velocities, with a viscosity. Neither is compacted.
-- 0, 0, 0, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(45,x'0000000000000000000000000000000000000000000000000000000000000000',4,82,x'CC00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(45,2293761,45,1,-1,x'CD00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(48,-1,x'CE00000000000000CD00000000005EED');
INSERT INTO "kmaC_DetonationPoint"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,45,48,x'CF00000000000000CD00000000005EED');
-- 6930, 371200, 3231, 0.3, 4.15, 0.95, 3.63e+06
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(46,x'000000000012BB400000000000A8164100000000003EA940333333333333D33F9A99999999991040666666666666EE3F00000000D8B14B41',7,82,x'D000000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(46,2293761,46,0,-1,x'D100000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(49,-1,x'D200000000000000CD00000000005EED');
INSERT INTO "kmaC_Eos"("##OID","type","table#ClassID","table#OID","detonationPoint#ClassID","detonationPoint#OID","##BaseClassOID","##Uid")
  VALUES(0,'JWL',37224536,46,37224545,0,49,x'D300000000000000CD00000000005EED');
-- 1e-09
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(47,x'95D626E80B2E113E',1,82,x'D400000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(47,2293761,47,0,-1,x'D500000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(50,-1,x'D600000000000000CD00000000005EED');
INSERT INTO "kmaC_EosShear"("##OID","temperatureDependency","dependencies","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'VISCOUS',37224536,47,50,x'D700000000000000CD00000000005EED');
-- 1.45e+06, 1.75, 0.28
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(48,x'0000000010203641000000000000FC3FEC51B81E85EBD13F',3,82,x'D800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(48,2293761,48,0,-1,x'D900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(51,-1,x'DA00000000000000CD00000000005EED');
INSERT INTO "kmaC_Eos"("##OID","type","table#ClassID","table#OID","eosShear#ClassID","eosShear#OID","##BaseClassOID","##Uid")
  VALUES(1,'USUP',37224536,48,37224544,0,51,x'DB00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s:%s %s:%s %s %s',"type","table#ClassID","table#OID","detonationPoint#ClassID","detonationPoint#OID","eosShear#OID" IS NULL,"eosCompaction#OID" IS NULL) FROM kmaC_Eos WHERE "##OID"=0
-- is: JWL 37224536:46 37224545:0 1 1
-- after: SELECT printf('%s %s:%s %s %s:%s %s',"type","table#ClassID","table#OID","detonationPoint#OID" IS NULL,"eosShear#ClassID","eosShear#OID","eosCompaction#OID" IS NULL) FROM kmaC_Eos WHERE "##OID"=1
-- is: USUP 37224536:48 1 37224544:0 1
-- The hydraulic fluids of the first archive have no place in a material any more; their rows stay.
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(52,-1,x'DC00000000000000CD00000000005EED');
INSERT INTO "kmaC_FluidDensity"("##OID","temperature","pressure","density","##BaseClassOID","##Uid")
  VALUES(0,20.0,0.1,9.98e-10,52,x'DD00000000000000CD00000000005EED');
-- 2180
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(49,x'000000000008A140',1,82,x'DE00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(49,2293761,49,0,-1,x'DF00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(53,-1,x'E000000000000000CD00000000005EED');
INSERT INTO "kmaC_FluidBulkModulus"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,49,53,x'E100000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","eos#ClassID","eos#OID","##BaseClassOID","##Uid")
  VALUES(17,37224480,0,-1,x'E200000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","eos#ClassID","eos#OID","fluidBulkModulus#ClassID","fluidBulkModulus#OID","fluidDensity#ClassID","fluidDensity#OID","##BaseClassOID","##Uid")
  VALUES(18,37224480,1,37224487,0,37224488,0,-1,x'E300000000000000CD00000000005EED');
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Material') WHERE name IN ('fluidDensity#OID','fluidBulkModulus#OID','fluidExpansion#OID','jointedMaterial#OID')
-- is: 0
-- after: SELECT printf('%s %s %s',"temperature","pressure","density") FROM kmaC_FluidDensity WHERE "##OID"=0
-- is: 20.0 0.1 9.98e-10

-- A piezoelectric ceramic by stress coefficients, a gasket of force over closure with its contact
-- area, and a subroutine's material, whose count of constants is told by the list itself now: the
-- references pass by the material table and lead to its array.
-- 0, 0, 0, 0, 0, 0, 0, 0, 0, 12.3, 0, 0, -5.4, -5.4, 15.8, 0, 0, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(50,x'0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000009A99999999992840000000000000000000000000000000009A999999999915C09A999999999915C09A99999999992F40000000000000000000000000000000000000000000000000',18,82,x'E400000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(50,2293761,50,0,-1,x'E500000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(54,-1,x'E600000000000000CD00000000005EED');
INSERT INTO "kmaC_Piezoelectric"("##OID","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'STRESS',37224536,50,54,x'E700000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s',"type","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Piezoelectric WHERE "##OID"=0
-- is: STRESS 0 0 37224536:50
-- 3.2, 0; 4.1, 0.4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(51,x'9A99999999990940000000000000000066666666666610409A9999999999D93F',2,82,x'E800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(51,2293761,51,0,-1,x'E900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(55,-1,x'EA00000000000000CD00000000005EED');
INSERT INTO "kmaC_ContactArea"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,51,55,x'EB00000000000000CD00000000005EED');
-- 0, 0; 120, 0.1; 310, 0.3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(52,x'000000000000000000000000000000000000000000005E409A9999999999B93F0000000000607340333333333333D33F',2,82,x'EC00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(52,2293761,52,1,-1,x'ED00000000000000CD00000000005EED');
-- 0, 0.2, 0.3; 90, 0.28, 0.3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(53,x'00000000000000009A9999999999C93F333333333333D33F0000000000805640EC51B81E85EBD13F333333333333D33F',3,82,x'EE00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(53,2293761,53,1,-1,x'EF00000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(56,-1,x'F000000000000000CD00000000005EED');
INSERT INTO "kmaC_ThicknessBehavior"("##OID","temperatureDependency","dependencies","type","tensileStiffnessFactor","units","yieldOnsetMethod","yieldOnset","table#ClassID","table#OID","contactArea#ClassID","contactArea#OID","unloadingTemperatureDependency","unloadingDependencies","unloadingTable#ClassID","unloadingTable#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'ELASTIC_PLASTIC',0.002,'FORCE','CLOSURE_VALUE',0.12,37224536,52,37224542,0,0,0,37224536,53,56,x'F100000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s',"temperatureDependency","dependencies","tensileStiffnessFactor","type","unloadingDependencies","unloadingTemperatureDependency","variableUnits","yieldOnset","yieldOnsetMethod","table#ClassID","table#OID","unloadingTable#ClassID","unloadingTable#OID","contactArea#ClassID","contactArea#OID") FROM kmaC_ThicknessBehavior WHERE "##OID"=0
-- is: 0 0 0.002 ELASTIC_PLASTIC 0 0 FORCE 0.12 CLOSURE_VALUE 37224536:52 37224536:53 37224542:0
-- 36, 20; 29, 150
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(54,x'000000000000424000000000000034400000000000003D400000000000C06240',2,82,x'F200000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(54,2293761,54,0,-1,x'F300000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(57,-1,x'F400000000000000CD00000000005EED');
INSERT INTO "kmaC_TransShearElastic"("##OID","temperatureDependency","dependencies","units","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,0,'FORCE',37224536,54,57,x'F500000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s',"variableUnits","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_TransShearElastic WHERE "##OID"=0
-- is: FORCE 1 0 37224536:54
-- after: SELECT count(*) FROM pragma_table_info('kmaC_ThicknessBehavior') WHERE name IN ('units')
-- is: 0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_TransShearElastic') WHERE name IN ('units')
-- is: 0
-- 70000, 0.33, 120
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(55,x'000000000017F1401F85EB51B81ED53F0000000000005E40',3,82,x'F600000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(55,2293761,55,0,-1,x'F700000000000000CD00000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(56,x'',0,82,x'F800000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(56,2293761,56,0,-1,x'F900000000000000CD00000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(58,-1,x'FA00000000000000CD00000000005EED');
INSERT INTO "kmaC_UserMaterial"("##OID","constants","type","unsymm","mechanicalTable#ClassID","mechanicalTable#OID","thermalTable#ClassID","thermalTable#OID","##BaseClassOID","##Uid")
  VALUES(0,3,'MECHANICAL',1,37224536,55,37224536,56,58,x'FB00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s:%s %s:%s',"type","unsymm","mechanicalConstants#ClassID","mechanicalConstants#OID","thermalConstants#ClassID","thermalConstants#OID") FROM kmaC_UserMaterial WHERE "##OID"=0
-- is: MECHANICAL 1 2293761:55 2293761:56
-- after: SELECT hex("Target#Handle") FROM cls_List WHERE "##OID"=55
-- is: 000000000017F1401F85EB51B81ED53F0000000000005E40
-- after: SELECT count(*) FROM pragma_table_info('kmaC_UserMaterial') WHERE name IN ('constants','mechanicalTable#OID','thermalTable#OID')
-- is: 0
INSERT INTO "kmaC_Material"("##OID","piezoelectric#ClassID","piezoelectric#OID","##BaseClassOID","##Uid")
  VALUES(19,37224506,0,-1,x'FC00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","thicknessBehavior#ClassID","thicknessBehavior#OID","transShearElastic#ClassID","transShearElastic#OID","##BaseClassOID","##Uid")
  VALUES(20,37224541,0,37224540,0,-1,x'FD00000000000000CD00000000005EED');
INSERT INTO "kmaC_Material"("##OID","userMaterial#ClassID","userMaterial#OID","##BaseClassOID","##Uid")
  VALUES(21,37224531,0,-1,x'FE00000000000000CD00000000005EED');

-- A material card that was opened and never filled.
INSERT INTO "kmaC_Material"("##OID","##BaseClassOID","##Uid")
  VALUES(22,-1,x'FF00000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s',"elastic#OID" IS NULL,"plastic#OID" IS NULL,"mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=22
-- is: 1 1 1 1 1

-- Load histories. Their kind of definition and of value fell away; the time became the time span.
-- A table became data without being copied: the list it refers to is the same row.
-- 0, 5, 10
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(57,x'000000000000000000000000000014400000000000002440',1,52,x'0001000000000000CD00000000005EED');
INSERT INTO "kamC_BaselineCorrection"("##OID","intervals#ClassID","intervals#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,57,-1,x'0101000000000000CD00000000005EED');
-- 0, 0; 60, 1; 600, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(58,x'000000000000000000000000000000000000000000004E40000000000000F03F0000000000C08240000000000000F03F',2,82,x'0201000000000000CD00000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","time","value","##BaseClassOID","##Uid")
  VALUES(0,'TABULAR','TOTAL','RELATIVE',-1,x'0301000000000000CD00000000005EED');
INSERT INTO "kamC_Tabular"("##OID","smooth","table#ClassID","table#OID","baselineCorrection#ClassID","baselineCorrection#OID","##BaseClassOID","##Uid")
  VALUES(0,0.25,2293761,58,38010881,0,0,x'0401000000000000CD00000000005EED');
-- after: SELECT printf('%s %s:%s %s:%s',"smooth","data#ClassID","data#OID","baselineCorrection#ClassID","baselineCorrection#OID") FROM kamC_Tabular WHERE "##OID"=0
-- is: 0.25 2293761:58 38010881:0
-- 0, 0.12, -0.31, 0.08
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(59,x'0000000000000000B81E85EB51B8BE3FD7A3703D0AD7D3BF7B14AE47E17AB43F',1,52,x'0501000000000000CD00000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","time","value","##BaseClassOID","##Uid")
  VALUES(1,'EQUALLY SPACED','STEP','ABSOLUTE',-1,x'0601000000000000CD00000000005EED');
INSERT INTO "kamC_EquallySpaced"("##OID","smooth","fixedInterval","begin","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1.7976931348623157e+308,0.02,1.5,2293761,59,1,x'0701000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s',"fixedInterval","begin","smooth"=1.7976931348623157e308,"data#ClassID","data#OID","baselineCorrection#OID" IS NULL) FROM kamC_EquallySpaced WHERE "##OID"=0
-- is: 0.02 1.5 1 2293761:59 1
-- 1, 0; 0, 0.5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(60,x'000000000000F03F00000000000000000000000000000000000000000000E03F',2,82,x'0801000000000000CD00000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","time","value","##BaseClassOID","##Uid")
  VALUES(2,'PERIODIC','STEP','RELATIVE',-1,x'0901000000000000CD00000000005EED');
INSERT INTO "kamC_Periodic"("##OID","frequency","start","a_0","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,157.08,0.1,0.2,2293761,60,2,x'0A01000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s:%s',"frequency","start","a_0","data#ClassID","data#OID") FROM kamC_Periodic WHERE "##OID"=0
-- is: 157.08 0.1 0.2 2293761:60
-- 0, 0; 0.001, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(61,x'00000000000000000000000000000000FCA9F1D24D62503F000000000000F03F',2,82,x'0B01000000000000CD00000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","time","value","##BaseClassOID","##Uid")
  VALUES(3,'SMOOTH STEP','TOTAL','RELATIVE',-1,x'0C01000000000000CD00000000005EED');
INSERT INTO "kamC_SmoothStep"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,61,3,x'0D01000000000000CD00000000005EED');
-- after: SELECT printf('%s:%s',"data#ClassID","data#OID") FROM kamC_SmoothStep WHERE "##OID"=0
-- is: 2293761:61
INSERT INTO "kamC_Amplitude"("##OID","definition","time","value","##BaseClassOID","##Uid")
  VALUES(4,'DECAY','STEP','RELATIVE',-1,x'0E01000000000000CD00000000005EED');
INSERT INTO "kamC_Decay"("##OID","initial","maximum","start","decayTime","##BaseClassOID","##Uid")
  VALUES(0,0.0,2.0,0.0,0.4,4,x'0F01000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s',"initial","maximum","start","decayTime") FROM kamC_Decay WHERE "##OID"=0
-- is: 0.0 2.0 0.0 0.4
-- after: SELECT timeSpan FROM kamC_Amplitude ORDER BY "##OID"
-- is: TOTAL STEP STEP TOTAL STEP
-- after: SELECT count(*) FROM pragma_table_info('kamC_Amplitude') WHERE name IN ('definition','time','value')
-- is: 0
-- after: SELECT count(*) FROM pragma_table_info('kamC_Tabular') WHERE name IN ('table#OID')
-- is: 0
-- after: SELECT count(*) FROM pragma_table_info('kamC_EquallySpaced') WHERE name IN ('table#OID')
-- is: 0
-- after: SELECT count(*) FROM pragma_table_info('kamC_Periodic') WHERE name IN ('table#OID')
-- is: 0
-- after: SELECT count(*) FROM pragma_table_info('kamC_SmoothStep') WHERE name IN ('table#OID')
-- is: 0
-- after: SELECT hex("Target#Handle") FROM cls_List WHERE "##OID"=58
-- is: 000000000000000000000000000000000000000000004E40000000000000F03F0000000000C08240000000000000F03F

-- Sections. A box girder with a thickness for each wall, a uniform one, a pipe, a rolled I whose
-- integration was dropped, a section by its properties, and a gutter folded from two strips: three
-- points, two thicknesses.
-- 8, 10, 12, 10
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(62,x'0000000000002040000000000000244000000000000028400000000000002440',1,52,x'1001000000000000CD00000000005EED');
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'1101000000000000CD00000000005EED');
INSERT INTO "kbpC_BoxProfile"("##OID","height","width","tempThick#ClassID","tempThick#OID","uniform","##BaseClassOID","##Uid")
  VALUES(0,600.0,300.0,2293761,62,0,0,x'1201000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s',"a","b","uniformThickness","t1","t2","t3","t4") FROM kbpC_BoxProfile WHERE "##OID"=0
-- is: 300.0 600.0 0 8.0 10.0 12.0 10.0
-- 6.3, 6.3, 6.3, 6.3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(63,x'3333333333331940333333333333194033333333333319403333333333331940',1,52,x'1301000000000000CD00000000005EED');
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'1401000000000000CD00000000005EED');
INSERT INTO "kbpC_BoxProfile"("##OID","height","width","tempThick#ClassID","tempThick#OID","uniform","##BaseClassOID","##Uid")
  VALUES(1,120.0,80.0,2293761,63,1,1,x'1501000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s',"a","b","uniformThickness","t1","t2","t3","t4") FROM kbpC_BoxProfile WHERE "##OID"=1
-- is: 80.0 120.0 1 6.3 6.3 6.3 6.3
-- after: SELECT count(*) FROM pragma_table_info('kbpC_BoxProfile') WHERE name IN ('height','width','uniform','tempThick#OID')
-- is: 0
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'1601000000000000CD00000000005EED');
INSERT INTO "kbpC_PipeProfile"("##OID","radius","thickness","##BaseClassOID","##Uid")
  VALUES(0,84.15,8.0,2,x'1701000000000000CD00000000005EED');
-- after: SELECT printf('%s %s',"r","t") FROM kbpC_PipeProfile WHERE "##OID"=0
-- is: 84.15 8.0
-- after: SELECT count(*) FROM pragma_table_info('kbpC_PipeProfile') WHERE name IN ('radius','thickness')
-- is: 0
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'1801000000000000CD00000000005EED');
INSERT INTO "kbpC_IbeamProfile"("##OID","l","h","b1","b2","t1","t2","t3","integration","##BaseClassOID","##Uid")
  VALUES(0,150.0,300.0,150.0,150.0,10.7,10.7,7.1,1,3,x'1901000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s',"l","h","b1","b2","t1","t2","t3") FROM kbpC_IbeamProfile WHERE "##OID"=0
-- is: 150.0 300.0 150.0 150.0 10.7 10.7 7.1
-- after: SELECT count(*) FROM pragma_table_info('kbpC_IbeamProfile') WHERE name IN ('integration')
-- is: 0
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'1A01000000000000CD00000000005EED');
INSERT INTO "kbpC_GeneralizedProfile"("##OID","linearBehavior","area","i11","i12","i22","jTorsion","gammaO","gammaW","##BaseClassOID","##Uid")
  VALUES(0,1,310000.0,84000000000.0,0.0,1200000000000.0,26000000000.0,0.5,0.25,4,x'1B01000000000000CD00000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s',"area","i11","i12","i22","j","gammaO","gammaW") FROM kbpC_GeneralizedProfile WHERE "##OID"=0
-- is: 310000.0 84000000000.0 0.0 1200000000000.0 26000000000.0 0.5 0.25
-- after: SELECT count(*) FROM pragma_table_info('kbpC_GeneralizedProfile') WHERE name IN ('linearBehavior','jTorsion')
-- is: 0
-- 0, 100, 200
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(64,x'000000000000000000000000000059400000000000006940',1,52,x'1C01000000000000CD00000000005EED');
-- 0, 40, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(65,x'000000000000000000000000000044400000000000000000',1,52,x'1D01000000000000CD00000000005EED');
-- 1.5, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(66,x'000000000000F83F0000000000000040',1,52,x'1E01000000000000CD00000000005EED');
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'1F01000000000000CD00000000005EED');
INSERT INTO "kbpC_ArbitraryProfile"("##OID","x#ClassID","x#OID","y#ClassID","y#OID","t#ClassID","t#OID","numSegments","##BaseClassOID","##Uid")
  VALUES(0,2293761,64,2293761,65,2293761,66,2,5,x'2001000000000000CD00000000005EED');
-- after: SELECT p."table#ClassID"||' '||l."Target#Columns"||' '||hex(l."Target#Handle") FROM kbpC_ArbitraryProfile p JOIN cls_List l ON l."##OID"=p."table#OID" WHERE p."##OID"=0
-- is: 2293761 3 00000000000000000000000000000000000000000000000000000000000059400000000000004440000000000000F83F000000000000694000000000000000000000000000000040
-- A gutter that was never drawn beyond its first point has no thickness, and 0 stands for it.
-- 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(67,x'0000000000001440',1,52,x'2101000000000000CD00000000005EED');
-- -5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(68,x'00000000000014C0',1,52,x'2201000000000000CD00000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(69,x'',1,52,x'2301000000000000CD00000000005EED');
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(6,-1,x'2401000000000000CD00000000005EED');
INSERT INTO "kbpC_ArbitraryProfile"("##OID","x#ClassID","x#OID","y#ClassID","y#OID","t#ClassID","t#OID","numSegments","##BaseClassOID","##Uid")
  VALUES(1,2293761,67,2293761,68,2293761,69,0,6,x'2501000000000000CD00000000005EED');
-- after: SELECT p."table#ClassID"||' '||l."Target#Columns"||' '||hex(l."Target#Handle") FROM kbpC_ArbitraryProfile p JOIN cls_List l ON l."##OID"=p."table#OID" WHERE p."##OID"=1
-- is: 2293761 3 000000000000144000000000000014C00000000000000000
-- after: SELECT count(*) FROM pragma_table_info('kbpC_ArbitraryProfile') WHERE name IN ('numSegments','x#OID','y#OID','t#OID')
-- is: 0

-- What the tables are of in the end.
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Material','kmaC_Plastic','kmaC_AnnealTemperature','kmaC_BiaxialTestData','kmaC_PlanarTestData','kmaC_UniaxialTestData','kmaC_VolumetricTestData','kmaC_BrittleCracking','kmaC_CapPlasticity','kmaC_CapCreepCohesion','kmaC_CapCreepConsolidation','kmaC_Damping','kmaC_Eos','kmaC_Expansion','kmaC_Hyperelastic','kmaC_Hyperfoam','kmaC_MohrCoulomb','kmaC_Permeability','kmaC_Piezoelectric','kmaC_Regularization','kmaC_ThicknessBehavior','kmaC_TransShearElastic','kmaC_UserMaterial','kmaC_Viscoelastic','kmaC_Viscous') ORDER BY ClassName
-- is: kmaC_AnnealTemperature:813 kmaC_BiaxialTestData:324 kmaC_BrittleCracking:850 kmaC_CapCreepCohesion:452 kmaC_CapCreepConsolidation:452 kmaC_CapPlasticity:452 kmaC_Damping:1050 kmaC_Eos:850 kmaC_Expansion:435 kmaC_Hyperelastic:864 kmaC_Hyperfoam:864 kmaC_Material:1106 kmaC_MohrCoulomb:404 kmaC_Permeability:404 kmaC_Piezoelectric:516 kmaC_PlanarTestData:324 kmaC_Plastic:1107 kmaC_Regularization:404 kmaC_ThicknessBehavior:404 kmaC_TransShearElastic:404 kmaC_UniaxialTestData:324 kmaC_UserMaterial:451 kmaC_Viscoelastic:876 kmaC_Viscous:438 kmaC_VolumetricTestData:325
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kamC_Amplitude','kamC_EquallySpaced','kamC_Periodic','kamC_SmoothStep','kamC_Tabular','kbpC_ArbitraryProfile','kbpC_BoxProfile','kbpC_GeneralizedProfile','kbpC_IbeamProfile','kbpC_PipeProfile') ORDER BY ClassName
-- is: kamC_Amplitude:430 kamC_EquallySpaced:424 kamC_Periodic:424 kamC_SmoothStep:424 kamC_Tabular:424 kbpC_ArbitraryProfile:505 kbpC_BoxProfile:430 kbpC_GeneralizedProfile:430 kbpC_IbeamProfile:430 kbpC_PipeProfile:406

-- The materials themselves refer to the options that they had, and have got two empty texts.
-- after: SELECT printf('%s:%s %s:%s %s:%s %s:%s %s:%s %s %s %s',"expansion#ClassID","expansion#OID","damping#ClassID","damping#OID","regularization#ClassID","regularization#OID","viscous#ClassID","viscous#OID","plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224481:0 37224469:0 37224546:0 37224560:0 37224508:0 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"plastic#ClassID","plastic#OID","expansion#ClassID","expansion#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=1
-- is: 37224508:1 37224481:1 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=2
-- is: 37224508:2 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=3
-- is: 37224508:6 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=4
-- is: 37224508:3 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=5
-- is: 37224508:4 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=6
-- is: 37224508:5 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"capPlasticity#ClassID","capPlasticity#OID","permeability#ClassID","permeability#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=7
-- is: 37224460:0 37224505:1 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"capPlasticity#ClassID","capPlasticity#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=8
-- is: 37224460:1 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"capPlasticity#ClassID","capPlasticity#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=9
-- is: 37224460:2 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"capPlasticity#ClassID","capPlasticity#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=10
-- is: 37224460:3 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"capPlasticity#ClassID","capPlasticity#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=11
-- is: 37224460:4 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"mohrCoulomb#ClassID","mohrCoulomb#OID","permeability#ClassID","permeability#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=12
-- is: 37224565:0 37224505:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"hyperelastic#ClassID","hyperelastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=13
-- is: 37224494:0 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"hyperelastic#ClassID","hyperelastic#OID","viscoelastic#ClassID","viscoelastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=14
-- is: 37224494:1 37224533:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"hyperfoam#ClassID","hyperfoam#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=15
-- is: 37224495:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"eos#ClassID","eos#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=17
-- is: 37224480:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"eos#ClassID","eos#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=18
-- is: 37224480:1 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"piezoelectric#ClassID","piezoelectric#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=19
-- is: 37224506:0 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"thicknessBehavior#ClassID","thicknessBehavior#OID","transShearElastic#ClassID","transShearElastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=20
-- is: 37224541:0 37224540:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"userMaterial#ClassID","userMaterial#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=21
-- is: 37224531:0 1 1 1

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'alloy 6061 stabilized',37224449,2);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'brass cast',37224449,5);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(2,0,'brass drawn',37224449,6);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(3,0,'ceramic PZT-5H',37224449,19);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(4,0,'clay London',37224449,7);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(5,0,'clay Oslo',37224449,9);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(6,0,'clay kaolin',37224449,8);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(7,0,'clay of the dam',37224449,10);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(8,0,'concrete C30',37224449,16);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(9,0,'copper stabilized',37224449,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(10,0,'empty card',37224449,22);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(11,0,'explosive TNT',37224449,17);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(12,0,'foam polyurethane',37224449,15);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(13,0,'gasket graphite',37224449,20);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(14,0,'mild steel',37224449,3);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(15,0,'nickel alloy',37224449,4);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(16,0,'rubber natural',37224449,13);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(17,0,'rubber neoprene',37224449,14);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(18,0,'sand of the quay',37224449,12);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(19,0,'silt',37224449,11);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(20,0,'steel S355 cyclic',37224449,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(21,0,'user damage law',37224449,21);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(22,0,'water',37224449,18);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,23,x'2601000000000000CD00000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'2701000000000000CD00000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: alloy 6061 stabilized, brass cast, brass drawn, ceramic PZT-5H, clay London, clay Oslo, clay kaolin, clay of the dam, concrete C30, copper stabilized, empty card, explosive TNT, foam polyurethane, gasket graphite, mild steel, nickel alloy, rubber natural, rubber neoprene, sand of the quay, silt, steel S355 cyclic, user damage law, water

-- The amplitudes by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(23,1,'blast',38010891,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(24,1,'engine',38010886,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(25,1,'quake',38010884,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(26,1,'ramp',38010888,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(27,1,'ringing',38010883,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(1,2,23,5,x'2801000000000000CD00000000005EED');
INSERT INTO "kamC_ACWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,1,-1,x'2901000000000000CD00000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kamC_ACWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: blast, engine, quake, ramp, ringing

-- The profiles by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(28,2,'CHS 168.3x8',40108037,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(29,2,'IPE 300',40108038,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(30,2,'RHS 120x80',40108039,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(31,2,'bridge deck',40108034,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(32,2,'girder',40108039,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(33,2,'gutter',40108041,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(34,2,'gutter draft',40108041,1);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(2,2,28,7,x'2A01000000000000CD00000000005EED');
INSERT INTO "kbpC_BPCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,2,-1,x'2B01000000000000CD00000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kbpC_BPCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: CHS 168.3x8, IPE 300, RHS 120x80, bridge deck, girder, gutter, gutter draft
