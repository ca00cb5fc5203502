-- A database of schema 324, written by hand. Make it with: sqlite3 old_324.nga < old_324.sql
-- An archive of rubber tests, from the days in which tests learned of smoothing and of lateral
-- strain.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=324;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',324,0);
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
CREATE TABLE "kmaC_VolumetricTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "volinf",
  "lateralNominalStrain" INTEGER,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380057,'kmaC_VolumetricTestData','kmaC_VolumetricTestData',324,0x2380002);
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
  "deviatoricResponse" TEXT,
  "volumetricResponse" TEXT,
  "poissonRatio",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238002E,'kmaC_Hyperelastic','kmaC_Hyperelastic',324,0x2380002);
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
CREATE TABLE "kmaC_AnnealTemperature"(
  "##OID" INTEGER PRIMARY KEY,
  "dependencies" INTEGER,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380071,'kmaC_AnnealTemperature','kmaC_AnnealTemperature',307,0x2380002);
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
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440002,'kamC_Amplitude','kamC_Amplitude',208,0x1);
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

-- A tyre compound fitted to a volumetric test that measured its lateral strain. The choice of the
-- volumetric response was overwritten when the order of the fields changed, whatever had been
-- chosen; the deviatoric one and the Poisson's ratio stay. The flag of lateral strain went to the
-- other tests and left the volumetric one.
-- 12, 0.985, 20; 48, 0.951, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'000000000000284085EB51B81E85EF3F000000000000344000000000000048403BDF4F8D976EEE3F0000000000003440',3,82,x'01000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,0,-1,x'02000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'03000000000000004401000000005EED');
INSERT INTO "kmaC_VolumetricTestData"("##OID","volinf","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,0.88,1,1,0,37224536,0,0,x'04000000000000004401000000005EED');
-- 0.2, 0.1, -0.05; 0.45, 0.3, -0.13
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'9A9999999999C93F9A9999999999B93F9A9999999999A9BFCDCCCCCCCCCCDC3F333333333333D33FA4703D0AD7A3C0BF',3,82,x'05000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(1,2293761,1,0,-1,x'06000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'07000000000000004401000000005EED');
INSERT INTO "kmaC_UniaxialTestData"("##OID","smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,5,1,0,0,37224536,1,1,x'08000000000000004401000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'',0,82,x'09000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(2,2293761,2,0,-1,x'0A000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'0B000000000000004401000000005EED');
INSERT INTO "kmaC_Hyperelastic"("##OID","temperatureDependency","n","type","beta","moduliTimeScale","properties","compressible","testData","table#ClassID","table#OID","uniaxialTestData#ClassID","uniaxialTestData#OID","volumetricTestData#ClassID","volumetricTestData#OID","deviatoricResponse","volumetricResponse","poissonRatio","##BaseClassOID","##Uid")
  VALUES(0,1,1,'MARLOW',1.7976931348623157e+308,'LONG_TERM',0,1,1,37224536,2,37224529,0,37224535,0,'BIAXIAL','VOLUMETRIC_DATA',0.475,2,x'0C000000000000004401000000005EED');
-- after: SELECT printf('%s %s %s %s %s:%s',"volinf","smoothing","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_VolumetricTestData WHERE "##OID"=0
-- is: 0.88 2147483647 1 0 37224536:0
-- after: SELECT count(*) FROM pragma_table_info('kmaC_VolumetricTestData') WHERE name IN ('lateralNominalStrain')
-- is: 0
-- after: SELECT printf('%s %s %s %s %s:%s',"smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_UniaxialTestData WHERE "##OID"=0
-- is: 5 1 0 0 37224536:1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s %s %s:%s %s:%s %s',"type","moduliTimeScale","temperatureDependency","n","beta"=1.7976931348623157e308,"testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","biaxialTestData#OID" IS NULL,"planarTestData#OID" IS NULL,"uniaxialTestData#ClassID","uniaxialTestData#OID","volumetricTestData#ClassID","volumetricTestData#OID","hysteresis#OID" IS NULL) FROM kmaC_Hyperelastic WHERE "##OID"=0
-- is: MARLOW LONG_TERM 1 1 1 1 1 0 BIAXIAL DEFAULT 0.475 37224536:2 1 1 37224529:0 37224535:0 1
INSERT INTO "kmaC_Material"("##OID","hyperelastic#ClassID","hyperelastic#OID","##BaseClassOID","##Uid")
  VALUES(0,37224494,0,-1,x'0D000000000000004401000000005EED');
-- after: SELECT printf('%s:%s %s %s %s',"hyperelastic#ClassID","hyperelastic#OID","hyperfoam#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224494:0 1 1 1

-- A spring steel that is annealed. Its anneal temperature had no flag at the time; it is given one
-- and loses it, and the dependency on a field stays.
-- 520, 1; 560, 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'0000000000408040000000000000F03F00000000008081400000000000000040',2,82,x'0E000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(3,2293761,3,0,-1,x'0F000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'10000000000000004401000000005EED');
INSERT INTO "kmaC_AnnealTemperature"("##OID","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,37224536,3,3,x'11000000000000004401000000005EED');
-- 900, 0; 1100, 0.03
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'0000000000208C4000000000000000000000000000309140B81E85EB51B89E3F',2,82,x'12000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid")
  VALUES(4,2293761,4,0,-1,x'13000000000000004401000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'14000000000000004401000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","annealTemperature#ClassID","annealTemperature#OID","##BaseClassOID","##Uid")
  VALUES(0,0,0,'COMBINED',0,'HALF_CYCLE',37224536,4,37224561,0,4,x'15000000000000004401000000005EED');
-- after: SELECT printf('%s %s:%s',"dependencies","table#ClassID","table#OID") FROM kmaC_AnnealTemperature WHERE "##OID"=0
-- is: 1 37224536:3
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s %s:%s',"hardening","dataType","rate","strainRangeDependency","numBackstresses","temperatureDependency","dependencies","table#ClassID","table#OID","annealTemperature#ClassID","annealTemperature#OID") FROM kmaC_Plastic WHERE "##OID"=0
-- is: COMBINED HALF_CYCLE 0 0 1 0 0 37224536:4 37224561:0
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 2 0000000000208C4000000000000000000000000000309140B81E85EB51B89E3F
INSERT INTO "kmaC_Material"("##OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid")
  VALUES(1,37224508,0,-1,x'16000000000000004401000000005EED');
-- after: SELECT printf('%s:%s %s',"plastic#ClassID","plastic#OID","hyperelastic#OID" IS NULL) FROM kmaC_Material WHERE "##OID"=1
-- is: 37224508:0 1

-- The pull of the test machine, in equal steps.
-- 0, 0.5, 1, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'0000000000000000000000000000E03F000000000000F03F000000000000F03F',1,52,x'17000000000000004401000000005EED');
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'0000000000000040',1,52,x'18000000000000004401000000005EED');
INSERT INTO "kamC_BaselineCorrection"("##OID","intervals#ClassID","intervals#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,6,-1,x'19000000000000004401000000005EED');
INSERT INTO "kamC_Amplitude"("##OID","definition","time","##BaseClassOID","##Uid")
  VALUES(0,'EQUALLY SPACED','STEP',-1,x'1A000000000000004401000000005EED');
INSERT INTO "kamC_EquallySpaced"("##OID","smooth","fixedInterval","begin","table#ClassID","table#OID","baselineCorrection#ClassID","baselineCorrection#OID","##BaseClassOID","##Uid")
  VALUES(0,0.1,0.5,0.0,2293761,5,38010881,0,0,x'1B000000000000004401000000005EED');
-- after: SELECT printf('%s %s %s %s:%s %s:%s',"fixedInterval","begin","smooth","data#ClassID","data#OID","baselineCorrection#ClassID","baselineCorrection#OID") FROM kamC_EquallySpaced WHERE "##OID"=0
-- is: 0.5 0.0 0.1 2293761:5 38010881:0
-- after: SELECT timeSpan FROM kamC_Amplitude
-- is: STEP
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_VolumetricTestData','kmaC_UniaxialTestData','kmaC_Hyperelastic','kmaC_AnnealTemperature','kmaC_Material') ORDER BY ClassName
-- is: kmaC_AnnealTemperature:813 kmaC_Hyperelastic:864 kmaC_Material:1106 kmaC_UniaxialTestData:324 kmaC_VolumetricTestData:325

-- The materials by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,'spring steel',37224449,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,'tyre compound',37224449,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,2,0,2,x'1C000000000000004401000000005EED');
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'1D000000000000004401000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kmaC_MCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: spring steel, tyre compound

-- The amplitudes by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(2,1,'pull',38010884,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(1,2,2,1,x'1E000000000000004401000000005EED');
INSERT INTO "kamC_ACWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,1,-1,x'1F000000000000004401000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kamC_ACWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: pull
