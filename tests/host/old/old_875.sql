-- A database of schema 875, written by hand. Make it with: sqlite3 old_875.nga < old_875.sql
-- An aircraft's archive: a laminate and a sheet that are damaged, in the days in which the
-- stabilization stood with the evolution and not yet with the initiation.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=875;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',875,0);
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
CREATE TABLE "kmaC_DamageStabilization"(
  "##OID" INTEGER PRIMARY KEY,
  "fiberTensileCoeff",
  "fiberCompressiveCoeff",
  "matrixTensileCoeff",
  "matrixCompressiveCoeff",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380087,'kmaC_DamageStabilization','kmaC_DamageStabilization',869,0x2380002);
CREATE TABLE "kmaC_DamageEvolution"(
  "##OID" INTEGER PRIMARY KEY,
  "type" TEXT,
  "degradation" TEXT,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "mixedModeBehavior" TEXT,
  "modeMixRatio" TEXT,
  "power",
  "softening" TEXT,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "damageStabilization#ClassID" INTEGER,
  "damageStabilization#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380086,'kmaC_DamageEvolution','kmaC_DamageEvolution',869,0x2380002);
CREATE TABLE "kmaC_DamageInitiation"(
  "##OID" INTEGER PRIMARY KEY,
  "definition" TEXT,
  "feq",
  "fnn",
  "fnt",
  "frequency" INTEGER,
  "ks",
  "numberImperfections" INTEGER,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "alpha",
  "omega",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "damageEvolution#ClassID" INTEGER,
  "damageEvolution#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380085,'kmaC_DamageInitiation','kmaC_DamageInitiation',869,0x2380002);
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

-- The laminate after Hashin. Its stabilization moves up from the evolution to the initiation. The
-- number of its class was written under a name that no table has, so the reference has a row and
-- no class: it is of the class that the field is of. A second initiation shares the evolution, and
-- so the stabilization.
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'01000000000000006B03000000005EED');
INSERT INTO "kmaC_DamageStabilization"("##OID","fiberTensileCoeff","fiberCompressiveCoeff","matrixTensileCoeff","matrixCompressiveCoeff","##BaseClassOID","##Uid")
  VALUES(0,0.001,0.001,0.005,0.0055,0,x'02000000000000006B03000000005EED');
-- 12.5, 12.5, 1, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'00000000000029400000000000002940000000000000F03F000000000000F03F',4,82,x'03000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,0,-1,x'04000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'05000000000000006B03000000005EED');
INSERT INTO "kmaC_DamageEvolution"("##OID","type","degradation","temperatureDependency","dependencies","mixedModeBehavior","modeMixRatio","power","softening","table#ClassID","table#OID","damageStabilization#ClassID","damageStabilization#OID","##BaseClassOID","##Uid")
  VALUES(0,'ENERGY','MAXIMUM',0,0,'MODE_INDEPENDENT','ENERGY',1.7976931348623157e+308,'LINEAR',37224536,0,37224583,0,1,x'06000000000000006B03000000005EED');
-- 1500, 1200, 50, 250, 70, 35
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'00000000007097400000000000C0924000000000000049400000000000406F4000000000008051400000000000804140',6,82,x'07000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,1,0,-1,x'08000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'09000000000000006B03000000005EED');
INSERT INTO "kmaC_DamageInitiation"("##OID","definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","alpha","omega","table#ClassID","table#OID","damageEvolution#ClassID","damageEvolution#OID","##BaseClassOID","##Uid")
  VALUES(0,'MSFLD',10.0,10.0,10.0,1,0.0,4,0,0,0.5,0.1,37224536,1,37224582,0,2,x'0A000000000000006B03000000005EED');
-- 70, 35, 35
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'000000000080514000000000008041400000000000804140',3,82,x'0B000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,2,0,-1,x'0C000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'0D000000000000006B03000000005EED');
INSERT INTO "kmaC_DamageInitiation"("##OID","definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","alpha","omega","table#ClassID","table#OID","damageEvolution#ClassID","damageEvolution#OID","##BaseClassOID","##Uid")
  VALUES(1,'MSFLD',10.0,10.0,10.0,1,0.0,4,0,0,0.0,0.1,37224536,2,37224582,0,3,x'0E000000000000006B03000000005EED');
