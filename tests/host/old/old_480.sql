-- A database of schema 480, written by hand. Make it with: sqlite3 old_480.nga < old_480.sql
-- A suspension from the time when connector behaviours were a tree: what has a table stands under
-- kbeC_Tabular, what has limits under kbeC_MotionDiscontinuity, and all of it under the option
-- that names the components.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=480;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',480,0);
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
  "components#ClassID" INTEGER,
  "components#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80008,'kbeC_ConnectorBehaviorOption','kbeC_ConnectorBehaviorOption',453,0x1);
CREATE TABLE "kbeC_Tabular"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80009,'kbeC_Tabular','kbeC_Tabular',453,0x2A80008);
CREATE TABLE "kbeC_MotionDiscontinuity"(
  "##OID" INTEGER PRIMARY KEY,
  "affectedComponent" INTEGER,
  "minDisplacement",
  "maxDisplacement",
  "minForce",
  "maxForce",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8000A,'kbeC_MotionDiscontinuity','kbeC_MotionDiscontinuity',453,0x2A80008);
CREATE TABLE "kbeC_Elasticity"(
  "##OID" INTEGER PRIMARY KEY,
  "coupling" TEXT,
  "behavior" TEXT,
  "dependentComponents#ClassID" INTEGER,
  "dependentComponents#OID" INTEGER,
  "frequencyDependency" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80001,'kbeC_Elasticity','kbeC_Elasticity',453,0x2A80009);
CREATE TABLE "kbeC_Damping"(
  "##OID" INTEGER PRIMARY KEY,
  "coupling" TEXT,
  "behavior" TEXT,
  "dependentComponents#ClassID" INTEGER,
  "dependentComponents#OID" INTEGER,
  "frequencyDependency" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80002,'kbeC_Damping','kbeC_Damping',453,0x2A80009);
CREATE TABLE "kbeC_Stops"(
  "##OID" INTEGER PRIMARY KEY,
  "minDisplacement",
  "maxDisplacement",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80003,'kbeC_Stops','kbeC_Stops',453,0x2A80008);
CREATE TABLE "kbeC_Lock"(
  "##OID" INTEGER PRIMARY KEY,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80004,'kbeC_Lock','kbeC_Lock',453,0x2A8000A);
CREATE TABLE "kbeC_Failure"(
  "##OID" INTEGER PRIMARY KEY,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80005,'kbeC_Failure','kbeC_Failure',453,0x2A8000A);
CREATE TABLE "kbeC_TangentialBehavior"(
  "##OID" INTEGER PRIMARY KEY,
  "formulation" TEXT,
  "slipRateDependency" INTEGER,
  "pressureDependency" INTEGER,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "exponentialDecayDefinition" TEXT,
  "shearStressLimit",
  "maximumElasticSlip" TEXT,
  "fraction",
  "absoluteDistance",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8000D,'kbeC_TangentialBehavior','kbeC_TangentialBehavior',453,0x1);
