-- A database of schema 860, written by hand. Make it with: sqlite3 old_860.nga < old_860.sql
-- A maker of mattresses and mounts, in the short time in which rubbers and foams held an effect of
-- Mullins as a sub-option. The class under that name and number today is another one, of the
-- material, and nothing of the old one goes to it.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=860;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',860,0);
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
CREATE TABLE "kmaC_MullinsEffect"(
  "##OID" INTEGER PRIMARY KEY,
  "beta",
  "m",
  "r",
  "inputSource" TEXT,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "userProperties#ClassID" INTEGER,
  "userProperties#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380082,'kmaC_MullinsEffect','kmaC_MullinsEffect',850,0x2380002);
CREATE TABLE "kmaC_UniaxialTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "smoothing" INTEGER,
  "lateralNominalStrain" INTEGER,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380051,'kmaC_UniaxialTestData','kmaC_UniaxialTestData',324,0x2380002);
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
  "mullinsEffect#ClassID" INTEGER,
  "mullinsEffect#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238002E,'kmaC_Hyperelastic','kmaC_Hyperelastic',850,0x2380002);
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
  "mullinsEffect#ClassID" INTEGER,
  "mullinsEffect#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238002F,'kmaC_Hyperfoam','kmaC_Hyperfoam',850,0x2380002);
CREATE TABLE "kmaC_Viscoelastic"(
  "##OID" INTEGER PRIMARY KEY,
  "domain" TEXT,
  "frequency" TEXT,
  "type" TEXT,
  "preload" TEXT,
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
INSERT INTO nga_Catalogue VALUES(0x2380055,'kmaC_Viscoelastic','kmaC_Viscoelastic',855,0x2380002);
CREATE TABLE "kmaC_BrittleFailure"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "failureCriteria" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380081,'kmaC_BrittleFailure','kmaC_BrittleFailure',850,0x2380002);
CREATE TABLE "kmaC_BrittleCracking"(
  "##OID" INTEGER PRIMARY KEY,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "type" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "brittleShear#ClassID" INTEGER,
  "brittleShear#OID" INTEGER,
  "brittleFailure#ClassID" INTEGER,
  "brittleFailure#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380007,'kmaC_BrittleCracking','kmaC_BrittleCracking',850,0x2380002);
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
INSERT INTO nga_Catalogue VALUES(0x2380001,'kmaC_Material','kmaC_Material',850,0x1);
CREATE TABLE "kmaC_MCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007D,'kmaC_MCWrapper','kmaC_MCWrapper',401,0x1);

-- A filled rubber that softens in its first cycles, told by constants; its user properties stay as
-- a list for nobody.
-- 1.5, 0.4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'000000000000F83F9A9999999999D93F',1,52,x'01000000000000005C03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'',0,82,x'02000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,1,0,-1,x'03000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'04000000000000005C03000000005EED');
INSERT INTO "kmaC_MullinsEffect"("##OID","beta","m","r","inputSource","temperatureDependency","dependencies","table#ClassID","table#OID","userProperties#ClassID","userProperties#OID","##BaseClassOID","##Uid")
  VALUES(0,0.1,0.5,1.2,'CONSTANTS',0,0,37224536,0,2293761,0,0,x'05000000000000005C03000000005EED');
-- 0.2, 0.1; 0.6, 0.5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'9A9999999999C93F9A9999999999B93F333333333333E33F000000000000E03F',2,82,x'06000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,2,0,-1,x'07000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'08000000000000005C03000000005EED');
INSERT INTO "kmaC_UniaxialTestData"("##OID","smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2147483647,0,0,0,37224536,1,1,x'09000000000000005C03000000005EED');
-- 1.4, 0.05, 4, -1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'666666666666F63F9A9999999999A93F0000000000001040000000000000F0BF',4,82,x'0A000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,3,0,-1,x'0B000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'0C000000000000005C03000000005EED');
INSERT INTO "kmaC_Hysteresis"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,2,2,x'0D000000000000005C03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'',0,82,x'0E000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,4,0,-1,x'0F000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'10000000000000005C03000000005EED');
INSERT INTO "kmaC_Hyperelastic"("##OID","type","moduliTimeScale","temperatureDependency","n","beta","testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","uniaxialTestData#ClassID","uniaxialTestData#OID","hysteresis#ClassID","hysteresis#OID","mullinsEffect#ClassID","mullinsEffect#OID","##BaseClassOID","##Uid")
  VALUES(0,'VAN_DER_WAALS','LONG_TERM',0,1,0.25,1,0,0,'UNIAXIAL','DEFAULT',0.0,37224536,3,37224529,0,37224543,0,37224578,0,3,x'11000000000000005C03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s %s %s:%s %s %s:%s',"type","moduliTimeScale","temperatureDependency","n","beta","testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","biaxialTestData#OID" IS NULL,"planarTestData#OID" IS NULL,"uniaxialTestData#ClassID","uniaxialTestData#OID","volumetricTestData#OID" IS NULL,"hysteresis#ClassID","hysteresis#OID") FROM kmaC_Hyperelastic WHERE "##OID"=0