-- after: SELECT printf('%s %s %s %s',"fiberTensileCoeff","fiberCompressiveCoeff","matrixTensileCoeff","matrixCompressiveCoeff") FROM kmaC_DamageStabilization WHERE "##OID"=0
-- is: 0.001 0.001 0.005 0.0055
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s:%s',"type","degradation","temperatureDependency","dependencies","mixedModeBehavior","modeMixRatio","power"=1.7976931348623157e308,"softening","table#ClassID","table#OID") FROM kmaC_DamageEvolution WHERE "##OID"=0
-- is: ENERGY MAXIMUM 0 0 MODE_INDEPENDENT ENERGY 1 LINEAR 37224536:0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_DamageEvolution') WHERE name IN ('damageStabilization#ClassID','damageStabilization#OID')
-- is: 0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s',"definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","omega","alpha","table#ClassID","table#OID","damageEvolution#ClassID","damageEvolution#OID") FROM kmaC_DamageInitiation WHERE "##OID"=0
-- is: MSFLD 10.0 10.0 10.0 1 0.0 4 0 0 0.1 0.5 37224536:1 37224582:0
-- after: SELECT ("damageStabilization#ClassID" IS NULL)||' '||"damageStabilization#OID" FROM kmaC_DamageInitiation WHERE "##OID"=0
-- is: 1 0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s',"definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","omega","alpha","table#ClassID","table#OID","damageEvolution#ClassID","damageEvolution#OID") FROM kmaC_DamageInitiation WHERE "##OID"=1
-- is: MSFLD 10.0 10.0 10.0 1 0.0 4 0 0 0.1 0.0 37224536:2 37224582:0
-- after: SELECT ("damageStabilization#ClassID" IS NULL)||' '||"damageStabilization#OID" FROM kmaC_DamageInitiation WHERE "##OID"=1
-- is: 1 0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_DamageInitiation') WHERE name IN ('damageStabilization#ClassOID')
-- is: 0

-- The sheet: its ductile damage evolves without a stabilization, its forming limit does not evolve
-- at all.
-- 0.05
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'9A9999999999A93F',1,82,x'0F000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,3,0,-1,x'10000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'11000000000000006B03000000005EED');
INSERT INTO "kmaC_DamageEvolution"("##OID","type","degradation","temperatureDependency","dependencies","mixedModeBehavior","modeMixRatio","power","softening","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,'DISPLACEMENT','MULTIPLICATIVE',1,1,'TABULAR','TRACTION',2.0,'EXPONENTIAL',37224536,3,4,x'12000000000000006B03000000005EED');
-- 0.4, 0.33, 0.001
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'9A9999999999D93F1F85EB51B81ED53FFCA9F1D24D62503F',3,82,x'13000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(4,2293761,4,0,-1,x'14000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'15000000000000006B03000000005EED');
INSERT INTO "kmaC_DamageInitiation"("##OID","definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","alpha","omega","table#ClassID","table#OID","damageEvolution#ClassID","damageEvolution#OID","##BaseClassOID","##Uid")
  VALUES(2,'MSFLD',10.0,10.0,10.0,1,0.0,4,0,0,0.0,0.1,37224536,4,37224582,1,5,x'16000000000000006B03000000005EED');
