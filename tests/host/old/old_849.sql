-- A database of schema 849, written by hand. Make it with: sqlite3 old_849.nga < old_849.sql
-- An oil field's archive: rock with leakoff and gap flow, which came in when five older options of
-- a material went. Its well heads have connectors with derived components.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=849;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',849,0);
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
CREATE TABLE "kmaC_FluidLeakoff"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380083,'kmaC_FluidLeakoff','kmaC_FluidLeakoff',849,0x2380002);
CREATE TABLE "kmaC_GapFlow"(
  "##OID" INTEGER PRIMARY KEY,
  "kmax",
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380084,'kmaC_GapFlow','kmaC_GapFlow',849,0x2380002);
CREATE TABLE "kmaC_Elastic"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "noCompression" INTEGER,
  "noTension" INTEGER,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "moduli" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "failStress#ClassID" INTEGER,
  "failStress#OID" INTEGER,
  "failStrain#ClassID" INTEGER,
  "failStrain#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238001E,'kmaC_Elastic','kmaC_Elastic',203,0x2380002);
CREATE TABLE "kmaC_Damping"(
  "##OID" INTEGER PRIMARY KEY,
  "alpha",
  "beta",
  "composite",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380015,'kmaC_Damping','kmaC_Damping',203,0x2380002);
CREATE TABLE "kmaC_Material"(
  "##OID" INTEGER PRIMARY KEY,
  "acousticMedium#ClassID" INTEGER,
  "acousticMedium#OID" INTEGER,
  "capPlasticity#ClassID" INTEGER,
  "capPlasticity#OID" INTEGER,
  "castIronPlasticity#ClassID" INTEGER,
  "castIronPlasticity#OID" INTEGER,
  "clayPlasticity#ClassID" INTEGER,
  "clayPlasticity#OID" INTEGER,
  "concrete#ClassID" INTEGER,
  "concrete#OID" INTEGER,
  "concreteDamagedPlasticity#ClassID" INTEGER,
  "concreteDamagedPlasticity#OID" INTEGER,
  "conductivity#ClassID" INTEGER,
  "conductivity#OID" INTEGER,
  "creep#ClassID" INTEGER,
  "creep#OID" INTEGER,
  "foam#ClassID" INTEGER,
  "foam#OID" INTEGER,
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
  "fluidLeakoff#ClassID" INTEGER,
  "fluidLeakoff#OID" INTEGER,
  "gapFlow#ClassID" INTEGER,
  "gapFlow#OID" INTEGER,
  "thicknessBehavior#ClassID" INTEGER,
  "thicknessBehavior#OID" INTEGER,
  "transShearElastic#ClassID" INTEGER,
  "transShearElastic#OID" INTEGER,
  "membraneElastic#ClassID" INTEGER,
  "membraneElastic#OID" INTEGER,
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
  "jouleHeatFraction#ClassID" INTEGER,
  "jouleHeatFraction#OID" INTEGER,
  "latentHeat#ClassID" INTEGER,
  "latentHeat#OID" INTEGER,
  "mohrCoulomb#ClassID" INTEGER,
  "mohrCoulomb#OID" INTEGER,
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
  "regularization#ClassID" INTEGER,
  "regularization#OID" INTEGER,
  "solubility#ClassID" INTEGER,
  "solubility#OID" INTEGER,
  "sorption#ClassID" INTEGER,
  "sorption#OID" INTEGER,
  "specificHeat#ClassID" INTEGER,
  "specificHeat#OID" INTEGER,
  "swelling#ClassID" INTEGER,
  "swelling#OID" INTEGER,
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
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380001,'kmaC_Material','kmaC_Material',849,0x1);
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
CREATE TABLE "kmaC_Hyperelastic"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "moduliTimeScale" TEXT,
  "temperatureDependency" INTEGER,
  "n" INTEGER,
  "beta",
  "testData" INTEGER,
  "compressible" INTEGER,
  "properties" INTEGER,
  "deviatoricResponse" TEXT,
  "volumetricResponse" TEXT,
  "poissonRatio",
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
INSERT INTO nga_Catalogue VALUES(0x238002E,'kmaC_Hyperelastic','kmaC_Hyperelastic',328,0x2380002);
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
CREATE TABLE "mdl_PropertyTable"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0xA000E,'mdl_PropertyTable','mdl_PropertyTable',203,0x1);
CREATE TABLE "kbeC_ConnectorBehaviorOption"(
  "##OID" INTEGER PRIMARY KEY,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80008,'kbeC_ConnectorBehaviorOption','kbeC_ConnectorBehaviorOption',811,0x1);