-- is: VAN_DER_WAALS LONG_TERM 0 1 0.25 1 0 0 UNIAXIAL DEFAULT 0.0 37224536:3 1 1 37224529:0 1 37224543:0
-- after: SELECT hex("Target#Handle") FROM cls_List WHERE "##OID"=0
-- is: 000000000000F83F9A9999999999D93F
-- after: SELECT printf('%s %s %s %s %s:%s',"smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_UniaxialTestData WHERE "##OID"=0
-- is: 2147483647 0 0 0 37224536:1

-- A foam with such an effect, and one without. Their shared simple shear test is one row.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'',0,82,x'12000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(4,2293761,5,0,-1,x'13000000000000005C03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'',1,52,x'14000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'15000000000000005C03000000005EED');
INSERT INTO "kmaC_MullinsEffect"("##OID","beta","m","r","inputSource","temperatureDependency","dependencies","table#ClassID","table#OID","userProperties#ClassID","userProperties#OID","##BaseClassOID","##Uid")
  VALUES(1,0.05,1.0,1.1,'USER',1,1,37224536,4,2293761,6,4,x'16000000000000005C03000000005EED');
-- 0.02, 0.1, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'7B14AE47E17A943F9A9999999999B93F0000000000000000',3,82,x'17000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(5,2293761,7,0,-1,x'18000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'19000000000000005C03000000005EED');
INSERT INTO "kmaC_SimpleShearTestData"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,37224536,5,5,x'1A000000000000005C03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'',0,82,x'1B000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(6,2293761,8,0,-1,x'1C000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(6,-1,x'1D000000000000005C03000000005EED');
INSERT INTO "kmaC_Hyperfoam"("##OID","testData","poisson","n","temperatureDependency","moduli","table#ClassID","table#OID","simpleShearTestData#ClassID","simpleShearTestData#OID","mullinsEffect#ClassID","mullinsEffect#OID","##BaseClassOID","##Uid")
  VALUES(0,1,1.7976931348623157e+308,3,0,'LONG_TERM',37224536,6,37224520,0,37224578,1,6,x'1E000000000000005C03000000005EED');
-- 0.02, 9, 0, 30
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(9,x'7B14AE47E17A943F000000000000224000000000000000000000000000003E40',4,82,x'1F000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(7,2293761,9,0,-1,x'20000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(7,-1,x'21000000000000005C03000000005EED');
INSERT INTO "kmaC_Hyperfoam"("##OID","testData","poisson","n","temperatureDependency","moduli","table#ClassID","table#OID","simpleShearTestData#ClassID","simpleShearTestData#OID","##BaseClassOID","##Uid")
  VALUES(1,0,0.0,1,1,'INSTANTANEOUS',37224536,7,37224520,0,7,x'22000000000000005C03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s %s %s %s:%s %s',"testData","poisson"=1.7976931348623157e308,"n","temperatureDependency","moduli","table#ClassID","table#OID","biaxialTestData#OID" IS NULL,"volumetricTestData#OID" IS NULL,"planarTestData#OID" IS NULL,"simpleShearTestData#ClassID","simpleShearTestData#OID","uniaxialTestData#OID" IS NULL) FROM kmaC_Hyperfoam WHERE "##OID"=0
-- is: 1 1 3 0 LONG_TERM 37224536:6 1 1 1 37224520:0 1
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s',"testData","poisson","n","temperatureDependency","moduli","table#ClassID","table#OID","simpleShearTestData#ClassID","simpleShearTestData#OID","uniaxialTestData#OID" IS NULL) FROM kmaC_Hyperfoam WHERE "##OID"=1
-- is: 0 0.0 1 1 INSTANTANEOUS 37224536:7 37224520:0 1
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Hyperelastic') WHERE name IN ('mullinsEffect#ClassID','mullinsEffect#OID')
-- is: 0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Hyperfoam') WHERE name IN ('mullinsEffect#ClassID','mullinsEffect#OID')
-- is: 0
-- after: SELECT count(*) FROM nga_Catalogue WHERE ClassName IN ('kmaC_MullinsEffect')
-- is: 0

-- The glue between them, a traction that relaxes: type and preload were chosen and stay; the empty
-- volumetric table comes. And a sealing compound with a place for a failure of its cracks.
-- 0.2, 0, 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(10,x'9A9999999999C93F00000000000000000000000000001440',3,82,x'23000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(8,2293761,10,1,-1,x'24000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(8,-1,x'25000000000000005C03000000005EED');
INSERT INTO "kmaC_Viscoelastic"("##OID","domain","frequency","type","preload","time","errtol","nmax","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'TIME','TABULAR','TRACTION','UNIAXIAL','PRONY',0.01,13,37224536,8,8,x'26000000000000005C03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s %s %s %s %s',"domain","frequency","type","preload","time","errtol","nmax","table#ClassID","table#OID","combinedTestData#OID" IS NULL,"shearTestData#OID" IS NULL,"trs#OID" IS NULL,"volumetricTestData#OID" IS NULL) FROM kmaC_Viscoelastic WHERE "##OID"=0
-- is: TIME TABULAR TRACTION UNIAXIAL PRONY 0.01 13 37224536:8 1 1 1 1
-- after: SELECT t.allowEmptyFirstRow||' '||length(l."Target#Handle") FROM kmaC_Viscoelastic v JOIN kmaC_MaterialTable t ON t."##OID"=v."volumetricTable#OID" JOIN cls_List l ON l."##OID"=t."table#OID"
-- is: 1 0
-- 0.003
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'FA7E6ABC7493683F',1,82,x'27000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(9,2293761,11,0,-1,x'28000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(9,-1,x'29000000000000005C03000000005EED');
INSERT INTO "kmaC_BrittleFailure"("##OID","temperatureDependency","dependencies","failureCriteria","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'BIDIRECTIONAL',37224536,9,9,x'2A000000000000005C03000000005EED');
-- 3, 0; 0, 0.01
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'0000000000000840000000000000000000000000000000007B14AE47E17A843F',2,82,x'2B000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(10,2293761,12,0,-1,x'2C000000000000005C03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(10,-1,x'2D000000000000005C03000000005EED');
INSERT INTO "kmaC_BrittleCracking"("##OID","temperatureDependency","dependencies","type","table#ClassID","table#OID","brittleFailure#ClassID","brittleFailure#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'GFI',37224536,10,37224577,0,10,x'2E000000000000005C03000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s %s:%s',"temperatureDependency","dependencies","type","table#ClassID","table#OID","brittleShear#OID" IS NULL,"brittleFailure#ClassID","brittleFailure#OID") FROM kmaC_BrittleCracking WHERE "##OID"=0
-- is: 0 0 GFI 37224536:10 1 37224577:0
INSERT INTO "kmaC_Material"("##OID","hyperelastic#ClassID","hyperelastic#OID","##BaseClassOID","##Uid")
  VALUES(0,37224494,0,-1,x'2F000000000000005C03000000005EED');
INSERT INTO "kmaC_Material"("##OID","hyperfoam#ClassID","hyperfoam#OID","##BaseClassOID","##Uid")
  VALUES(1,37224495,0,-1,x'30000000000000005C03000000005EED');
INSERT INTO "kmaC_Material"("##OID","hyperfoam#ClassID","hyperfoam#OID","##BaseClassOID","##Uid")
  VALUES(2,37224495,1,-1,x'31000000000000005C03000000005EED');
INSERT INTO "kmaC_Material"("##OID","viscoelastic#ClassID","viscoelastic#OID","##BaseClassOID","##Uid")
  VALUES(3,37224533,0,-1,x'32000000000000005C03000000005EED');
INSERT INTO "kmaC_Material"("##OID","brittleCracking#ClassID","brittleCracking#OID","##BaseClassOID","##Uid")
  VALUES(4,37224455,0,-1,x'33000000000000005C03000000005EED');
-- after: SELECT printf('%s:%s %s %s %s',"hyperelastic#ClassID","hyperelastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224494:0 1 1 1
-- after: SELECT printf('%s:%s %s',"hyperfoam#ClassID","hyperfoam#OID","mullinsEffect#OID" IS NULL) FROM kmaC_Material WHERE "##OID"=1
-- is: 37224495:0 1
-- after: SELECT printf('%s:%s %s',"viscoelastic#ClassID","viscoelastic#OID","elastic#OID" IS NULL) FROM kmaC_Material WHERE "##OID"=3
-- is: 37224533:0 1
-- Cracking was back in the material by then, so this one keeps it.
-- after: SELECT printf('%s:%s %s',"brittleCracking#ClassID","brittleCracking#OID","viscoelastic#OID" IS NULL) FROM kmaC_Material WHERE "##OID"=4
-- is: 37224455:0 1
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Material','kmaC_Hyperelastic','kmaC_Hyperfoam','kmaC_Viscoelastic','kmaC_BrittleCracking') ORDER BY ClassName
-- is: kmaC_BrittleCracking:850 kmaC_Hyperelastic:864 kmaC_Hyperfoam:864 kmaC_Material:1106 kmaC_Viscoelastic:876

-- The materials themselves refer to the options that they had, and have got two empty texts.
-- after: SELECT printf('%s:%s %s %s %s',"hyperfoam#ClassID","hyperfoam#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=2
-- is: 37224495:1 1 1 1

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'filled rubber',37224449,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'glue',37224449,3);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(2,0,'mattress firm',37224449,2);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(3,0,'mattress soft',37224449,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(4,0,'sealing compound',37224449,4);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,5,x'34000000000000005C03000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'35000000000000005C03000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: filled rubber, glue, mattress firm, mattress soft, sealing compound