-- 0.3, -0.2; 0.25, 0.2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'333333333333D33F9A9999999999C9BF000000000000D03F9A9999999999C93F',2,82,x'17000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(5,2293761,5,0,-1,x'18000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(6,-1,x'19000000000000006B03000000005EED');
INSERT INTO "kmaC_DamageInitiation"("##OID","definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","alpha","omega","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,'FLD',8.0,10.0,10.0,5,0.3,4,0,0,0.0,0.1,37224536,5,6,x'1A000000000000006B03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s:%s',"type","degradation","temperatureDependency","dependencies","mixedModeBehavior","modeMixRatio","power","softening","table#ClassID","table#OID") FROM kmaC_DamageEvolution WHERE "##OID"=1
-- is: DISPLACEMENT MULTIPLICATIVE 1 1 TABULAR TRACTION 2.0 EXPONENTIAL 37224536:3
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s',"definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","omega","alpha","table#ClassID","table#OID","damageEvolution#ClassID","damageEvolution#OID","damageStabilization#OID" IS NULL) FROM kmaC_DamageInitiation WHERE "##OID"=2
-- is: MSFLD 10.0 10.0 10.0 1 0.0 4 0 0 0.1 0.0 37224536:4 37224582:1 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s %s',"definition","feq","fnn","fnt","frequency","ks","numberImperfections","temperatureDependency","dependencies","omega","alpha","table#ClassID","table#OID","damageEvolution#OID" IS NULL,"damageStabilization#OID" IS NULL) FROM kmaC_DamageInitiation WHERE "##OID"=3
-- is: FLD 8.0 10.0 10.0 5 0.3 4 0 0 0.1 0.0 37224536:5 1 1
-- 0.1, 0.1, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'9A9999999999B93F9A9999999999B93F000000000000F03F',3,82,x'1B000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(6,2293761,6,1,-1,x'1C000000000000006B03000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(7,-1,x'1D000000000000006B03000000005EED');
INSERT INTO "kmaC_Viscoelastic"("##OID","domain","frequency","type","preload","time","errtol","nmax","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'FREQUENCY','PRONY','ISOTROPIC','VOLUMETRIC','PRONY',0.01,13,37224536,6,7,x'1E000000000000006B03000000005EED');
-- Its coating relaxes, under a volumetric preload.
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s',"domain","frequency","type","preload","time","errtol","nmax","table#ClassID","table#OID") FROM kmaC_Viscoelastic WHERE "##OID"=0
-- is: FREQUENCY PRONY ISOTROPIC VOLUMETRIC PRONY 0.01 13 37224536:6
INSERT INTO "kmaC_Material"("##OID","quadsDamageInitiation#ClassID","quadsDamageInitiation#OID","hashinDamageInitiation#ClassID","hashinDamageInitiation#OID","##BaseClassOID","##Uid")
  VALUES(0,37224581,1,37224581,0,-1,x'1F000000000000006B03000000005EED');
INSERT INTO "kmaC_Material"("##OID","ductileDamageInitiation#ClassID","ductileDamageInitiation#OID","fldDamageInitiation#ClassID","fldDamageInitiation#OID","viscoelastic#ClassID","viscoelastic#OID","##BaseClassOID","##Uid")
  VALUES(1,37224581,2,37224581,3,37224533,0,-1,x'20000000000000006B03000000005EED');
-- after: SELECT printf('%s:%s %s:%s %s %s %s %s',"hashinDamageInitiation#ClassID","hashinDamageInitiation#OID","quadsDamageInitiation#ClassID","quadsDamageInitiation#OID","ductileDamageInitiation#OID" IS NULL,"mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224581:0 37224581:1 1 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s:%s %s %s',"ductileDamageInitiation#ClassID","ductileDamageInitiation#OID","fldDamageInitiation#ClassID","fldDamageInitiation#OID","hashinDamageInitiation#OID" IS NULL,"viscoelastic#ClassID","viscoelastic#OID","description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=1
-- is: 37224581:2 37224581:3 1 37224533:0 1 1
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Material','kmaC_DamageInitiation','kmaC_DamageEvolution','kmaC_Viscoelastic') ORDER BY ClassName
-- is: kmaC_DamageEvolution:883 kmaC_DamageInitiation:883 kmaC_Material:1106 kmaC_Viscoelastic:876

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'laminate carbon',37224449,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'sheet 2024-T3',37224449,1);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,2,x'21000000000000006B03000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'22000000000000006B03000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: laminate carbon, sheet 2024-T3
