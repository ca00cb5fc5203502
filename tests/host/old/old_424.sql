-- A database of schema 424, written by hand. Make it with: sqlite3 old_424.nga < old_424.sql
-- A car maker's archive, half way: amplitudes have their data but not yet their last layout,
-- plastics have a gamma of their own, and box sections are told by a and b with a list of
-- thicknesses.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=424;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',424,0);
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
CREATE TABLE "kmaC_Expansion"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "zero",
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380021,'kmaC_Expansion','kmaC_Expansion',419,0x2380002);
CREATE TABLE "kmaC_UserMaterial"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "unsymm" INTEGER,
  "mechanicalTable#ClassID" INTEGER,
  "mechanicalTable#OID" INTEGER,
  "thermalTable#ClassID" INTEGER,
  "thermalTable#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380053,'kmaC_UserMaterial','kmaC_UserMaterial',419,0x2380002);
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
CREATE TABLE "kamC_Amplitude"(
  "##OID" INTEGER PRIMARY KEY,
  "definition" TEXT,
  "timeSpan" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440002,'kamC_Amplitude','kamC_Amplitude',424,0x1);
CREATE TABLE "kamC_Tabular"(
  "##OID" INTEGER PRIMARY KEY,
  "smooth",
  "data#ClassID" INTEGER,
  "data#OID" INTEGER,
  "baselineCorrection#ClassID" INTEGER,
  "baselineCorrection#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440008,'kamC_Tabular','kamC_Tabular',424,0x2440002);
CREATE TABLE "kamC_Periodic"(
  "##OID" INTEGER PRIMARY KEY,
  "frequency",
  "start",
  "a_0",
  "data#ClassID" INTEGER,
  "data#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440006,'kamC_Periodic','kamC_Periodic',424,0x2440002);
CREATE TABLE "kbpC_BeamProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640001,'kbpC_BeamProfile','kbpC_BeamProfile',203,0x1);
CREATE TABLE "kbpC_BoxProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "b",
  "a",
  "tempThick#ClassID" INTEGER,
  "tempThick#OID" INTEGER,
  "uniformThickness" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640007,'kbpC_BoxProfile','kbpC_BoxProfile',406,0x2640001);
CREATE TABLE "kbpC_GeneralizedProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "linearBehavior" INTEGER,
  "area",
  "i11",
  "i12",
  "i22",
  "j",
  "gammaO",
  "gammaW",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640002,'kbpC_GeneralizedProfile','kbpC_GeneralizedProfile',406,0x2640001);
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
CREATE TABLE "kbpC_PipeProfile"(
  "##OID" INTEGER PRIMARY KEY,
  "r",
  "t",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640005,'kbpC_PipeProfile','kbpC_PipeProfile',406,0x2640001);
CREATE TABLE "kmaC_MCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007D,'kmaC_MCWrapper','kmaC_MCWrapper',401,0x1);
CREATE TABLE "kamC_ACWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440017,'kamC_ACWrapper','kamC_ACWrapper',401,0x1);
CREATE TABLE "kbpC_BPCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640014,'kbpC_BPCWrapper','kbpC_BPCWrapper',401,0x1);

