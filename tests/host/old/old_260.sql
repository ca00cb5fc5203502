-- A database of schema 260, written by hand. Make it with: sqlite3 old_260.nga < old_260.sql
-- A small archive from the time when materials and amplitudes had been rewritten once and nothing
-- else had.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=260;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',260,0);
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
INSERT INTO nga_Catalogue VALUES(0x2380001,'kmaC_Material','kmaC_Material',212,0x1);
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
CREATE TABLE "kmaC_Damping"(
  "##OID" INTEGER PRIMARY KEY,
  "alpha",
  "beta",
  "composite",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380015,'kmaC_Damping','kmaC_Damping',203,0x2380002);
CREATE TABLE "kamC_Amplitude"(
  "##OID" INTEGER PRIMARY KEY,
  "definition" TEXT,
  "time" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440002,'kamC_Amplitude','kamC_Amplitude',208,0x1);
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
CREATE TABLE "kamC_SmoothStep"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x244000B,'kamC_SmoothStep','kamC_SmoothStep',203,0x2440002);
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

-- Two grades of one aluminium share a row for their elasticity. References to one object are
-- references to one row, and stay so: whoever edits one grade afterwards edits a copy.
-- 70000, 0.33
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'000000000017F1401F85EB51B81ED53F',2,82,x'01000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,0,-1,x'02000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'03000000000000000401000000005EED');
INSERT INTO "kmaC_Elastic"("##OID","type","noCompression","noTension","temperatureDependency","dependencies","moduli","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'ISOTROPIC',0,0,0,0,'LONG_TERM',37224536,0,0,x'04000000000000000401000000005EED');
-- 2.7e-09
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'1608CEDF5C31273E',1,82,x'05000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,1,1,-1,x'06000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'07000000000000000401000000005EED');
INSERT INTO "kmaC_Density"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,37224536,1,1,x'08000000000000000401000000005EED');
-- 35, 0; 80, 0.2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'0000000000804140000000000000000000000000000054409A9999999999C93F',2,82,x'09000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,2,0,-1,x'0A000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'0B000000000000000401000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'KINEMATIC',0,'HALF_CYCLE',37224536,2,2,x'0C000000000000000401000000005EED');
INSERT INTO "kmaC_Material"("##OID","density#ClassID","density#OID","elastic#ClassID","elastic#OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(0,37224471,0,37224478,0,37224508,0,-1,x'0D000000000000000401000000005EED');
INSERT INTO "kmaC_Material"("##OID","density#ClassID","density#OID","elastic#ClassID","elastic#OID","##BaseClassOID","##Uid")
  VALUES(1,37224471,0,37224478,0,-1,x'0E000000000000000401000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s:%s %s %s',"type","noCompression","noTension","temperatureDependency","dependencies","moduli","table#ClassID","table#OID","failStress#OID" IS NULL,"failStrain#OID" IS NULL) FROM kmaC_Elastic WHERE "##OID"=0
-- is: ISOTROPIC 0 0 0 0 LONG_TERM 37224536:0 1 1
-- after: SELECT printf('%s:%s %s:%s %s:%s %s %s %s %s %s',"elastic#ClassID","elastic#OID","density#ClassID","density#OID","plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"fluidLeakoff#OID" IS NULL,"ductileDamageInitiation#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224478:0 37224471:0 37224508:0 1 1 1 1 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"elastic#ClassID","elastic#OID","density#ClassID","density#OID","plastic#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=1
-- is: 37224478:0 37224471:0 1 1 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s',"hardening","rate","dataType","strainRangeDependency","numBackstresses","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Plastic WHERE "##OID"=0
-- is: KINEMATIC 0 HALF_CYCLE 0 1 0 0 37224536:2
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 2 0000000000804140000000000000000000000000000054409A9999999999C93F

-- A brittle cast iron that cracks and burns: its cracking and the bulk modulus of the gas in it
-- were options then. The material keeps what a material still has.
-- 180, 0; 0, 0.001
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'000000000080664000000000000000000000000000000000FCA9F1D24D62503F',2,82,x'0F000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,3,0,-1,x'10000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'11000000000000000401000000005EED');
INSERT INTO "kmaC_BrittleCracking"("##OID","temperatureDependency","dependencies","type","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'DISPLACEMENT',37224536,3,3,x'12000000000000000401000000005EED');
-- 0.142, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'931804560E2DC23F0000000000003440',2,82,x'13000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(4,2293761,4,0,-1,x'14000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'15000000000000000401000000005EED');
INSERT INTO "kmaC_FluidBulkModulus"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,0,37224536,4,4,x'16000000000000000401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'17000000000000000401000000005EED');
INSERT INTO "kmaC_Damping"("##OID","alpha","beta","composite","##BaseClassOID","##Uid")
  VALUES(0,0.0,1e-05,0.0,5,x'18000000000000000401000000005EED');
INSERT INTO "kmaC_Material"("##OID","brittleCracking#ClassID","brittleCracking#OID","damping#ClassID","damping#OID","fluidBulkModulus#ClassID","fluidBulkModulus#OID","##BaseClassOID","##Uid")
  VALUES(2,37224455,0,37224469,0,37224487,0,-1,x'19000000000000000401000000005EED');
-- after: SELECT printf('%s %s:%s %s',"brittleCracking#OID" IS NULL,"damping#ClassID","damping#OID","elastic#OID" IS NULL) FROM kmaC_Material WHERE "##OID"=2
-- is: 1 37224469:0 1
-- after: SELECT printf('%s %s %s %s:%s %s %s',"type","temperatureDependency","dependencies","table#ClassID","table#OID","brittleShear#OID" IS NULL,"brittleFailure#OID" IS NULL) FROM kmaC_BrittleCracking WHERE "##OID"=0
-- is: DISPLACEMENT 0 0 37224536:3 1 1
-- after: SELECT printf('%s %s %s %s',"alpha","beta","composite","structural") FROM kmaC_Damping WHERE "##OID"=0
-- is: 0.0 1.0e-05 0.0 0.0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_Material') WHERE name IN ('fluidBulkModulus#ClassID','fluidBulkModulus#OID')
-- is: 0

-- Histories without the literal of their values. One never had its time filled in: the class's
-- default stands there, since a history without a time cannot be read.
-- 0, 0; 1, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'00000000000000000000000000000000000000000000F03F000000000000F03F',2,82,x'1A000000000000000401000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","time","##BaseClassOID","##Uid")
  VALUES(0,'TABULAR','TOTAL',-1,x'1B000000000000000401000000005EED');
INSERT INTO "kamC_Tabular"("##OID","smooth","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1.7976931348623157e+308,2293761,5,0,x'1C000000000000000401000000005EED');
-- after: SELECT printf('%s %s:%s %s',"smooth"=1.7976931348623157e308,"data#ClassID","data#OID","baselineCorrection#OID" IS NULL) FROM kamC_Tabular WHERE "##OID"=0
-- is: 1 2293761:5 1
-- 0, 1; 2, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'0000000000000000000000000000F03F00000000000000400000000000000000',2,82,x'1D000000000000000401000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","time","##BaseClassOID","##Uid")
  VALUES(1,'SMOOTH STEP',NULL,-1,x'1E000000000000000401000000005EED');
INSERT INTO "kamC_SmoothStep"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,6,1,x'1F000000000000000401000000005EED');
-- after: SELECT printf('%s:%s',"data#ClassID","data#OID") FROM kamC_SmoothStep WHERE "##OID"=0
-- is: 2293761:6
-- after: SELECT timeSpan FROM kamC_Amplitude ORDER BY "##OID"
-- is: TOTAL STEP
-- after: SELECT count(*) FROM pragma_table_info('kamC_Amplitude') WHERE name IN ('definition','time')
-- is: 0
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Material','kamC_Amplitude','kamC_Tabular','kamC_SmoothStep') ORDER BY ClassName
-- is: kamC_Amplitude:430 kamC_SmoothStep:424 kamC_Tabular:424 kmaC_Material:1106

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'aluminium annealed',37224449,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'aluminium as cast',37224449,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(2,0,'grey iron',37224449,2);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,3,x'20000000000000000401000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'21000000000000000401000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: aluminium annealed, aluminium as cast, grey iron

-- The amplitudes by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(3,1,'load off',38010891,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(4,1,'load on',38010888,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(1,2,3,2,x'22000000000000000401000000005EED');
INSERT INTO "kamC_ACWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,1,-1,x'23000000000000000401000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kamC_ACWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: load off, load on