CREATE TABLE "kbeC_Friction"(
  "##OID" INTEGER PRIMARY KEY,
  "frictionModel" TEXT,
  "stickStiffness",
  "tangentDirs" INTEGER,
  "componentType" TEXT,
  "independentComponents#ClassID" INTEGER,
  "independentComponents#OID" INTEGER,
  "slipDependency" INTEGER,
  "tangentialBehavior#ClassID" INTEGER,
  "tangentialBehavior#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80006,'kbeC_Friction','kbeC_Friction',453,0x2A80009);
CREATE TABLE "kbeC_Plasticity"(
  "##OID" INTEGER PRIMARY KEY,
  "isotropic" INTEGER,
  "isotropicType" TEXT,
  "isotropicTemperature" INTEGER,
  "isotropicDependencies" INTEGER,
  "isotropicTable#ClassID" INTEGER,
  "isotropicTable#OID" INTEGER,
  "kinematic" INTEGER,
  "kinematicType" TEXT,
  "kinematicTemperature" INTEGER,
  "kinematicDependencies" INTEGER,
  "kinematicTable#ClassID" INTEGER,
  "kinematicTable#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8000E,'kbeC_Plasticity','kbeC_Plasticity',453,0x2A80008);
CREATE TABLE "kbeC_Damage"(
  "##OID" INTEGER PRIMARY KEY,
  "criterion" TEXT,
  "initiationTemperature" INTEGER,
  "initiationDependencies" INTEGER,
  "initiationTable#ClassID" INTEGER,
  "initiationTable#OID" INTEGER,
  "evolution" INTEGER,
  "evolutionType" TEXT,
  "softening" TEXT,
  "useAffected" INTEGER,
  "affectedComponents#ClassID" INTEGER,
  "affectedComponents#OID" INTEGER,
  "degradation" TEXT,
  "evolutionTemperature" INTEGER,
  "evolutionDependencies" INTEGER,
  "evolutionTable#ClassID" INTEGER,
  "evolutionTable#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8000F,'kbeC_Damage','kbeC_Damage',453,0x2A80008);
CREATE TABLE "kmaC_AnnealTemperature"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380071,'kmaC_AnnealTemperature','kmaC_AnnealTemperature',452,0x2380002);
CREATE TABLE "kmaC_Plastic"(
  "##OID" INTEGER PRIMARY KEY,
  "hardening" TEXT,
  "rate" INTEGER,
  "dataType" TEXT,
  "strainRangeDependency" INTEGER,
  "gamma",
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
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
INSERT INTO nga_Catalogue VALUES(0x238003C,'kmaC_Plastic','kmaC_Plastic',419,0x2380002);
CREATE TABLE "kmaC_CapCreepCohesion"(
  "##OID" INTEGER PRIMARY KEY,
  "law" TEXT,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007E,'kmaC_CapCreepCohesion','kmaC_CapCreepCohesion',452,0x2380002);
CREATE TABLE "kmaC_CapPlasticity"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "capCreepCohesion#ClassID" INTEGER,
  "capCreepCohesion#OID" INTEGER,
  "capCreepConsolidation#ClassID" INTEGER,
  "capCreepConsolidation#OID" INTEGER,
  "capHardening#ClassID" INTEGER,
  "capHardening#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238000C,'kmaC_CapPlasticity','kmaC_CapPlasticity',452,0x2380002);
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
INSERT INTO nga_Catalogue VALUES(0x2380001,'kmaC_Material','kmaC_Material',301,0x1);
CREATE TABLE "kmaC_MCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007D,'kmaC_MCWrapper','kmaC_MCWrapper',401,0x1);

-- The bushing's stiffness along its axis, as it depends on its two lateral motions and on
-- temperature. The list that was called dependent names the independent components, and is named
-- so now.
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'01000000',1,54,x'0100000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,-1,x'0200000000000000E001000000005EED');
-- -900, -2, 0, 0, 20; 900, 2, 0, 0, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'0000000000208CC000000000000000C00000000000000000000000000000000000000000000034400000000000208C400000000000000040000000000000000000000000000000000000000000003440',5,82,x'0300000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,1,-1,x'0400000000000000E001000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,0,655374,0,0,x'0500000000000000E001000000005EED');
-- 1, 2, 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'010000000200000003000000',1,54,x'0600000000000000E001000000005EED');
INSERT INTO "kbeC_Elasticity"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid")
  VALUES(0,'COUPLED_MOTION','NONLINEAR',2293761,2,0,0,x'0700000000000000E001000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorElasticity WHERE "##OID"=0
-- is: NONLINEAR COUPLED_MOTION 0 1 0 655374:0 2293761:2 2293761:0
-- after: SELECT l."Target#Kind"||':'||hex(l."Target#Handle") FROM kbeC_ConnectorElasticity o JOIN cls_List l ON l."##OID"=o."independentComponents#OID" WHERE o."##OID"=0 AND o."independentComponents#ClassID"=2293761
-- is: 54:010000000200000003000000
-- after: SELECT l."Target#Kind"||':'||hex(l."Target#Handle") FROM kbeC_ConnectorElasticity o JOIN cls_List l ON l."##OID"=o."components#OID" WHERE o."##OID"=0 AND o."components#ClassID"=2293761
-- is: 54:01000000
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kbeC_ConnectorElasticity o JOIN mdl_PropertyTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0 AND o."table#ClassID"=0xA000E
-- is: 5 0000000000208CC000000000000000C00000000000000000000000000000000000000000000034400000000000208C400000000000000040000000000000000000000000000000000000000000003440
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorElasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorElasticity
-- is: -1

-- Its damping, by frequency and one field.
-- 1, 4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'0100000004000000',1,54,x'0800000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(1,2293761,3,-1,x'0900000000000000E001000000005EED');
-- 2.4, 0.02, 10, 0; 1.9, 0.015, 50, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'33333333333303407B14AE47E17A943F00000000000024400000000000000000666666666666FE3FB81E85EB51B88E3F0000000000004940000000000000F03F',4,82,x'0A00000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,2293761,4,-1,x'0B00000000000000E001000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,0,1,655374,1,1,x'0C00000000000000E001000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'',1,54,x'0D00000000000000E001000000005EED');
INSERT INTO "kbeC_Damping"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid")
  VALUES(0,'UNCOUPLED','LINEAR',2293761,5,1,1,x'0E00000000000000E001000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamping WHERE "##OID"=0
-- is: LINEAR UNCOUPLED 1 0 1 655374:1 2293761:5 2293761:3
-- after: SELECT l."Target#Kind"||':'||hex(l."Target#Handle") FROM kbeC_ConnectorDamping o JOIN cls_List l ON l."##OID"=o."components#OID" WHERE o."##OID"=0 AND o."components#ClassID"=2293761
-- is: 54:0100000004000000
-- after: SELECT l."Target#Kind"||':'||hex(l."Target#Handle") FROM kbeC_ConnectorDamping o JOIN cls_List l ON l."##OID"=o."independentComponents#OID" WHERE o."##OID"=0 AND o."independentComponents#ClassID"=2293761
-- is: 54:
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamping o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorDamping
-- is: -1

-- A bump stop with no lower limit. What was no limit there stays the number that it was, minus the
-- largest one; only forces were mended. The stop keeps its own base row.
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'01000000',1,54,x'0F00000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(2,2293761,6,-1,x'1000000000000000E001000000005EED');
INSERT INTO "kbeC_Stops"("##OID","minDisplacement","maxDisplacement","##BaseClassOID","##Uid")
  VALUES(0,-1.7976931348623157e+308,12.5,2,x'1100000000000000E001000000005EED');
-- after: SELECT printf('%s %s %s:%s',"minMotion"=-1.7976931348623157e308,"maxMotion","components#ClassID","components#OID") FROM kbeC_ConnectorStop WHERE "##OID"=0
-- is: 1 12.5 2293761:6
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorStop
-- is: 2

-- A belt that locks its third component, a second lock of all components, and a strap that fails.
-- All components were -1 then; now they are the number that says that none was chosen. A force
-- limit of minus the largest number was none.
-- 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'03000000',1,54,x'1200000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(3,2293761,7,-1,x'1300000000000000E001000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid")
  VALUES(0,3,-0.8,1.7976931348623157e+308,-1.7976931348623157e+308,6500.0,3,x'1400000000000000E001000000005EED');
INSERT INTO "kbeC_Lock"("##OID","##BaseClassOID","##Uid")
  VALUES(0,0,x'1500000000000000E001000000005EED');
-- 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'03000000',1,54,x'1600000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(4,2293761,8,-1,x'1700000000000000E001000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid")
  VALUES(1,-1,-1.7976931348623157e+308,0.05,-40.0,-1.7976931348623157e+308,4,x'1800000000000000E001000000005EED');
INSERT INTO "kbeC_Lock"("##OID","##BaseClassOID","##Uid")
  VALUES(1,1,x'1900000000000000E001000000005EED');
-- 1, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(9,x'0100000002000000',1,54,x'1A00000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(5,2293761,9,-1,x'1B00000000000000E001000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid")
  VALUES(2,-1,1.7976931348623157e+308,30.0,-1.7976931348623157e+308,12000.0,5,x'1C00000000000000E001000000005EED');
INSERT INTO "kbeC_Failure"("##OID","##BaseClassOID","##Uid")
  VALUES(0,2,x'1D00000000000000E001000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s',"lockingComponent","minMotion","maxMotion"=1.7976931348623157e308,"minForce"=1.7976931348623157e308,"maxForce","components#ClassID","components#OID") FROM kbeC_ConnectorLock WHERE "##OID"=0
-- is: 3 -0.8 1 1 6500.0 2293761:7
-- after: SELECT printf('%s %s %s %s %s %s:%s',"lockingComponent","minMotion"=-1.7976931348623157e308,"maxMotion","minForce","maxForce"=1.7976931348623157e308,"components#ClassID","components#OID") FROM kbeC_ConnectorLock WHERE "##OID"=1
-- is: 2147483647 1 0.05 -40.0 1 2293761:8
-- after: SELECT printf('%s %s %s %s %s %s:%s',"releaseComponent","minMotion"=1.7976931348623157e308,"maxMotion","minForce"=1.7976931348623157e308,"maxForce","components#ClassID","components#OID") FROM kbeC_ConnectorFailure WHERE "##OID"=0
-- is: 2147483647 1 30.0 1 12000.0 2293761:9
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorLock UNION ALL SELECT "##BaseClassOID" FROM kbeC_ConnectorFailure
-- is: -1 -1 -1

-- The friction of the strut's piston by a predefined law, and one by the user's own table without
-- a law. How the slip is told, contact forces and potentials came later: literals take the class's
-- default, the exponent reads as 0, and the lists are empty.
-- 0.12, 0; 0.09, 4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(10,x'B81E85EB51B8BE3F00000000000000000AD7A3703D0AB73F0000000000001040',2,82,x'1E00000000000000E001000000005EED');
INSERT INTO "kbeC_TangentialBehavior"("##OID","formulation","slipRateDependency","pressureDependency","temperatureDependency","dependencies","exponentialDecayDefinition","shearStressLimit","maximumElasticSlip","fraction","absoluteDistance","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'PENALTY',1,0,0,0,'COEFFICIENTS',1.7976931348623157e+308,'FRACTION',0.005,1.7976931348623157e+308,2293761,10,-1,x'1F00000000000000E001000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'',1,54,x'2000000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(6,2293761,11,-1,x'2100000000000000E001000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'',0,82,x'2200000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,2293761,12,-1,x'2300000000000000E001000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,0,0,655374,2,6,x'2400000000000000E001000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(13,x'',1,54,x'2500000000000000E001000000005EED');
INSERT INTO "kbeC_Friction"("##OID","frictionModel","stickStiffness","tangentDirs","componentType","independentComponents#ClassID","independentComponents#OID","slipDependency","tangentialBehavior#ClassID","tangentialBehavior#OID","##BaseClassOID","##Uid")
  VALUES(0,'PREDEFINED',2000000.0,2,'NO_INDEP_COMPS',2293761,13,0,44564493,0,2,x'2600000000000000E001000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(14,x'',1,54,x'2700000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(7,2293761,14,-1,x'2800000000000000E001000000005EED');
-- 35, -5, 20; 42, 5, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(15,x'000000000080414000000000000014C00000000000003440000000000000454000000000000014400000000000003440',3,82,x'2900000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,2293761,15,-1,x'2A00000000000000E001000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,1,0,655374,3,7,x'2B00000000000000E001000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(16,x'01000000',1,54,x'2C00000000000000E001000000005EED');
INSERT INTO "kbeC_Friction"("##OID","frictionModel","stickStiffness","tangentDirs","componentType","independentComponents#ClassID","independentComponents#OID","slipDependency","##BaseClassOID","##Uid")
  VALUES(1,'USER_CUSTOMIZED',500000.0,1,'POSITION',2293761,16,0,3,x'2D00000000000000E001000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s',"frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","table#ClassID","table#OID","tangentialBehavior#ClassID","tangentialBehavior#OID","independentComponents#ClassID","independentComponents#OID","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorFriction WHERE "##OID"=0
-- is: PREDEFINED SPECIFY 2 2000000.0 NO_INDEPENDENT_COMPONENTS 0 0 0 0 COMPONENT_NUMBER 0 SUM 0.0 655374:2 44564493:0 2293761:13 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s:%s %s %s:%s %s',"frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","table#ClassID","table#OID","tangentialBehavior#OID" IS NULL,"independentComponents#ClassID","independentComponents#OID","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorFriction WHERE "##OID"=1
-- is: USER_CUSTOMIZED SPECIFY 1 500000.0 POSITION 0 1 0 655374:3 1 2293761:16 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s:%s',"formulation","slipRateDependency","pressureDependency","temperatureDependency","dependencies","exponentialDecayDefinition","shearStressLimit"=1.7976931348623157e308,"maximumElasticSlip","fraction","absoluteDistance"=1.7976931348623157e308,"table#ClassID","table#OID") FROM kbeC_TangentialBehavior WHERE "##OID"=0
-- is: PENALTY 1 0 0 0 COEFFICIENTS 1 FRACTION 0.005 1 2293761:10
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kbeC_ConnectorFriction o JOIN mdl_PropertyTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=1 AND o."table#ClassID"=0xA000E
-- is: 3 000000000080414000000000000014C00000000000003440000000000000454000000000000014400000000000003440
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorFriction o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorFriction o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=1 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorFriction
-- is: -1 -1

-- The strut's plasticity, isotropic by table and kinematic by half a cycle, and its damage: after
-- a force, evolving by energy, in the components named. Whether they are coupled was not told
-- then.
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(17,x'01000000',1,54,x'2E00000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(8,2293761,17,-1,x'2F00000000000000E001000000005EED');
-- 9000, 0, 0; 11000, 2, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(18,x'000000000094C1400000000000000000000000000000000000000000007CC54000000000000000400000000000000000',3,82,x'3000000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(4,2293761,18,-1,x'3100000000000000E001000000005EED');
-- 9000, 0, 20; 9800, 1, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(19,x'000000000094C14000000000000000000000000000003440000000000024C340000000000000F03F0000000000003440',3,82,x'3200000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(5,2293761,19,-1,x'3300000000000000E001000000005EED');
INSERT INTO "kbeC_Plasticity"("##OID","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","isotropicTable#ClassID","isotropicTable#OID","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","kinematicTable#ClassID","kinematicTable#OID","##BaseClassOID","##Uid")
  VALUES(0,1,'TABULAR',0,0,655374,4,1,'HALF_CYCLE',1,0,655374,5,8,x'3400000000000000E001000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(20,x'01000000',1,54,x'3500000000000000E001000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(9,2293761,20,-1,x'3600000000000000E001000000005EED');
-- -15000, 15000
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(21,x'00000000004CCDC000000000004CCD40',2,82,x'3700000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(6,2293761,21,-1,x'3800000000000000E001000000005EED');
-- 85, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(22,x'00000000004055400000000000000000',2,82,x'3900000000000000E001000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(7,2293761,22,-1,x'3A00000000000000E001000000005EED');
-- 1, 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(23,x'0100000005000000',1,54,x'3B00000000000000E001000000005EED');
INSERT INTO "kbeC_Damage"("##OID","criterion","initiationTemperature","initiationDependencies","initiationTable#ClassID","initiationTable#OID","evolution","evolutionType","softening","useAffected","affectedComponents#ClassID","affectedComponents#OID","degradation","evolutionTemperature","evolutionDependencies","evolutionTable#ClassID","evolutionTable#OID","##BaseClassOID","##Uid")
  VALUES(0,'FORCE',0,0,655374,6,1,'ENERGY','LINEAR',1,2293761,23,'MULTIPLICATIVE',0,1,655374,7,9,x'3C00000000000000E001000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s',"coupling","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","forcePotentialOperator","forcePotentialExponent","isotropicTable#ClassID","isotropicTable#OID","kinematicTable#ClassID","kinematicTable#OID","components#ClassID","components#OID") FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: UNCOUPLED 1 TABULAR 0 0 1 HALF_CYCLE 1 0 SUM 0.0 655374:4 655374:5 2293761:17
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s',"coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: UNCOUPLED FORCE 0 SUM 0.0 0 1 ENERGY_TYPE LINEAR 1 MULTIPLICATIVE 0 1 SUM 0.0 655374:6 655374:7 2293761:23 2293761:20
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."isotropicOptions#OID" WHERE o."##OID"=0 AND o."isotropicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."kinematicOptions#OID" WHERE o."##OID"=0 AND o."kinematicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "isotropicOptions#OID"<>"kinematicOptions#OID" FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."initiationOptions#OID" WHERE o."##OID"=0 AND o."initiationOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."evolutionOptions#OID" WHERE o."##OID"=0 AND o."evolutionOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "initiationOptions#OID"<>"evolutionOptions#OID" FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: 1
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorPlasticity UNION ALL SELECT "##BaseClassOID" FROM kbeC_ConnectorDamage
-- is: -1 -1
-- after: SELECT count(*) FROM kbeC_ConnectorFriction o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID"
-- is: 0
-- after: SELECT count(*) FROM kbeC_ConnectorPlasticity o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID"
-- is: 0
-- after: SELECT count(*) FROM kbeC_ConnectorDamage o JOIN cls_ListEntry e ON e.owner=o."initiationPotentials#OID"
-- is: 0
-- after: SELECT count(*) FROM kbeC_ConnectorDamage o JOIN cls_ListEntry e ON e.owner=o."evolutionPotentials#OID"
-- is: 0
-- Elasticity, damping, two frictions, and plasticity and damage twice: eight sets of options.
-- after: SELECT count(*) FROM kbeC_ConnectorOptions
-- is: 8
-- after: SELECT count(*) FROM nga_Catalogue WHERE ClassName IN ('kbeC_Tabular','kbeC_MotionDiscontinuity','kbeC_Elasticity','kbeC_Damping','kbeC_Stops','kbeC_Lock','kbeC_Failure','kbeC_Friction','kbeC_Plasticity','kbeC_Damage')
-- is: 0
-- after: SELECT count(*) FROM pragma_table_info('kbeC_ConnectorBehaviorOption') WHERE name IN ('components#ClassID','components#OID')
-- is: 0
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kbeC_ConnectorBehaviorOption','kbeC_ConnectorElasticity','kbeC_ConnectorDamping','kbeC_ConnectorStop','kbeC_ConnectorLock','kbeC_ConnectorFailure','kbeC_ConnectorFriction','kbeC_ConnectorPlasticity','kbeC_ConnectorDamage','kbeC_ConnectorOptions') ORDER BY ClassName
-- is: kbeC_ConnectorBehaviorOption:811 kbeC_ConnectorDamage:1022 kbeC_ConnectorDamping:1022 kbeC_ConnectorElasticity:1022 kbeC_ConnectorFailure:811 kbeC_ConnectorFriction:1022 kbeC_ConnectorLock:811 kbeC_ConnectorOptions:1026 kbeC_ConnectorPlasticity:1022 kbeC_ConnectorStop:811

-- The rod of the strut, annealed. Its flag of temperature dependency goes with what stood in it.
-- 600, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(24,x'0000000000C082400000000000003440',2,82,x'3D00000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,24,0,-1,x'3E00000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'3F00000000000000E001000000005EED');
INSERT INTO "kmaC_AnnealTemperature"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,0,37224536,0,0,x'4000000000000000E001000000005EED');
-- 420, 0; 510, 0.08
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(25,x'0000000000407A4000000000000000000000000000E07F407B14AE47E17AB43F',2,82,x'4100000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,25,0,-1,x'4200000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'4300000000000000E001000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","annealTemperature#ClassID","annealTemperature#OID","##BaseClassOID","##Uid")
  VALUES(0,'ISOTROPIC',0,'HALF_CYCLE',0,0.0,0,0,37224536,1,37224561,0,1,x'4400000000000000E001000000005EED');
-- after: SELECT printf('%s %s:%s',"dependencies","table#ClassID","table#OID") FROM kmaC_AnnealTemperature WHERE "##OID"=0
-- is: 0 37224536:0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_AnnealTemperature') WHERE name IN ('temperatureDependency')
-- is: 0
-- after: SELECT printf('%s %s %s %s %s:%s %s:%s',"hardening","dataType","strainRangeDependency","numBackstresses","table#ClassID","table#OID","annealTemperature#ClassID","annealTemperature#OID") FROM kmaC_Plastic WHERE "##OID"=0
-- is: ISOTROPIC HALF_CYCLE 0 1 37224536:1 37224561:0
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 2 0000000000407A4000000000000000000000000000E07F407B14AE47E17AB43F
-- 1e-06, 1.2, -0.4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(26,x'8DEDB5A0F7C6B03E333333333333F33F9A9999999999D9BF',3,82,x'4500000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,26,0,-1,x'4600000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'4700000000000000E001000000005EED');
INSERT INTO "kmaC_CapCreepCohesion"("##OID","law","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'TIME',0,0,37224536,2,2,x'4800000000000000E001000000005EED');
-- 0.2, 28, 0.4, 0.001, 0.02, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(27,x'9A9999999999C93F0000000000003C409A9999999999D93FFCA9F1D24D62503F7B14AE47E17A943F000000000000F03F',6,82,x'4900000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,27,0,-1,x'4A00000000000000E001000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'4B00000000000000E001000000005EED');
INSERT INTO "kmaC_CapPlasticity"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","capCreepCohesion#ClassID","capCreepCohesion#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,3,37224574,0,3,x'4C00000000000000E001000000005EED');
-- The ground below the test track is of a cap that had been split before.
-- after: SELECT printf('%s:%s %s:%s %s %s',"table#ClassID","table#OID","capCreepCohesion#ClassID","capCreepCohesion#OID","capCreepConsolidation#OID" IS NULL,"capHardening#OID" IS NULL) FROM kmaC_CapPlasticity WHERE "##OID"=0
-- is: 37224536:3 37224574:0 1 1
-- after: SELECT printf('%s %s %s %s:%s',"law","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_CapCreepCohesion WHERE "##OID"=0
-- is: TIME 0 0 37224536:2
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(0,37224508,0,-1,x'4D00000000000000E001000000005EED');
INSERT INTO "kmaC_Material"("##OID","capPlasticity#ClassID","capPlasticity#OID","##BaseClassOID","##Uid")
  VALUES(1,37224460,0,-1,x'4E00000000000000E001000000005EED');

-- The materials themselves refer to the options that they had, and have got two empty texts.
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224508:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"capPlasticity#ClassID","capPlasticity#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=1
-- is: 37224460:0 1 1 1

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'strut rod',37224449,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'test track ground',37224449,1);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,2,x'4F00000000000000E001000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'5000000000000000E001000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: strut rod, test track ground