-- Three sheets of combined hardening. The first has its parameters for two temperatures: the gamma
-- of the option becomes the third column of both rows. The second has yield stress and modulus
-- alone, so that gamma is its last column. The third has a half cycle, and its gamma, which meant
-- nothing, falls away.
-- 160, 9000, 20; 120, 7000, 300
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'0000000000006440000000000094C14000000000000034400000000000005E40000000000058BB400000000000C07240',3,82,x'0100000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,0,-1,x'0200000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'0300000000000000A801000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'COMBINED',0,'PARAMETERS',0,62.5,1,0,37224536,0,0,x'0400000000000000A801000000005EED');
-- 205, 14000
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'0000000000A06940000000000058CB40',2,82,x'0500000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,1,0,-1,x'0600000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'0700000000000000A801000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,'COMBINED',0,'PARAMETERS',0,0.0,0,0,37224536,1,1,x'0800000000000000A801000000005EED');
-- 310, 0, 1; 330, 0.01, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'00000000006073400000000000000000000000000000F03F0000000000A074407B14AE47E17A843F000000000000F03F',3,82,x'0900000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,2,0,-1,x'0A00000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'0B00000000000000A801000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,'COMBINED',0,'STABILIZED',1,17.0,0,0,37224536,2,2,x'0C00000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s',"hardening","rate","dataType","strainRangeDependency","numBackstresses","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=0
-- is: COMBINED 0 PARAMETERS 0 1 1 0 37224536:0
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 4 0000000000006440000000000094C1400000000000404F4000000000000034400000000000005E40000000000058BB400000000000404F400000000000C07240
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s',"hardening","rate","dataType","strainRangeDependency","numBackstresses","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=1
-- is: COMBINED 0 PARAMETERS 0 1 0 0 37224536:1
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=1
-- is: 3 0000000000A06940000000000058CB400000000000000000
-- after: SELECT printf('%s %s %s %s %s:%s',"hardening","dataType","strainRangeDependency","numBackstresses","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=2
-- is: COMBINED STABILIZED 1 1 37224536:2
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=2
-- is: 3 00000000006073400000000000000000000000000000F03F0000000000A074407B14AE47E17A843F000000000000F03F
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Plastic') WHERE name IN ('gamma')
-- is: 0

-- A fourth, of another mill, whose program never wrote the gamma: it gets a number of backstresses
-- and no other column.
-- 250, 21000, 120
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'0000000000406F40000000000082D4400000000000005E40',3,82,x'0D00000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,3,0,-1,x'0E00000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'0F00000000000000A801000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,'COMBINED',0,'PARAMETERS',0,NULL,0,0,37224536,3,3,x'1000000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s:%s',"numBackstresses","strainRangeDependency","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=3
-- is: 1 0 37224536:3
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=3
-- is: 3 0000000000406F40000000000082D4400000000000005E40

-- Two options of one table, which disagree about its gamma: whoever is brought over last has the
-- word.
-- 140, 6000
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'0000000000806140000000000070B740',2,82,x'1100000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(4,2293761,4,0,-1,x'1200000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'1300000000000000A801000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(4,'COMBINED',0,'PARAMETERS',0,33.0,0,0,37224536,4,4,x'1400000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'1500000000000000A801000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","hardening","rate","dataType","strainRangeDependency","gamma","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(5,'COMBINED',0,'PARAMETERS',0,44.0,0,0,37224536,4,5,x'1600000000000000A801000000005EED');
-- after: SELECT printf('%s %s:%s',"numBackstresses","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=4
-- is: 1 37224536:4
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=4
-- is: 3 0000000000806140000000000070B7400000000000004640
-- after: SELECT printf('%s %s:%s',"numBackstresses","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=5
-- is: 1 37224536:4
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=5
-- is: 3 0000000000806140000000000070B7400000000000004640

-- Expansions: by a subroutine, which is a flag now, and of the plain kind.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'',0,82,x'1700000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(5,2293761,5,0,-1,x'1800000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(6,-1,x'1900000000000000A801000000005EED');
INSERT INTO "kmaC_Expansion"("##OID","type","zero","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'USER',23.0,0,2,37224536,5,6,x'1A00000000000000A801000000005EED');
-- 2.3e-05
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'7B8505F7031EF83E',1,82,x'1B00000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(6,2293761,6,0,-1,x'1C00000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(7,-1,x'1D00000000000000A801000000005EED');
INSERT INTO "kmaC_Expansion"("##OID","type","zero","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,'ISOTROPIC',0.0,0,0,37224536,6,7,x'1E00000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s',"type","userSubroutine","zero","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Expansion WHERE "##OID"=0
-- is: ISOTROPIC 1 23.0 0 2 37224536:5
-- after: SELECT printf('%s %s %s %s %s %s:%s',"type","userSubroutine","zero","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Expansion WHERE "##OID"=1
-- is: ISOTROPIC 0 0.0 0 0 37224536:6

-- A subroutine's material for crash, mechanical and thermal; the lists are what the material
-- tables held.
-- 210000, 0.3, 290, 0.18
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'0000000080A20941333333333333D33F00000000002072400AD7A3703D0AC73F',4,82,x'1F00000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(7,2293761,7,0,-1,x'2000000000000000A801000000005EED');
-- 45, 4.6e+08
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'0000000000804640000000000B6BBB41',2,82,x'2100000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(8,2293761,8,0,-1,x'2200000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(8,-1,x'2300000000000000A801000000005EED');
INSERT INTO "kmaC_UserMaterial"("##OID","type","unsymm","mechanicalTable#ClassID","mechanicalTable#OID","thermalTable#ClassID","thermalTable#OID","##BaseClassOID","##Uid")
  VALUES(0,'THERMOMECHANICAL',0,37224536,7,37224536,8,8,x'2400000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s:%s %s:%s',"type","unsymm","mechanicalConstants#ClassID","mechanicalConstants#OID","thermalConstants#ClassID","thermalConstants#OID") FROM kmaC_UserMaterial WHERE "##OID"=0
-- is: THERMOMECHANICAL 0 2293761:7 2293761:8
-- after: SELECT hex("Target#Handle") FROM cls_List WHERE "##OID" IN (7,8) ORDER BY "##OID"
-- is: 0000000080A20941333333333333D33F00000000002072400AD7A3703D0AC73F 0000000000804640000000000B6BBB41

-- The rubber of its mounts: the volumetric response of this layout is kept as it was chosen.
-- 0.55, 0.02
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(9,x'9A9999999999E13F7B14AE47E17A943F',2,82,x'2500000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(9,2293761,9,0,-1,x'2600000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(9,-1,x'2700000000000000A801000000005EED');
INSERT INTO "kmaC_Hyperelastic"("##OID","type","moduliTimeScale","temperatureDependency","n","beta","testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'NEO_HOOKE','INSTANTANEOUS',0,1,1.7976931348623157e+308,0,1,0,'PLANAR','POISSON_RATIO',0.49,37224536,9,9,x'2800000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s %s',"type","moduliTimeScale","temperatureDependency","n","beta"=1.7976931348623157e308,"testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","biaxialTestData#OID" IS NULL,"volumetricTestData#OID" IS NULL) FROM kmaC_Hyperelastic WHERE "##OID"=0
-- is: NEO_HOOKE INSTANTANEOUS 0 1 1 0 1 0 PLANAR POISSON_RATIO 0.49 37224536:9 1 1
-- 1e-09, 3, -0.1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(10,x'95D626E80B2E113E00000000000008409A9999999999B9BF',3,82,x'2900000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(10,2293761,10,0,-1,x'2A00000000000000A801000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(10,-1,x'2B00000000000000A801000000005EED');
INSERT INTO "kmaC_Viscous"("##OID","law","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'STRAIN',0,0,37224536,10,10,x'2C00000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s',"law","temperatureDependency","dependencies","table#ClassID","table#OID","potential#OID" IS NULL) FROM kmaC_Viscous WHERE "##OID"=0
-- is: STRAIN 0 0 37224536:10 1
INSERT INTO "kmaC_Material"("##OID","expansion#ClassID","expansion#OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(0,37224481,0,37224508,0,-1,x'2D00000000000000A801000000005EED');
INSERT INTO "kmaC_Material"("##OID","expansion#ClassID","expansion#OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(1,37224481,1,37224508,1,-1,x'2E00000000000000A801000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(2,37224508,2,-1,x'2F00000000000000A801000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(3,37224508,3,-1,x'3000000000000000A801000000005EED');
INSERT INTO "kmaC_Material"("##OID","userMaterial#ClassID","userMaterial#OID","##BaseClassOID","##Uid")
  VALUES(4,37224531,0,-1,x'3100000000000000A801000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(5,37224508,4,-1,x'3200000000000000A801000000005EED');
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(6,37224508,5,-1,x'3300000000000000A801000000005EED');
INSERT INTO "kmaC_Material"("##OID","hyperelastic#ClassID","hyperelastic#OID","viscous#ClassID","viscous#OID","##BaseClassOID","##Uid")
  VALUES(7,37224494,0,37224560,0,-1,x'3400000000000000A801000000005EED');
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"hyperelastic#ClassID","hyperelastic#OID","viscous#ClassID","viscous#OID","viscoelastic#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=7
-- is: 37224494:0 37224560:0 1 1 1

-- Its histories have a time span already; the kind of definition is dropped.
-- 0, 0; 0.08, 15
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'000000000000000000000000000000007B14AE47E17AB43F0000000000002E40',2,82,x'3500000000000000A801000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","timeSpan","##BaseClassOID","##Uid")
  VALUES(0,'TABULAR','TOTAL',-1,x'3600000000000000A801000000005EED');
INSERT INTO "kamC_Tabular"("##OID","smooth","data#ClassID","data#OID","##BaseClassOID","##Uid")
  VALUES(0,0.0,2293761,11,0,x'3700000000000000A801000000005EED');
-- after: SELECT printf('%s %s:%s %s',"smooth","data#ClassID","data#OID","baselineCorrection#OID" IS NULL) FROM kamC_Tabular WHERE "##OID"=0
-- is: 0.0 2293761:11 1
-- 0.3, -0.1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'333333333333D33F9A9999999999B9BF',2,82,x'3800000000000000A801000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","timeSpan","##BaseClassOID","##Uid")
  VALUES(1,'PERIODIC','STEP',-1,x'3900000000000000A801000000005EED');
INSERT INTO "kamC_Periodic"("##OID","frequency","start","a_0","data#ClassID","data#OID","##BaseClassOID","##Uid")
  VALUES(0,94.25,0.0,1.0,2293761,12,1,x'3A00000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s:%s',"frequency","start","a_0","data#ClassID","data#OID") FROM kamC_Periodic WHERE "##OID"=0
-- is: 94.25 0.0 1.0 2293761:12
-- after: SELECT timeSpan FROM kamC_Amplitude ORDER BY "##OID"
-- is: TOTAL STEP
-- after: SELECT count(*) FROM pragma_table_info('kamC_Amplitude') WHERE name IN ('definition')
-- is: 0

-- Sections of the frame. The list of the side rail becomes four fields; the rocker's list has
-- three thicknesses, and the fourth field has no value.
-- 2, 2.5, 2, 2.5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(13,x'0000000000000040000000000000044000000000000000400000000000000440',1,52,x'3B00000000000000A801000000005EED');
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'3C00000000000000A801000000005EED');
INSERT INTO "kbpC_BoxProfile"("##OID","b","a","tempThick#ClassID","tempThick#OID","uniformThickness","##BaseClassOID","##Uid")
  VALUES(0,150.0,60.0,2293761,13,0,0,x'3D00000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s',"a","b","uniformThickness","t1","t2","t3","t4") FROM kbpC_BoxProfile WHERE "##OID"=0
-- is: 60.0 150.0 0 2.0 2.5 2.0 2.5
-- 1.2, 1.4, 1.2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(14,x'333333333333F33F666666666666F63F333333333333F33F',1,52,x'3E00000000000000A801000000005EED');
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'3F00000000000000A801000000005EED');
INSERT INTO "kbpC_BoxProfile"("##OID","b","a","tempThick#ClassID","tempThick#OID","uniformThickness","##BaseClassOID","##Uid")
  VALUES(1,110.0,90.0,2293761,14,0,1,x'4000000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s %s',"a","b","t1","t2","t3") FROM kbpC_BoxProfile WHERE "##OID"=1
-- is: 90.0 110.0 1.2 1.4 1.2
-- after: SELECT t4 IS NULL FROM kbpC_BoxProfile WHERE "##OID"=1
-- is: 1
-- after: SELECT count(*) FROM pragma_table_info('kbpC_BoxProfile') WHERE name IN ('tempThick#ClassID','tempThick#OID')
-- is: 0
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'4100000000000000A801000000005EED');
INSERT INTO "kbpC_GeneralizedProfile"("##OID","linearBehavior","area","i11","i12","i22","j","gammaO","gammaW","##BaseClassOID","##Uid")
  VALUES(0,0,120.0,5400.0,-12.5,880.0,310.0,0.0,0.0,2,x'4200000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s',"area","i11","i12","i22","j","gammaO","gammaW") FROM kbpC_GeneralizedProfile WHERE "##OID"=0
-- is: 120.0 5400.0 -12.5 880.0 310.0 0.0 0.0
-- after: SELECT count(*) FROM pragma_table_info('kbpC_GeneralizedProfile') WHERE name IN ('linearBehavior')
-- is: 0
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'4300000000000000A801000000005EED');
INSERT INTO "kbpC_IbeamProfile"("##OID","l","h","b1","b2","t1","t2","t3","integration","##BaseClassOID","##Uid")
  VALUES(0,40.0,80.0,46.0,46.0,5.2,5.2,3.8,0,3,x'4400000000000000A801000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s',"l","h","b1","b2","t1","t2","t3") FROM kbpC_IbeamProfile WHERE "##OID"=0
-- is: 40.0 80.0 46.0 46.0 5.2 5.2 3.8
-- after: SELECT count(*) FROM pragma_table_info('kbpC_IbeamProfile') WHERE name IN ('integration')
-- is: 0
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'4500000000000000A801000000005EED');
INSERT INTO "kbpC_PipeProfile"("##OID","r","t","##BaseClassOID","##Uid")
  VALUES(0,27.5,1.5,4,x'4600000000000000A801000000005EED');
-- after: SELECT printf('%s %s',"r","t") FROM kbpC_PipeProfile WHERE "##OID"=0
-- is: 27.5 1.5
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Plastic','kmaC_Expansion','kmaC_UserMaterial','kmaC_Hyperelastic','kmaC_Viscous','kamC_Amplitude','kbpC_BoxProfile','kbpC_GeneralizedProfile','kbpC_IbeamProfile','kbpC_PipeProfile') ORDER BY ClassName
-- is: kamC_Amplitude:430 kbpC_BoxProfile:430 kbpC_GeneralizedProfile:430 kbpC_IbeamProfile:430 kbpC_PipeProfile:406 kmaC_Expansion:435 kmaC_Hyperelastic:864 kmaC_Plastic:1107 kmaC_UserMaterial:451 kmaC_Viscous:438

-- The materials themselves refer to the options that they had, and have got two empty texts.
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"plastic#ClassID","plastic#OID","expansion#ClassID","expansion#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224508:0 37224481:0 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"plastic#ClassID","plastic#OID","expansion#ClassID","expansion#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=1
-- is: 37224508:1 37224481:1 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=2
-- is: 37224508:2 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=3
-- is: 37224508:3 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"userMaterial#ClassID","userMaterial#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=4
-- is: 37224531:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=5
-- is: 37224508:4 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=6
-- is: 37224508:5 1 1 1

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'crash foam',37224449,4);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'mount rubber',37224449,7);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(2,0,'sheet DC04',37224449,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(3,0,'sheet DX56',37224449,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(4,0,'sheet H340',37224449,2);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(5,0,'sheet of 1998',37224449,5);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(6,0,'sheet of 1999',37224449,6);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(7,0,'sheet of the other mill',37224449,3);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,8,x'4700000000000000A801000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'4800000000000000A801000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: crash foam, mount rubber, sheet DC04, sheet DX56, sheet H340, sheet of 1998, sheet of 1999, sheet of the other mill

-- The amplitudes by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(8,1,'crash pulse',38010888,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(9,1,'idle',38010886,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(1,2,8,2,x'4900000000000000A801000000005EED');
INSERT INTO "kamC_ACWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,1,-1,x'4A00000000000000A801000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kamC_ACWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: crash pulse, idle

-- The profiles by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(10,2,'cross member',40108038,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(11,2,'exhaust',40108037,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(12,2,'rocker',40108039,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(13,2,'roof bow',40108034,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(14,2,'side rail',40108039,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(2,2,10,5,x'4B00000000000000A801000000005EED');
INSERT INTO "kbpC_BPCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,2,-1,x'4C00000000000000A801000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kbpC_BPCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: cross member, exhaust, rocker, roof bow, side rail
-- The fourth wall of the box never had a thickness.
-- finds: profiles['rocker']: kbp 11