CREATE TABLE "kbeC_CDCTerm"(
  "##OID" INTEGER PRIMARY KEY,
  "termOperator" TEXT,
  "termSign" TEXT,
  "localDependency" INTEGER,
  "indepCompType" TEXT,
  "tempDependency" INTEGER,
  "fieldDependencies" INTEGER,
  "intrinsicComponents#ClassID" INTEGER,
  "intrinsicComponents#OID" INTEGER,
  "indepComponents#ClassID" INTEGER,
  "indepComponents#OID" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8002D,'kbeC_CDCTerm','kbeC_CDCTerm',836,0x1);
CREATE TABLE "kbeC_DerivedComponent"(
  "##OID" INTEGER PRIMARY KEY,
  "cdcTerms#ClassID" INTEGER,
  "cdcTerms#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8002E,'kbeC_DerivedComponent','kbeC_DerivedComponent',836,0x1);
CREATE TABLE "kbeC_ConnectorPotential"(
  "##OID" INTEGER PRIMARY KEY,
  "componentStyle" TEXT,
  "componentNumber" INTEGER,
  "sign" TEXT,
  "scaleFactor",
  "positiveExponent",
  "shiftFactor",
  "hFunction" TEXT,
  "derivedComponent#ClassID" INTEGER,
  "derivedComponent#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001F,'kbeC_ConnectorPotential','kbeC_ConnectorPotential',836,0x1);
CREATE TABLE "kbeC_ConnectorFriction"(
  "##OID" INTEGER PRIMARY KEY,
  "frictionModel" TEXT,
  "slipStyle" TEXT,
  "tangentDirection" INTEGER,
  "stickStiffness",
  "componentType" TEXT,
  "slipDependency" INTEGER,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "useContactForceComponent" INTEGER,
  "contactForceStyle" TEXT,
  "contactForceComponent" INTEGER,
  "forcePotentialOperator" TEXT,
  "forcePotentialExponent",
  "connectorPotentials#ClassID" INTEGER,
  "connectorPotentials#OID" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "tangentialBehavior#ClassID" INTEGER,
  "tangentialBehavior#OID" INTEGER,
  "independentComponents#ClassID" INTEGER,
  "independentComponents#OID" INTEGER,
  "derivedComponent#ClassID" INTEGER,
  "derivedComponent#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001C,'kbeC_ConnectorFriction','kbeC_ConnectorFriction',836,0x2A80008);
CREATE TABLE "kbeC_ConnectorDamage"(
  "##OID" INTEGER PRIMARY KEY,
  "coupling" TEXT,
  "criterion" TEXT,
  "initiationTemperature" INTEGER,
  "initiationPotentialOperator" TEXT,
  "initiationPotentialExponent",
  "initiationDependencies" INTEGER,
  "evolution" INTEGER,
  "evolutionType" TEXT,
  "softening" TEXT,
  "useAffected" INTEGER,
  "degradation" TEXT,
  "evolutionTemperature" INTEGER,
  "evolutionDependencies" INTEGER,
  "evolutionPotentialOperator" TEXT,
  "evolutionPotentialExponent",
  "initiationPotentials#ClassID" INTEGER,
  "initiationPotentials#OID" INTEGER,
  "evolutionPotentials#ClassID" INTEGER,
  "evolutionPotentials#OID" INTEGER,
  "initiationTable#ClassID" INTEGER,
  "initiationTable#OID" INTEGER,
  "evolutionTable#ClassID" INTEGER,
  "evolutionTable#OID" INTEGER,
  "affectedComponents#ClassID" INTEGER,
  "affectedComponents#OID" INTEGER,
  "components#ClassID" INTEGER,
  "components#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001E,'kbeC_ConnectorDamage','kbeC_ConnectorDamage',817,0x2A80008);
CREATE TABLE "kmaC_MCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007D,'kmaC_MCWrapper','kmaC_MCWrapper',401,0x1);

-- A reservoir rock: fluid leaks off through its filter cake, and flows in its cracks like a power
-- law.
-- 1e-10, 2e-10, 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'BBBDD7D9DF7CDB3DBBBDD7D9DF7CEB3D0000000000001440',3,82,x'01000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,0,-1,x'02000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'03000000000000005103000000005EED');
INSERT INTO "kmaC_FluidLeakoff"("##OID","temperatureDependency","dependencies","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'COEFFICIENTS',37224536,0,0,x'04000000000000005103000000005EED');
-- 0.02, 0.7, 60
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'7B14AE47E17A943F666666666666E63F0000000000004E40',3,82,x'05000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,1,0,-1,x'06000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'07000000000000005103000000005EED');
INSERT INTO "kmaC_GapFlow"("##OID","kmax","temperatureDependency","dependencies","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1.7976931348623157e+308,1,0,'POWER_LAW',37224536,1,1,x'08000000000000005103000000005EED');
-- 18000, 0.22
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'000000000094D140295C8FC2F528CC3F',2,82,x'09000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,2,0,-1,x'0A000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'0B000000000000005103000000005EED');
INSERT INTO "kmaC_Elastic"("##OID","type","noCompression","noTension","temperatureDependency","dependencies","moduli","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'ISOTROPIC',0,0,0,0,'LONG_TERM',37224536,2,2,x'0C000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'0D000000000000005103000000005EED');
INSERT INTO "kmaC_Damping"("##OID","alpha","beta","composite","##BaseClassOID","##Uid")
  VALUES(0,0.5,0.0,0.05,3,x'0E000000000000005103000000005EED');
INSERT INTO "kmaC_Material"("##OID","damping#ClassID","damping#OID","elastic#ClassID","elastic#OID","fluidLeakoff#ClassID","fluidLeakoff#OID","gapFlow#ClassID","gapFlow#OID","##BaseClassOID","##Uid")
  VALUES(0,37224469,0,37224478,0,37224579,0,37224580,0,-1,x'0F000000000000005103000000005EED');
-- after: SELECT printf('%s:%s %s:%s %s:%s %s:%s %s %s %s %s',"fluidLeakoff#ClassID","fluidLeakoff#OID","gapFlow#ClassID","gapFlow#OID","elastic#ClassID","elastic#OID","damping#ClassID","damping#OID","brittleCracking#OID" IS NULL,"mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224579:0 37224580:0 37224478:0 37224469:0 1 1 1 1
-- after: SELECT printf('%s %s %s %s:%s',"temperatureDependency","dependencies","type","table#ClassID","table#OID") FROM kmaC_FluidLeakoff WHERE "##OID"=0
-- is: 0 0 COEFFICIENTS 37224536:0
-- after: SELECT printf('%s %s %s %s %s:%s',"kmax"=1.7976931348623157e308,"temperatureDependency","dependencies","type","table#ClassID","table#OID") FROM kmaC_GapFlow WHERE "##OID"=0
-- is: 1 1 0 POWER_LAW 37224536:1
-- after: SELECT printf('%s %s %s %s',"alpha","beta","composite","structural") FROM kmaC_Damping WHERE "##OID"=0
-- is: 0.5 0.0 0.05 0.0

-- A shaped charge and a packer of rubber, with what neither had then: compaction and the effect of
-- Mullins.
-- 8500, 180000, 4000, 0.25, 4.6, 1.3, 1e+07
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'00000000009AC0400000000000F90541000000000040AF40000000000000D03F6666666666661240CDCCCCCCCCCCF43F00000000D0126341',7,82,x'10000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,3,0,-1,x'11000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'12000000000000005103000000005EED');
INSERT INTO "kmaC_Eos"("##OID","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'JWL',37224536,3,4,x'13000000000000005103000000005EED');
-- after: SELECT printf('%s %s:%s %s %s %s',"type","table#ClassID","table#OID","detonationPoint#OID" IS NULL,"eosShear#OID" IS NULL,"eosCompaction#OID" IS NULL) FROM kmaC_Eos WHERE "##OID"=0
-- is: JWL 37224536:3 1 1 1
-- 0.3, 0.01, 0.001
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'333333333333D33F7B14AE47E17A843FFCA9F1D24D62503F',3,82,x'14000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(4,2293761,4,0,-1,x'15000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'16000000000000005103000000005EED');
INSERT INTO "kmaC_Hyperelastic"("##OID","type","moduliTimeScale","temperatureDependency","n","beta","testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'YEOH','LONG_TERM',0,3,1.7976931348623157e+308,0,0,0,'UNIAXIAL','LATERAL_NOMINAL_STRAIN',0.0,37224536,4,5,x'17000000000000005103000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s',"type","moduliTimeScale","n","volumetricResponse","poissonRatio","table#ClassID","table#OID","hysteresis#OID" IS NULL) FROM kmaC_Hyperelastic WHERE "##OID"=0
-- is: YEOH LONG_TERM 3 LATERAL_NOMINAL_STRAIN 0.0 37224536:4 1
-- 0.8, 12, 0.1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'9A9999999999E93F00000000000028409A9999999999B93F',3,82,x'18000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(5,2293761,5,0,-1,x'19000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(6,-1,x'1A000000000000005103000000005EED');
INSERT INTO "kmaC_Hyperfoam"("##OID","testData","poisson","n","temperatureDependency","moduli","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0.1,1,0,'INSTANTANEOUS',37224536,5,6,x'1B000000000000005103000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s',"testData","poisson","n","temperatureDependency","moduli","table#ClassID","table#OID","uniaxialTestData#OID" IS NULL) FROM kmaC_Hyperfoam WHERE "##OID"=0
-- is: 0 0.1 1 0 INSTANTANEOUS 37224536:5 1
-- 0.3, 0.3, 12
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'333333333333D33F333333333333D33F0000000000002840',3,82,x'1C000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(6,2293761,6,1,-1,x'1D000000000000005103000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(7,-1,x'1E000000000000005103000000005EED');
INSERT INTO "kmaC_Viscoelastic"("##OID","domain","frequency","time","errtol","nmax","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'TIME','FORMULA','PRONY',0.01,13,37224536,6,7,x'1F000000000000005103000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s:%s %s',"domain","type","preload","time","errtol","nmax","table#ClassID","table#OID","trs#OID" IS NULL) FROM kmaC_Viscoelastic WHERE "##OID"=0
-- is: TIME ISOTROPIC NONE PRONY 0.01 13 37224536:6 1
-- after: SELECT t.allowEmptyFirstRow||' '||length(l."Target#Handle") FROM kmaC_Viscoelastic v JOIN kmaC_MaterialTable t ON t."##OID"=v."volumetricTable#OID" JOIN cls_List l ON l."##OID"=t."table#OID"
-- is: 1 0
INSERT INTO "kmaC_Material"("##OID","hyperelastic#ClassID","hyperelastic#OID","viscoelastic#ClassID","viscoelastic#OID","##BaseClassOID","##Uid")
  VALUES(1,37224494,0,37224533,0,-1,x'20000000000000005103000000005EED');
INSERT INTO "kmaC_Material"("##OID","hyperfoam#ClassID","hyperfoam#OID","##BaseClassOID","##Uid")
  VALUES(2,37224495,0,-1,x'21000000000000005103000000005EED');
INSERT INTO "kmaC_Material"("##OID","eos#ClassID","eos#OID","##BaseClassOID","##Uid")
  VALUES(3,37224480,0,-1,x'22000000000000005103000000005EED');
-- after: SELECT printf('%s:%s %s:%s %s',"hyperelastic#ClassID","hyperelastic#OID","viscoelastic#ClassID","viscoelastic#OID","mullinsEffect#OID" IS NULL) FROM kmaC_Material WHERE "##OID"=1
-- is: 37224494:0 37224533:0 1

-- The shear of a flex joint is derived from two components in two terms, and both the friction and
-- its one potential refer to it. They are objects by now and stay so; each term gets settings of
-- its own.
-- 2, 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'0200000003000000',1,54,x'23000000000000005103000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'',1,54,x'24000000000000005103000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(9,x'000000000000F03F',1,82,x'25000000000000005103000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,9,-1,x'26000000000000005103000000005EED');
INSERT INTO "kbeC_CDCTerm"("##OID","termOperator","termSign","localDependency","indepCompType","tempDependency","fieldDependencies","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'RSS','POSITIVE',0,'POSITION',0,0,2293761,7,2293761,8,655374,0,-1,x'27000000000000005103000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(10,x'01000000',1,54,x'28000000000000005103000000005EED');
-- 4, 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'0400000005000000',1,54,x'29000000000000005103000000005EED');
-- 0.5, 0, 0; 0.6, 0.1, 0.1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'000000000000E03F00000000000000000000000000000000333333333333E33F9A9999999999B93F9A9999999999B93F',3,82,x'2A000000000000005103000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,2293761,12,-1,x'2B000000000000005103000000005EED');
INSERT INTO "kbeC_CDCTerm"("##OID","termOperator","termSign","localDependency","indepCompType","tempDependency","fieldDependencies","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,'SUM','NEGATIVE',1,'MOTION',0,0,2293761,10,2293761,11,655374,1,-1,x'2C000000000000005103000000005EED');
INSERT INTO "cls_ListEntry"("##OID","owner","value#ClassID","value#OID")
  VALUES(0,13,44564525,0);
INSERT INTO "cls_ListEntry"("##OID","owner","value#ClassID","value#OID")
  VALUES(1,13,44564525,1);
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(13,1,0,2,x'2D000000000000005103000000005EED');
INSERT INTO "kbeC_DerivedComponent"("##OID","cdcTerms#ClassID","cdcTerms#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,13,-1,x'2E000000000000005103000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s:%s %s:%s %s:%s',"termOperator","termSign","localDependency","indepCompType","tempDependency","fieldDependencies","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID") FROM kbeC_CDCTerm WHERE "##OID"=0
-- is: RSS POSITIVE 0 POSITION 0 0 2293761:7 2293761:8 655374:0
-- after: SELECT printf('%s %s %s %s %s %s %s:%s %s:%s %s:%s',"termOperator","termSign","localDependency","indepCompType","tempDependency","fieldDependencies","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID") FROM kbeC_CDCTerm WHERE "##OID"=1
-- is: SUM NEGATIVE 1 MOTION 0 0 2293761:10 2293761:11 655374:1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_CDCTerm o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_CDCTerm o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=1 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT count(DISTINCT "options#OID") FROM kbeC_CDCTerm
-- is: 2
-- after: SELECT printf('%s:%s',"cdcTerms#ClassID","cdcTerms#OID") FROM kbeC_DerivedComponent WHERE "##OID"=0
-- is: 2293761:13
-- after: SELECT "value#ClassID"||':'||"value#OID" FROM cls_ListEntry WHERE owner=13 ORDER BY "##OID"
-- is: 44564525:0 44564525:1
INSERT INTO "kbeC_ConnectorPotential"("##OID","componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#ClassID","derivedComponent#OID","##BaseClassOID","##Uid")
  VALUES(0,'DERIVED_COMPONENT',0,'POSITIVE',1.0,2.0,0.0,'ABS',44564526,0,-1,x'2F000000000000005103000000005EED');
INSERT INTO "cls_ListEntry"("##OID","owner","value#ClassID","value#OID")
  VALUES(2,14,44564511,0);
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(14,1,2,1,x'30000000000000005103000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(15,x'01000000',1,54,x'31000000000000005103000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'32000000000000005103000000005EED');
-- 0.1, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(16,x'9A9999999999B93F0000000000003440',2,82,x'33000000000000005103000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,2293761,16,-1,x'34000000000000005103000000005EED');
INSERT INTO "kbeC_ConnectorFriction"("##OID","frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","connectorPotentials#ClassID","connectorPotentials#OID","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","derivedComponent#ClassID","derivedComponent#OID","##BaseClassOID","##Uid")
  VALUES(0,'USER_CUSTOMIZED','SPECIFY',1,10000000.0,'MOTION',0,1,0,1,'DERIVED_COMPONENT',0,'MAXIMUM',2.0,2293761,14,655374,2,2293761,15,44564526,0,0,x'35000000000000005103000000005EED');
-- after: SELECT printf('%s %s %s:%s',"componentStyle","componentNumber","derivedComponent#ClassID","derivedComponent#OID") FROM kbeC_ConnectorPotential WHERE "##OID"=0
-- is: DERIVED_COMPONENT 0 44564526:0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s %s:%s %s:%s',"frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","connectorPotentials#ClassID","connectorPotentials#OID","table#ClassID","table#OID","tangentialBehavior#OID" IS NULL,"independentComponents#ClassID","independentComponents#OID","derivedComponent#ClassID","derivedComponent#OID") FROM kbeC_ConnectorFriction WHERE "##OID"=0
-- is: USER_CUSTOMIZED SPECIFY 1 10000000.0 MOTION 0 1 0 1 DERIVED_COMPONENT 0 MAXIMUM 2.0 2293761:14 655374:2 1 2293761:15 44564526:0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorFriction o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorFriction o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is: 44564511:0
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorFriction o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=0 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 1

-- The joint's damage has the short literals already, and they are not touched.
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(17,1,3,0,x'36000000000000005103000000005EED');
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(18,1,3,0,x'37000000000000005103000000005EED');
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(19,x'02000000',1,54,x'38000000000000005103000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(20,x'01000000',1,54,x'39000000000000005103000000005EED');
-- -2, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(21,x'00000000000000C00000000000000040',2,82,x'3A000000000000005103000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,2293761,21,-1,x'3B000000000000005103000000005EED');
-- 0; 0.8
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(22,x'00000000000000009A9999999999E93F',1,82,x'3C000000000000005103000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(4,2293761,22,-1,x'3D000000000000005103000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'3E000000000000005103000000005EED');
INSERT INTO "kbeC_ConnectorDamage"("##OID","coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationPotentials#ClassID","initiationPotentials#OID","evolutionPotentials#ClassID","evolutionPotentials#OID","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,'UNCOUPLED','PLASTIC_MOTION',0,'MAXIMUM',2.0,0,1,'ENERGY_TYPE','TABULAR',1,'MULTIPLICATIVE',0,0,'SUM',2.0,2293761,17,2293761,18,655374,3,655374,4,2293761,19,2293761,20,1,x'3F000000000000005103000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s',"coupling","criterion","initiationPotentialOperator","evolutionType","softening","useAffected","degradation","evolutionPotentialOperator","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: UNCOUPLED PLASTIC_MOTION MAXIMUM ENERGY_TYPE TABULAR 1 MULTIPLICATIVE SUM 655374:3 655374:4 2293761:19 2293761:20
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."initiationOptions#OID" WHERE o."##OID"=0 AND o."initiationOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."evolutionOptions#OID" WHERE o."##OID"=0 AND o."evolutionOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "initiationOptions#OID"<>"evolutionOptions#OID" FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: 1

-- Two terms, the friction, and the damage twice.
-- after: SELECT count(*) FROM kbeC_ConnectorOptions
-- is: 5
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Material','kmaC_FluidLeakoff','kmaC_GapFlow','kbeC_CDCTerm','kbeC_DerivedComponent','kbeC_ConnectorFriction','kbeC_ConnectorDamage','kbeC_ConnectorPotential','kbeC_ConnectorOptions','kmaC_Hyperelastic','kmaC_Hyperfoam','kmaC_Viscoelastic','kmaC_Eos') ORDER BY ClassName
-- is: kbeC_CDCTerm:1026 kbeC_ConnectorDamage:1022 kbeC_ConnectorFriction:1022 kbeC_ConnectorOptions:1026 kbeC_ConnectorPotential:836 kbeC_DerivedComponent:836 kmaC_Eos:850 kmaC_FluidLeakoff:849 kmaC_GapFlow:849 kmaC_Hyperelastic:864 kmaC_Hyperfoam:864 kmaC_Material:1106 kmaC_Viscoelastic:876

-- The materials themselves refer to the options that they had, and have got two empty texts.
-- after: SELECT printf('%s:%s %s %s %s',"hyperfoam#ClassID","hyperfoam#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=2
-- is: 37224495:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"eos#ClassID","eos#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=3
-- is: 37224480:0 1 1 1

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'packer',37224449,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'packer foam',37224449,2);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(2,0,'reservoir rock',37224449,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(3,0,'shaped charge',37224449,3);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,4,x'40000000000000005103000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'41000000000000005103000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: packer, packer foam, reservoir rock, shaped charge
