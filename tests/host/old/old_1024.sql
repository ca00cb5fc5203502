-- A database of schema 1024, written by hand. Make it with: sqlite3 old_1024.nga < old_1024.sql
-- A file of the day before yesterday: connectors have options, which lack the two flags that came
-- last, and plastics still have a gamma.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=1024;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',1024,0);
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
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80008,'kbeC_ConnectorBehaviorOption','kbeC_ConnectorBehaviorOption',811,0x1);
CREATE TABLE "kbeC_ConnectorOptions"(
  "##OID" INTEGER PRIMARY KEY,
  "regularize" INTEGER,
  "defaultTolerance" INTEGER,
  "regularization",
  "defaultRateFactor" INTEGER,
  "rateFactor",
  "interpolation" TEXT,
  "extrapolation" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8003E,'kbeC_ConnectorOptions','kbeC_ConnectorOptions',1022,0x1);
CREATE TABLE "kbeC_ConnectorElasticity"(
  "##OID" INTEGER PRIMARY KEY,
  "behavior" TEXT,
  "coupling" TEXT,
  "dependencies" INTEGER,
  "temperatureDependency" INTEGER,
  "frequencyDependency" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "independentComponents#ClassID" INTEGER,
  "independentComponents#OID" INTEGER,
  "components#ClassID" INTEGER,
  "components#OID" INTEGER,
  "options#ClassID" INTEGER,
  "options#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80017,'kbeC_ConnectorElasticity','kbeC_ConnectorElasticity',1022,0x2A80008);
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
  "options#ClassID" INTEGER,
  "options#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8002D,'kbeC_CDCTerm','kbeC_CDCTerm',1022,0x1);
CREATE TABLE "kbeC_DerivedComponent"(
  "##OID" INTEGER PRIMARY KEY,
  "cdcTerms#ClassID" INTEGER,
  "cdcTerms#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8002E,'kbeC_DerivedComponent','kbeC_DerivedComponent',836,0x1);
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
  "options#ClassID" INTEGER,
  "options#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001C,'kbeC_ConnectorFriction','kbeC_ConnectorFriction',1022,0x2A80008);
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
  "initiationOptions#ClassID" INTEGER,
  "initiationOptions#OID" INTEGER,
  "evolutionOptions#ClassID" INTEGER,
  "evolutionOptions#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001E,'kbeC_ConnectorDamage','kbeC_ConnectorDamage',1022,0x2A80008);
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
  "brittleCracking#ClassID" INTEGER,
  "brittleCracking#OID" INTEGER,
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
  "ductileDamageInitiation#ClassID" INTEGER,
  "ductileDamageInitiation#OID" INTEGER,
  "fldDamageInitiation#ClassID" INTEGER,
  "fldDamageInitiation#OID" INTEGER,
  "flsdDamageInitiation#ClassID" INTEGER,
  "flsdDamageInitiation#OID" INTEGER,
  "johnsonCookDamageInitiation#ClassID" INTEGER,
  "johnsonCookDamageInitiation#OID" INTEGER,
  "maxeDamageInitiation#ClassID" INTEGER,
  "maxeDamageInitiation#OID" INTEGER,
  "maxsDamageInitiation#ClassID" INTEGER,
  "maxsDamageInitiation#OID" INTEGER,
  "mkDamageInitiation#ClassID" INTEGER,
  "mkDamageInitiation#OID" INTEGER,
  "msfldDamageInitiation#ClassID" INTEGER,
  "msfldDamageInitiation#OID" INTEGER,
  "quadeDamageInitiation#ClassID" INTEGER,
  "quadeDamageInitiation#OID" INTEGER,
  "quadsDamageInitiation#ClassID" INTEGER,
  "quadsDamageInitiation#OID" INTEGER,
  "shearDamageInitiation#ClassID" INTEGER,
  "shearDamageInitiation#OID" INTEGER,
  "hashinDamageInitiation#ClassID" INTEGER,
  "hashinDamageInitiation#OID" INTEGER,
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
INSERT INTO nga_Catalogue VALUES(0x2380001,'kmaC_Material','kmaC_Material',869,0x1);
CREATE TABLE "kmaC_MCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007D,'kmaC_MCWrapper','kmaC_MCWrapper',401,0x1);

-- Three sets of options: one with a logarithmic interpolation, which is kept; one whose
-- interpolation was never written and becomes linear; and the defaults. In all the flags are on,
-- that the settings of the whole behaviour are taken.
INSERT INTO "kbeC_ConnectorOptions"("##OID","regularize","defaultTolerance","regularization","defaultRateFactor","rateFactor","interpolation","extrapolation","##BaseClassOID","##Uid")
  VALUES(0,0,0,0.01,0,0.5,'LOGARITHMIC','LINEAR',-1,x'01000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorOptions"("##OID","regularize","defaultTolerance","regularization","defaultRateFactor","rateFactor","interpolation","extrapolation","##BaseClassOID","##Uid")
  VALUES(1,1,1,0.03,1,0.9,NULL,'LINEAR',-1,x'02000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorOptions"("##OID","regularize","defaultTolerance","regularization","defaultRateFactor","rateFactor","interpolation","extrapolation","##BaseClassOID","##Uid")
  VALUES(2,1,1,0.03,1,0.9,'LINEAR','CONSTANT',-1,x'03000000000000000004000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',"useBehRegSettings","regularize","defaultTolerance","regularization","defaultRateFactor","rateFactor","interpolation","useBehExtSettings","extrapolation") FROM kbeC_ConnectorOptions WHERE "##OID"=0
-- is: 1 0 0 0.01 0 0.5 LOGARITHMIC 1 LINEAR
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',"useBehRegSettings","regularize","defaultTolerance","regularization","defaultRateFactor","rateFactor","interpolation","useBehExtSettings","extrapolation") FROM kbeC_ConnectorOptions WHERE "##OID"=1
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 LINEAR
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',"useBehRegSettings","regularize","defaultTolerance","regularization","defaultRateFactor","rateFactor","interpolation","useBehExtSettings","extrapolation") FROM kbeC_ConnectorOptions WHERE "##OID"=2
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT

-- A damage that begins by the first and evolves by none, a term of a derived component that has
-- the second, a spring that has the third.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'',1,54,x'04000000000000000004000000005EED');
-- 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'03000000',1,54,x'05000000000000000004000000005EED');
-- 800
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'0000000000008940',1,82,x'06000000000000000004000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,2,-1,x'07000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'08000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorElasticity"("##OID","behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID","options#ClassID","options#OID","##BaseClassOID","##Uid")
  VALUES(0,'LINEAR','UNCOUPLED',0,0,0,655374,0,2293761,0,2293761,1,44564542,2,0,x'09000000000000000004000000005EED');
-- after: SELECT printf('%s %s %s:%s %s:%s %s:%s %s:%s',"behavior","coupling","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID","options#ClassID","options#OID") FROM kbeC_ConnectorElasticity WHERE "##OID"=0
-- is: LINEAR UNCOUPLED 655374:0 2293761:0 2293761:1 44564542:2
-- 1, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'0100000002000000',1,54,x'0A000000000000000004000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'',1,54,x'0B000000000000000004000000005EED');
-- 0.9, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'CDCCCCCCCCCCEC3F0000000000003440',2,82,x'0C000000000000000004000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,2293761,5,-1,x'0D000000000000000004000000005EED');
INSERT INTO "kbeC_CDCTerm"("##OID","termOperator","termSign","localDependency","indepCompType","tempDependency","fieldDependencies","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID","options#ClassID","options#OID","##BaseClassOID","##Uid")
  VALUES(0,'MACAULEY','POSITIVE',0,'POSITION',1,0,2293761,3,2293761,4,655374,1,44564542,1,-1,x'0E000000000000000004000000005EED');
-- 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'03000000',1,54,x'0F000000000000000004000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'',1,54,x'10000000000000000004000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'000000000000F03F',1,82,x'11000000000000000004000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,2293761,8,-1,x'12000000000000000004000000005EED');
INSERT INTO "kbeC_CDCTerm"("##OID","termOperator","termSign","localDependency","indepCompType","tempDependency","fieldDependencies","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,'RSS','NEGATIVE',0,'POSITION',0,0,2293761,6,2293761,7,655374,2,-1,x'13000000000000000004000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s',"termOperator","termSign","localDependency","indepCompType","tempDependency","fieldDependencies","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID","options#ClassID","options#OID") FROM kbeC_CDCTerm WHERE "##OID"=0
-- is: MACAULEY POSITIVE 0 POSITION 1 0 2293761:3 2293761:4 655374:1 44564542:1
-- A term without options keeps having none.
-- after: SELECT printf('%s %s %s:%s %s:%s %s:%s %s',"termOperator","termSign","intrinsicComponents#ClassID","intrinsicComponents#OID","indepComponents#ClassID","indepComponents#OID","table#ClassID","table#OID","options#OID" IS NULL) FROM kbeC_CDCTerm WHERE "##OID"=1
-- is: RSS NEGATIVE 2293761:6 2293761:7 655374:2 1
INSERT INTO "cls_ListEntry"("##OID","owner","value#ClassID","value#OID")
  VALUES(0,9,44564525,0);
INSERT INTO "cls_ListEntry"("##OID","owner","value#ClassID","value#OID")
  VALUES(1,9,44564525,1);
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(9,1,0,2,x'14000000000000000004000000005EED');
INSERT INTO "kbeC_DerivedComponent"("##OID","cdcTerms#ClassID","cdcTerms#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,9,-1,x'15000000000000000004000000005EED');
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(10,1,2,0,x'16000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'17000000000000000004000000005EED');
-- 0.15
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'333333333333C33F',1,82,x'18000000000000000004000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,2293761,11,-1,x'19000000000000000004000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'',1,54,x'1A000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorFriction"("##OID","frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","connectorPotentials#ClassID","connectorPotentials#OID","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","derivedComponent#ClassID","derivedComponent#OID","##BaseClassOID","##Uid")
  VALUES(0,'USER_CUSTOMIZED','SPECIFY',2,400000.0,'NO_INDEPENDENT_COMPONENTS',0,0,0,0,'COMPONENT_NUMBER',1,'SUM',2.0,2293761,10,655374,3,2293761,12,44564526,0,1,x'1B000000000000000004000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s',"frictionModel","tangentDirection","contactForceComponent","derivedComponent#ClassID","derivedComponent#OID","options#OID" IS NULL) FROM kbeC_ConnectorFriction WHERE "##OID"=0
-- is: USER_CUSTOMIZED 2 1 44564526:0 1
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(13,1,2,0,x'1C000000000000000004000000005EED');
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(14,1,2,0,x'1D000000000000000004000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(15,x'',1,54,x'1E000000000000000004000000005EED');
-- 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(16,x'03000000',1,54,x'1F000000000000000004000000005EED');
-- -60, 60
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(17,x'0000000000004EC00000000000004E40',2,82,x'20000000000000000004000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(4,2293761,17,-1,x'21000000000000000004000000005EED');
-- 0.1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(18,x'9A9999999999B93F',1,82,x'22000000000000000004000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(5,2293761,18,-1,x'23000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'24000000000000000004000000005EED');
INSERT INTO "kbeC_ConnectorDamage"("##OID","coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationPotentials#ClassID","initiationPotentials#OID","evolutionPotentials#ClassID","evolutionPotentials#OID","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID","initiationOptions#ClassID","initiationOptions#OID","##BaseClassOID","##Uid")
  VALUES(0,'UNCOUPLED','PLASTIC_MOTION',0,'SUM',2.0,0,1,'MOTION_TYPE','LINEAR',0,'MAXIMUM',0,0,'SUM',2.0,2293761,13,2293761,14,655374,4,655374,5,2293761,15,2293761,16,44564542,0,2,x'25000000000000000004000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s',"coupling","criterion","evolutionType","initiationOptions#ClassID","initiationOptions#OID","evolutionOptions#OID" IS NULL) FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: UNCOUPLED PLASTIC_MOTION MOTION_TYPE 44564542:0 1
-- after: SELECT count(*) FROM kbeC_ConnectorOptions
-- is: 3

-- The bracket's steel, of the layout that had every option but one: description and identifier
-- come in empty, the gamma goes into the table, damping gets a structural part.
-- 300, 18000
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(19,x'0000000000C07240000000000094D140',2,82,x'26000000000000000004000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,19,0,-1,x'27000000000000000004000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'28000000000000000004000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'COMBINED',0,'PARAMETERS',0,90.5,0,0,37224536,0,0,x'29000000000000000004000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'2A000000000000000004000000005EED');
INSERT INTO "kmaC_Damping"("##OID","alpha","beta","composite","##BaseClassOID","##Uid")
  VALUES(0,0.0,0.0,0.01,1,x'2B000000000000000004000000005EED');
INSERT INTO "kmaC_Material"("##OID","damping#ClassID","damping#OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(0,37224469,0,37224508,0,-1,x'2C000000000000000004000000005EED');
-- after: SELECT printf('%s:%s %s:%s %s %s %s %s',"plastic#ClassID","plastic#OID","damping#ClassID","damping#OID","brittleCracking#OID" IS NULL,"mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224508:0 37224469:0 1 1 1 1
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 3 0000000000C07240000000000094D1400000000000A05640
-- after: SELECT printf('%s %s %s %s %s:%s',"hardening","dataType","strainRangeDependency","numBackstresses","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=0
-- is: COMBINED PARAMETERS 0 1 37224536:0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Plastic') WHERE name IN ('gamma')
-- is: 0
-- after: SELECT printf('%s %s %s %s',"alpha","beta","composite","structural") FROM kmaC_Damping WHERE "##OID"=0
-- is: 0.0 0.0 0.01 0.0
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Material','kmaC_Plastic','kmaC_Damping','kbeC_CDCTerm','kbeC_ConnectorOptions','kbeC_ConnectorFriction') ORDER BY ClassName
-- is: kbeC_CDCTerm:1026 kbeC_ConnectorFriction:1022 kbeC_ConnectorOptions:1026 kmaC_Damping:1050 kmaC_Material:1106 kmaC_Plastic:1107

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'bracket steel',37224449,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,1,x'2D000000000000000004000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'2E000000000000000004000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: bracket steel
