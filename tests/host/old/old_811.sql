-- A database of schema 811, written by hand. Make it with: sqlite3 old_811.nga < old_811.sql
-- Machine tools, from the very schema that gave every connector behaviour the name that it has:
-- derived components are still told by a text, and the operators of damage by long literals.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=811;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',811,0);
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
CREATE TABLE "kbeC_ConnectorPotential"(
  "##OID" INTEGER PRIMARY KEY,
  "componentStyle" TEXT,
  "componentNumber" INTEGER,
  "sign" TEXT,
  "scaleFactor",
  "positiveExponent",
  "shiftFactor",
  "hFunction" TEXT,
  "componentName" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001F,'kbeC_ConnectorPotential','kbeC_ConnectorPotential',811,0x0);
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
  "derivedComponent" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001C,'kbeC_ConnectorFriction','kbeC_ConnectorFriction',811,0x2A80008);
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
INSERT INTO nga_Catalogue VALUES(0x2A8001E,'kbeC_ConnectorDamage','kbeC_ConnectorDamage',811,0x2A80008);
CREATE TABLE "kbeC_ConnectorPlasticity"(
  "##OID" INTEGER PRIMARY KEY,
  "coupling" TEXT,
  "isotropic" INTEGER,
  "isotropicType" TEXT,
  "isotropicTemperature" INTEGER,
  "isotropicDependencies" INTEGER,
  "kinematic" INTEGER,
  "kinematicType" TEXT,
  "kinematicTemperature" INTEGER,
  "kinematicDependencies" INTEGER,
  "forcePotentialOperator" TEXT,
  "forcePotentialExponent",
  "connectorPotentials#ClassID" INTEGER,
  "connectorPotentials#OID" INTEGER,
  "isotropicTable#ClassID" INTEGER,
  "isotropicTable#OID" INTEGER,
  "kinematicTable#ClassID" INTEGER,
  "kinematicTable#OID" INTEGER,
  "components#ClassID" INTEGER,
  "components#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001D,'kbeC_ConnectorPlasticity','kbeC_ConnectorPlasticity',811,0x2A80008);
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
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80017,'kbeC_ConnectorElasticity','kbeC_ConnectorElasticity',811,0x2A80008);
CREATE TABLE "kbeC_ConnectorDamping"(
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
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80018,'kbeC_ConnectorDamping','kbeC_ConnectorDamping',811,0x2A80008);
CREATE TABLE "kbeC_ConnectorStop"(
  "##OID" INTEGER PRIMARY KEY,
  "minMotion",
  "maxMotion",
  "components#ClassID" INTEGER,
  "components#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80019,'kbeC_ConnectorStop','kbeC_ConnectorStop',811,0x2A80008);
CREATE TABLE "kbeC_ConnectorLock"(
  "##OID" INTEGER PRIMARY KEY,
  "lockingComponent" INTEGER,
  "minMotion",
  "maxMotion",
  "minForce",
  "maxForce",
  "components#ClassID" INTEGER,
  "components#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001A,'kbeC_ConnectorLock','kbeC_ConnectorLock',811,0x2A80008);
CREATE TABLE "kbeC_ConnectorFailure"(
  "##OID" INTEGER PRIMARY KEY,
  "releaseComponent" INTEGER,
  "minMotion",
  "maxMotion",
  "minForce",
  "maxForce",
  "components#ClassID" INTEGER,
  "components#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8001B,'kbeC_ConnectorFailure','kbeC_ConnectorFailure',811,0x2A80008);

-- The spindle's friction from two potentials. Both its contact force and one potential name a
-- derived component by text; the names are lost, and no derived component takes their place.
INSERT INTO "kbeC_ConnectorPotential"("##OID","componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","componentName","##BaseClassOID","##Uid")
  VALUES(0,'COMPONENT_NUMBER',1,'POSITIVE',1.0,2.0,0.0,'ABS','',-1,x'01000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorPotential"("##OID","componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","componentName","##BaseClassOID","##Uid")
  VALUES(1,'DERIVED_COMPONENT',0,'NEGATIVE',0.7,1.8,0.05,'MACAULEY','radial',-1,x'02000000000000002B03000000005EED');
INSERT INTO "cls_ListEntry"("##OID","owner","value#ClassID","value#OID")
  VALUES(0,0,44564511,1);
INSERT INTO "cls_ListEntry"("##OID","owner","value#ClassID","value#OID")
  VALUES(1,0,44564511,0);
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,1,0,2,x'03000000000000002B03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'',1,54,x'04000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(0,-1,x'05000000000000002B03000000005EED');
-- 0.02, 1; 0.03, 100
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'7B14AE47E17A943F000000000000F03FB81E85EB51B89E3F0000000000005940',2,82,x'06000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,2,-1,x'07000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorFriction"("##OID","frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","connectorPotentials#ClassID","connectorPotentials#OID","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","derivedComponent","##BaseClassOID","##Uid")
  VALUES(0,'USER_CUSTOMIZED','COMPUTE',2147483647,3000000.0,'NO_INDEPENDENT_COMPONENTS',1,0,0,1,'DERIVED_COMPONENT',0,'SUM',2.0,2293761,0,655374,0,2293761,1,'radial',0,x'08000000000000002B03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s %s:%s %s',"frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","connectorPotentials#ClassID","connectorPotentials#OID","table#ClassID","table#OID","tangentialBehavior#OID" IS NULL,"independentComponents#ClassID","independentComponents#OID","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorFriction WHERE "##OID"=0
-- is: USER_CUSTOMIZED COMPUTE 2147483647 3000000.0 NO_INDEPENDENT_COMPONENTS 1 0 0 1 DERIVED_COMPONENT 0 SUM 2.0 2293761:0 655374:0 1 2293761:1 1
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorFriction o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is: 44564511:1 44564511:0
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorFriction o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=0 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 2
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=0
-- is: COMPONENT_NUMBER 1 POSITIVE 1.0 2.0 0.0 ABS 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=1
-- is: DERIVED_COMPONENT 0 NEGATIVE 0.7 1.8 0.05 MACAULEY 1
-- after: SELECT count(*) FROM pragma_table_info('kbeC_ConnectorPotential') WHERE name IN ('componentName')
-- is: 0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorFriction o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT

-- The damage of two guide blocks. The first has both operators in long literals, the second one of
-- each kind.
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(3,1,2,0,x'09000000000000002B03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(4,1,2,0,x'0A000000000000002B03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'',1,54,x'0B000000000000002B03000000005EED');
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'02000000',1,54,x'0C000000000000002B03000000005EED');
-- -800, 800
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'00000000000089C00000000000008940',2,82,x'0D000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,2293761,7,-1,x'0E000000000000002B03000000005EED');
-- 0, 0; 1, 0.4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'00000000000000000000000000000000000000000000F03F9A9999999999D93F',2,82,x'0F000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,2293761,8,-1,x'10000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(1,-1,x'11000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorDamage"("##OID","coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationPotentials#ClassID","initiationPotentials#OID","evolutionPotentials#ClassID","evolutionPotentials#OID","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,'UNCOUPLED','FORCE',0,'INITIATION_MAXIMUM',2.0,0,1,'MOTION_TYPE','TABULAR',0,'MAXIMUM',0,0,'EVOLUTION_SUM',3.0,2293761,3,2293761,4,655374,1,655374,2,2293761,5,2293761,6,1,x'12000000000000002B03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s %s:%s %s:%s',"coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationPotentials#ClassID","initiationPotentials#OID","evolutionPotentials#ClassID","evolutionPotentials#OID","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: UNCOUPLED FORCE 0 MAXIMUM 2.0 0 1 MOTION_TYPE TABULAR 0 MAXIMUM 0 0 SUM 3.0 2293761:3 2293761:4 655374:1 655374:2 2293761:5 2293761:6
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."initiationOptions#OID" WHERE o."##OID"=0 AND o."initiationOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."evolutionOptions#OID" WHERE o."##OID"=0 AND o."evolutionOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "initiationOptions#OID"<>"evolutionOptions#OID" FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: 1
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(9,1,2,0,x'13000000000000002B03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(10,1,2,0,x'14000000000000002B03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'',1,54,x'15000000000000002B03000000005EED');
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'02000000',1,54,x'16000000000000002B03000000005EED');
-- -800, 800
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(13,x'00000000000089C00000000000008940',2,82,x'17000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,2293761,13,-1,x'18000000000000002B03000000005EED');
-- 0, 0; 1, 0.4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(14,x'00000000000000000000000000000000000000000000F03F9A9999999999D93F',2,82,x'19000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(4,2293761,14,-1,x'1A000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(2,-1,x'1B000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorDamage"("##OID","coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationPotentials#ClassID","initiationPotentials#OID","evolutionPotentials#ClassID","evolutionPotentials#OID","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(1,'UNCOUPLED','FORCE',0,'INITIATION_SUM',2.0,0,1,'MOTION_TYPE','TABULAR',0,'MAXIMUM',0,0,'EVOLUTION_MAXIMUM',3.0,2293761,9,2293761,10,655374,3,655374,4,2293761,11,2293761,12,2,x'1C000000000000002B03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s %s:%s %s:%s',"coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationPotentials#ClassID","initiationPotentials#OID","evolutionPotentials#ClassID","evolutionPotentials#OID","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamage WHERE "##OID"=1
-- is: UNCOUPLED FORCE 0 SUM 2.0 0 1 MOTION_TYPE TABULAR 0 MAXIMUM 0 0 MAXIMUM 3.0 2293761:9 2293761:10 655374:3 655374:4 2293761:11 2293761:12
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."initiationOptions#OID" WHERE o."##OID"=1 AND o."initiationOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."evolutionOptions#OID" WHERE o."##OID"=1 AND o."evolutionOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "initiationOptions#OID"<>"evolutionOptions#OID" FROM kbeC_ConnectorDamage WHERE "##OID"=1
-- is: 1

-- Its plasticity by stabilized cycles, its spring and damper.
INSERT INTO "cls_List"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(15,1,2,0,x'1D000000000000002B03000000005EED');
-- 2, 3
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(16,x'0200000003000000',1,54,x'1E000000000000002B03000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(17,x'',0,82,x'1F000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(5,2293761,17,-1,x'20000000000000002B03000000005EED');
-- 400, 0, 0.02, 0.5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(18,x'000000000000794000000000000000007B14AE47E17A943F000000000000E03F',4,82,x'21000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(6,2293761,18,-1,x'22000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(3,-1,x'23000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorPlasticity"("##OID","coupling","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","forcePotentialOperator","forcePotentialExponent","connectorPotentials#ClassID","connectorPotentials#OID","isotropicTable#ClassID","isotropicTable#OID","kinematicTable#ClassID","kinematicTable#OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,'UNCOUPLED',0,'TABULAR',0,0,1,'STABILIZED',0,1,'SUM',2.0,2293761,15,655374,5,655374,6,2293761,16,3,x'24000000000000002B03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s',"coupling","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","forcePotentialOperator","forcePotentialExponent","connectorPotentials#ClassID","connectorPotentials#OID","isotropicTable#ClassID","isotropicTable#OID","kinematicTable#ClassID","kinematicTable#OID","components#ClassID","components#OID") FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: UNCOUPLED 0 TABULAR 0 0 1 STABILIZED 0 1 SUM 2.0 2293761:15 655374:5 655374:6 2293761:16
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."isotropicOptions#OID" WHERE o."##OID"=0 AND o."isotropicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."kinematicOptions#OID" WHERE o."##OID"=0 AND o."kinematicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "isotropicOptions#OID"<>"kinematicOptions#OID" FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(19,x'',1,54,x'25000000000000002B03000000005EED');
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(20,x'02000000',1,54,x'26000000000000002B03000000005EED');
-- 55000, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(21,x'0000000000DBEA400000000000003440',2,82,x'27000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(7,2293761,21,-1,x'28000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(4,-1,x'29000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorElasticity"("##OID","behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,'LINEAR','UNCOUPLED',0,1,0,655374,7,2293761,19,2293761,20,4,x'2A000000000000002B03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorElasticity WHERE "##OID"=0
-- is: LINEAR UNCOUPLED 0 1 0 655374:7 2293761:19 2293761:20
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorElasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorElasticity
-- is: 4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(22,x'',1,54,x'2B000000000000002B03000000005EED');
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(23,x'02000000',1,54,x'2C000000000000002B03000000005EED');
-- 120, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(24,x'0000000000005E400000000000003440',2,82,x'2D000000000000002B03000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(8,2293761,24,-1,x'2E000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(5,-1,x'2F000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorDamping"("##OID","behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,'LINEAR','UNCOUPLED',0,1,0,655374,8,2293761,22,2293761,23,5,x'30000000000000002B03000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamping WHERE "##OID"=0
-- is: LINEAR UNCOUPLED 0 1 0 655374:8 2293761:22 2293761:23
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamping o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "##BaseClassOID" FROM kbeC_ConnectorDamping
-- is: 5

-- A stop, a lock of all components and a release: these have not changed since. All is -1 where it
-- was written so.
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(25,x'02000000',1,54,x'31000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(6,-1,x'32000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorStop"("##OID","minMotion","maxMotion","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,-40.0,40.0,2293761,25,6,x'33000000000000002B03000000005EED');
-- 2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(26,x'02000000',1,54,x'34000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(7,-1,x'35000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorLock"("##OID","lockingComponent","minMotion","maxMotion","minForce","maxForce","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,-1,1.7976931348623157e+308,39.0,1.7976931348623157e+308,1.7976931348623157e+308,2293761,26,7,x'36000000000000002B03000000005EED');
-- 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(27,x'01000000',1,54,x'37000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","##BaseClassOID","##Uid")
  VALUES(8,-1,x'38000000000000002B03000000005EED');
INSERT INTO "kbeC_ConnectorFailure"("##OID","releaseComponent","minMotion","maxMotion","minForce","maxForce","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,1,1.7976931348623157e+308,1.7976931348623157e+308,1.7976931348623157e+308,20000.0,2293761,27,8,x'39000000000000002B03000000005EED');
-- after: SELECT printf('%s %s %s:%s',"minMotion","maxMotion","components#ClassID","components#OID") FROM kbeC_ConnectorStop WHERE "##OID"=0
-- is: -40.0 40.0 2293761:25
-- after: SELECT printf('%s %s %s %s %s %s:%s',"lockingComponent","minMotion"=1.7976931348623157e308,"maxMotion","minForce"=1.7976931348623157e308,"maxForce"=1.7976931348623157e308,"components#ClassID","components#OID") FROM kbeC_ConnectorLock WHERE "##OID"=0
-- is: -1 1 39.0 1 1 2293761:26
-- after: SELECT printf('%s %s %s %s %s %s:%s',"releaseComponent","minMotion"=1.7976931348623157e308,"maxMotion"=1.7976931348623157e308,"minForce"=1.7976931348623157e308,"maxForce","components#ClassID","components#OID") FROM kbeC_ConnectorFailure WHERE "##OID"=0
-- is: 1 1 1 1 20000.0 2293761:27
-- Friction, two damages and plasticity twice, elasticity and damping: nine sets of options.
-- after: SELECT count(*) FROM kbeC_ConnectorOptions
-- is: 9
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kbeC_ConnectorPotential','kbeC_ConnectorBehaviorOption','kbeC_ConnectorElasticity','kbeC_ConnectorDamping','kbeC_ConnectorStop','kbeC_ConnectorLock','kbeC_ConnectorFailure','kbeC_ConnectorFriction','kbeC_ConnectorPlasticity','kbeC_ConnectorDamage','kbeC_ConnectorOptions') ORDER BY ClassName
-- is: kbeC_ConnectorBehaviorOption:811 kbeC_ConnectorDamage:1022 kbeC_ConnectorDamping:1022 kbeC_ConnectorElasticity:1022 kbeC_ConnectorFailure:811 kbeC_ConnectorFriction:1022 kbeC_ConnectorLock:811 kbeC_ConnectorOptions:1026 kbeC_ConnectorPlasticity:1022 kbeC_ConnectorPotential:836 kbeC_ConnectorStop:811
-- The name of a derived component leads to nothing any more.
-- finds: sections['recovered behaviors'].options[5]: kbe 37
