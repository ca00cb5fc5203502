-- A database of schema 203, written by hand. Make it with: sqlite3 old_203.nga < old_203.sql
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=203;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',203,0);
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
CREATE TABLE "kmaC_UniaxialTestData"(
  "##OID" INTEGER PRIMARY KEY,
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2380051,'kmaC_UniaxialTestData','kmaC_UniaxialTestData',203,0x2380002);
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
CREATE TABLE "kmaC_MCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x238007D,'kmaC_MCWrapper','kmaC_MCWrapper',203,0x1);
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
CREATE TABLE "kamC_ACWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2440017,'kamC_ACWrapper','kamC_ACWrapper',203,0x1);
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
CREATE TABLE "kbpC_BPCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2640014,'kbpC_BPCWrapper','kbpC_BPCWrapper',203,0x1);

-- A steel with combined hardening: yield stress, modulus, gamma, temperature.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(0,x'0000000000406F40000000000082D4400000000000005E400000000000003440000000000080664000000000004CCD4000000000008056400000000000007940',4,82,x'01000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid") VALUES(0,2293761,0,0,-1,x'02000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid") VALUES(0,-1,x'03000000000000000000000000005EED');
INSERT INTO "kmaC_Plastic"("##OID","temperatureDependency","dependencies","hardening","rate","dataType","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,1,0,'COMBINED',0,'PARAMETERS',37224536,0,0,x'04000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(1,x'54E41071732AE93E0000000000003440',2,82,x'05000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid") VALUES(1,2293761,1,0,-1,x'06000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid") VALUES(1,-1,x'07000000000000000000000000005EED');
INSERT INTO "kmaC_Expansion"("##OID","temperatureDependency","dependencies","type","user","zero","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,1,0,'USER',1,20.0,37224536,1,1,x'08000000000000000000000000005EED');
INSERT INTO "kmaC_Material"("##OID","expansion#ClassID","expansion#OID","plastic#ClassID","plastic#OID","##BaseClassOID","##Uid") VALUES(0,37224481,0,37224508,0,-1,x'09000000000000000000000000005EED');

-- A clay with a cap that creeps by cohesion.
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid") VALUES(2,-1,x'0A000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(2,x'48AFBC9AF2D75A3E9A9999999999F13F000000000000E0BF',3,82,x'0B000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid") VALUES(2,2293761,2,0,-1,x'0C000000000000000000000000005EED');
INSERT INTO "kmaC_CapCreep"("##OID","law","mechanism","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,'STRAIN','COHESION',0,0,37224536,2,2,x'0D000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid") VALUES(3,-1,x'0E000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(3,x'9A9999999999C93F0000000000003E409A9999999999D93FFCA9F1D24D62503F7B14AE47E17A943F000000000000F03F',6,82,x'0F000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid") VALUES(3,2293761,3,0,-1,x'10000000000000000000000000005EED');
INSERT INTO "kmaC_CapPlasticity"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","capCreep#ClassID","capCreep#OID","##BaseClassOID","##Uid") VALUES(0,0,0,37224536,3,37224458,0,3,x'11000000000000000000000000005EED');
INSERT INTO "kmaC_Material"("##OID","capPlasticity#ClassID","capPlasticity#OID","##BaseClassOID","##Uid") VALUES(1,37224460,0,-1,x'12000000000000000000000000005EED');

-- A rubber fitted to a uniaxial test.
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid") VALUES(4,-1,x'13000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(4,x'9A9999999999B93F9A9999999999A93F333333333333D33F9A9999999999C93F333333333333E33F000000000000E03F',2,82,x'14000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid") VALUES(4,2293761,4,0,-1,x'15000000000000000000000000005EED');
INSERT INTO "kmaC_UniaxialTestData"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,37224536,4,4,x'16000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialOption"("##OID","##BaseClassOID","##Uid") VALUES(5,-1,x'17000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(5,x'',0,82,x'18000000000000000000000000005EED');
INSERT INTO "kmaC_MaterialTable"("##OID","table#ClassID","table#OID","allowEmptyFirstRow","##BaseClassOID","##Uid") VALUES(5,2293761,5,0,-1,x'19000000000000000000000000005EED');
INSERT INTO "kmaC_Hyperelastic"("##OID","temperatureDependency","n","type","beta","moduliTimeScale","properties","compressible","testData","table#ClassID","table#OID","uniaxialTestData#ClassID","uniaxialTestData#OID","##BaseClassOID","##Uid") VALUES(0,0,3,'OGDEN',1.7976931348623157e+308,'LONG_TERM',0,0,1,37224536,5,37224529,0,5,x'1A000000000000000000000000005EED');
INSERT INTO "kmaC_Material"("##OID","hyperelastic#ClassID","hyperelastic#OID","##BaseClassOID","##Uid") VALUES(2,37224494,0,-1,x'1B000000000000000000000000005EED');
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(0,0,'London clay',37224449,1);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(1,0,'rubber 60 Shore',37224449,2);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(2,0,'steel S355',37224449,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","##Uid") VALUES(0,2,x'1C000000000000000000000000005EED');
UPDATE cls_Map SET "#First"=0,"#Count"=3 WHERE "##OID"=0;
INSERT INTO "kmaC_MCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid") VALUES(0,2293762,0,-1,x'1D000000000000000000000000005EED');

-- A load that rises over a minute.
INSERT INTO "kamC_Amplitude"("##OID","definition","time","value","##BaseClassOID","##Uid") VALUES(0,'TABULAR','TOTAL','RELATIVE',-1,x'1E000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(6,x'000000000000000000000000000000000000000000004E40000000000000F03F',2,82,x'1F000000000000000000000000005EED');
INSERT INTO "kamC_Tabular"("##OID","smooth","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,0.25,2293761,6,0,x'20000000000000000000000000005EED');
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(3,1,'ramp',38010888,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","##Uid") VALUES(1,2,x'21000000000000000000000000005EED');
UPDATE cls_Map SET "#First"=3,"#Count"=1 WHERE "##OID"=1;
INSERT INTO "kamC_ACWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid") VALUES(0,2293762,1,-1,x'22000000000000000000000000005EED');

-- A box girder with four thicknesses, and a folded strip of two segments.
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid") VALUES(0,-1,x'23000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(7,x'9A9999999999E93F000000000000F03F9A9999999999E93F333333333333F33F',1,52,x'24000000000000000000000000005EED');
INSERT INTO "kbpC_BoxProfile"("##OID","height","width","tempThick#ClassID","tempThick#OID","uniform","##BaseClassOID","##Uid") VALUES(0,20.0,10.0,2293761,7,0,0,x'25000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(8,x'0000000000000000000000000000F03F0000000000000040',1,52,x'26000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(9,x'000000000000000000000000000000000000000000000000',1,52,x'27000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(10,x'000000000000E03F333333333333E33F',1,52,x'28000000000000000000000000005EED');
INSERT INTO "kbpC_BeamProfile"("##OID","##BaseClassOID","##Uid") VALUES(1,-1,x'29000000000000000000000000005EED');
INSERT INTO "kbpC_ArbitraryProfile"("##OID","x#ClassID","x#OID","y#ClassID","y#OID","t#ClassID","t#OID","numSegments","##BaseClassOID","##Uid") VALUES(0,2293761,8,2293761,9,2293761,10,2,1,x'2A000000000000000000000000005EED');
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(4,2,'girder',40108039,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(5,2,'strip',40108041,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","##Uid") VALUES(2,2,x'2B000000000000000000000000005EED');
UPDATE cls_Map SET "#First"=4,"#Count"=2 WHERE "##OID"=2;
INSERT INTO "kbpC_BPCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid") VALUES(0,2293762,2,-1,x'2C000000000000000000000000005EED');

-- What the upgraded file has to answer: what stands behind "after:" is asked of it, what has to
-- come out stands behind "is:".
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s %s %s',"hardening","rate","dataType","strainRangeDependency","numBackstresses","temperatureDependency","dependencies","table#ClassID","table#OID","potential#OID" IS NULL,"annealTemperature#OID" IS NULL) FROM kmaC_Plastic WHERE "##OID"=0
-- is: COMBINED 0 PARAMETERS 0 1 1 0 37224536:0 1 1
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kmaC_Plastic o JOIN kmaC_MaterialTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0
-- is: 4 0000000000406F40000000000082D4400000000000005E400000000000003440000000000080664000000000004CCD400000000000005E400000000000007940
-- after: SELECT printf('%s %s %s %s %s %s:%s',"type","userSubroutine","zero","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_Expansion WHERE "##OID"=0
-- is: ISOTROPIC 1 20.0 1 0 37224536:1
-- after: SELECT printf('%s %s %s:%s %s:%s %s %s',"temperatureDependency","dependencies","table#ClassID","table#OID","capCreepCohesion#ClassID","capCreepCohesion#OID","capCreepConsolidation#OID" IS NULL,"capHardening#OID" IS NULL) FROM kmaC_CapPlasticity WHERE "##OID"=0
-- is: 0 0 37224536:3 37224574:0 1 1
-- after: SELECT printf('%s %s %s %s:%s',"law","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_CapCreepCohesion WHERE "##OID"=0
-- is: STRAIN 0 0 37224536:2
-- after: SELECT count(*) FROM nga_Catalogue WHERE ClassName IN ('kmaC_CapCreep','kmaC_CapCreepConsolidation')
-- is: 0
-- after: SELECT printf('%s %s %s %s %s:%s',"smoothing","lateralNominalStrain","temperatureDependency","dependencies","table#ClassID","table#OID") FROM kmaC_UniaxialTestData WHERE "##OID"=0
-- is: 2147483647 0 0 0 37224536:4
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s',"type","moduliTimeScale","temperatureDependency","n","beta"=1.7976931348623157e308,"testData","compressible","properties","deviatoricResponse","volumetricResponse","poissonRatio","table#ClassID","table#OID","uniaxialTestData#ClassID","uniaxialTestData#OID","hysteresis#OID" IS NULL) FROM kmaC_Hyperelastic WHERE "##OID"=0
-- is: OGDEN LONG_TERM 0 3 1 1 0 0 UNIAXIAL DEFAULT 0.0 37224536:5 37224529:0 1
-- after: SELECT printf('%s:%s %s:%s %s %s %s',"expansion#ClassID","expansion#OID","plastic#ClassID","plastic#OID","mullinsEffect#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=0
-- is: 37224481:0 37224508:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"capPlasticity#ClassID","capPlasticity#OID","plastic#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=1
-- is: 37224460:0 1 1 1
-- after: SELECT printf('%s:%s %s %s %s',"hyperelastic#ClassID","hyperelastic#OID","plastic#OID" IS NULL,"description"='',"materialIdentifier"='') FROM kmaC_Material WHERE "##OID"=2
-- is: 37224494:0 1 1 1
-- after: SELECT timeSpan FROM kamC_Amplitude
-- is: TOTAL
-- after: SELECT count(*) FROM pragma_table_info('kamC_Amplitude') WHERE name IN ('definition','time','value')
-- is: 0
-- after: SELECT printf('%s %s:%s %s',"smooth","data#ClassID","data#OID","baselineCorrection#OID" IS NULL) FROM kamC_Tabular WHERE "##OID"=0
-- is: 0.25 2293761:6 1
-- after: SELECT printf('%s %s %s %s %s %s %s',"a","b","uniformThickness","t1","t2","t3","t4") FROM kbpC_BoxProfile WHERE "##OID"=0
-- is: 10.0 20.0 0 0.8 1.0 0.8 1.2
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kbpC_ArbitraryProfile p JOIN cls_List l ON l."##OID"=p."table#OID"
-- is: 3 000000000000000000000000000000000000000000000000000000000000F03F0000000000000000000000000000E03F00000000000000400000000000000000333333333333E33F
-- after: SELECT count(*) FROM pragma_table_info('kbpC_ArbitraryProfile') WHERE name IN ('numSegments','x#OID','y#OID','t#OID')
-- is: 0
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kmaC_Material','kmaC_Plastic','kmaC_CapPlasticity','kmaC_Expansion','kmaC_Hyperelastic','kmaC_UniaxialTestData','kamC_Amplitude','kamC_Tabular','kbpC_BoxProfile','kbpC_ArbitraryProfile') ORDER BY ClassName
-- is: kamC_Amplitude:430 kamC_Tabular:424 kbpC_ArbitraryProfile:505 kbpC_BoxProfile:430 kmaC_CapPlasticity:452 kmaC_Expansion:435 kmaC_Hyperelastic:864 kmaC_Material:1106 kmaC_Plastic:1107 kmaC_UniaxialTestData:324
