-- A database of schema 453, written by hand. Make it with: sqlite3 old_453.nga < old_453.sql
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=453;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',453,0);
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

-- A hinge: a spring and a damper about its axis, between two stops.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(0,x'04000000',1,54,x'2D000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(0,2293761,0,-1,x'2E000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(1,x'0000000000C09240',1,82,x'2F000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,2293761,1,-1,x'30000000000000000000000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,0,0,655374,0,0,x'31000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(2,x'',1,54,x'32000000000000000000000000005EED');
INSERT INTO "kbeC_Elasticity"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid") VALUES(0,'UNCOUPLED','LINEAR',2293761,2,0,0,x'33000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(3,x'04000000',1,54,x'34000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(1,2293761,3,-1,x'35000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(4,x'0000000000804140',1,82,x'36000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(1,2293761,4,-1,x'37000000000000000000000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(1,0,0,655374,1,1,x'38000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(5,x'',1,54,x'39000000000000000000000000005EED');
INSERT INTO "kbeC_Damping"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid") VALUES(0,'UNCOUPLED','LINEAR',2293761,5,0,1,x'3A000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(6,x'04000000',1,54,x'3B000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(2,2293761,6,-1,x'3C000000000000000000000000005EED');
INSERT INTO "kbeC_Stops"("##OID","minDisplacement","maxDisplacement","##BaseClassOID","##Uid") VALUES(0,-0.5,0.75,2,x'3D000000000000000000000000005EED');

-- It locks all its components at its end, and tears at a force.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(7,x'04000000',1,54,x'3E000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(3,2293761,7,-1,x'3F000000000000000000000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid") VALUES(0,-1,1.7976931348623157e+308,0.7,-1.7976931348623157e+308,1.7976931348623157e+308,3,x'40000000000000000000000000005EED');
INSERT INTO "kbeC_Lock"("##OID","##BaseClassOID","##Uid") VALUES(0,0,x'41000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(8,x'01000000',1,54,x'42000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(4,2293761,8,-1,x'43000000000000000000000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid") VALUES(1,3,1.7976931348623157e+308,1.7976931348623157e+308,-1.7976931348623157e+308,50000.0,4,x'44000000000000000000000000005EED');
INSERT INTO "kbeC_Failure"("##OID","##BaseClassOID","##Uid") VALUES(0,1,x'45000000000000000000000000005EED');

-- Friction on the axis, plasticity and damage of its pin.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(9,x'04000000',1,54,x'46000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(5,2293761,9,-1,x'47000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(10,x'333333333333C33F',1,82,x'48000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(2,2293761,10,-1,x'49000000000000000000000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(2,0,0,655374,2,5,x'4A000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(11,x'',1,54,x'4B000000000000000000000000005EED');
INSERT INTO "kbeC_Friction"("##OID","frictionModel","stickStiffness","tangentDirs","componentType","independentComponents#ClassID","independentComponents#OID","slipDependency","##BaseClassOID","##Uid") VALUES(0,'USER_CUSTOMIZED',1000000.0,1,'NO_INDEP_COMPS',2293761,11,0,2,x'4C000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(12,x'01000000',1,54,x'4D000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(6,2293761,12,-1,x'4E000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(13,x'00000000000059400000000000000000000000000000000000000000008061407B14AE47E17A943F0000000000000000',3,82,x'4F000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(3,2293761,13,-1,x'50000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(14,x'',0,82,x'51000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(4,2293761,14,-1,x'52000000000000000000000000005EED');
INSERT INTO "kbeC_Plasticity"("##OID","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","isotropicTable#ClassID","isotropicTable#OID","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","kinematicTable#ClassID","kinematicTable#OID","##BaseClassOID","##Uid") VALUES(0,1,'TABULAR',0,0,655374,3,0,'HALF_CYCLE',0,0,655374,4,6,x'53000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(15,x'01000000',1,54,x'54000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(7,2293761,15,-1,x'55000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(16,x'E32079CFF91268C70000000000007940',2,82,x'56000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(5,2293761,16,-1,x'57000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(17,x'7B14AE47E17A843F',1,82,x'58000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(6,2293761,17,-1,x'59000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(18,x'',1,54,x'5A000000000000000000000000005EED');
INSERT INTO "kbeC_Damage"("##OID","criterion","initiationTemperature","initiationDependencies","initiationTable#ClassID","initiationTable#OID","evolution","evolutionType","softening","useAffected","affectedComponents#ClassID","affectedComponents#OID","degradation","evolutionTemperature","evolutionDependencies","evolutionTable#ClassID","evolutionTable#OID","##BaseClassOID","##Uid") VALUES(0,'FORCE',0,0,655374,5,1,'MOTION','LINEAR',0,2293761,18,'MAXIMUM',0,0,655374,6,7,x'5B000000000000000000000000005EED');

-- What the upgraded file has to answer: what stands behind "after:" is asked of it, what has to
-- come out stands behind "is:".
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorElasticity WHERE "##OID"=0
-- is: LINEAR UNCOUPLED 0 0 0 655374:0 2293761:2 2293761:0
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamping WHERE "##OID"=0
-- is: LINEAR UNCOUPLED 0 0 0 655374:1 2293761:5 2293761:3
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kbeC_ConnectorElasticity o JOIN mdl_PropertyTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0 AND o."table#ClassID"=0xA000E
-- is: 1 0000000000C09240
-- after: SELECT l."Target#Columns"||' '||hex(l."Target#Handle") FROM kbeC_ConnectorDamping o JOIN mdl_PropertyTable t ON t."##OID"=o."table#OID" JOIN cls_List l ON l."##OID"=t."table#OID" WHERE o."##OID"=0 AND o."table#ClassID"=0xA000E
-- is: 1 0000000000804140
-- after: SELECT printf('%s %s %s:%s',"minMotion","maxMotion","components#ClassID","components#OID") FROM kbeC_ConnectorStop WHERE "##OID"=0
-- is: -0.5 0.75 2293761:6
-- after: SELECT printf('%s %s %s %s %s %s:%s',"lockingComponent","minMotion"=1.7976931348623157e308,"maxMotion","minForce"=1.7976931348623157e308,"maxForce"=1.7976931348623157e308,"components#ClassID","components#OID") FROM kbeC_ConnectorLock WHERE "##OID"=0
-- is: 2147483647 1 0.7 1 1 2293761:7
-- after: SELECT printf('%s %s %s %s %s %s:%s',"releaseComponent","minMotion"=1.7976931348623157e308,"maxMotion"=1.7976931348623157e308,"minForce"=1.7976931348623157e308,"maxForce","components#ClassID","components#OID") FROM kbeC_ConnectorFailure WHERE "##OID"=0
-- is: 3 1 1 1 50000.0 2293761:8
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorElasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamping o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorFriction o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
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
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s %s:%s %s',"frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","forcePotentialOperator","forcePotentialExponent","table#ClassID","table#OID","tangentialBehavior#OID" IS NULL,"independentComponents#ClassID","independentComponents#OID","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorFriction WHERE "##OID"=0
-- is: USER_CUSTOMIZED SPECIFY 1 1000000.0 NO_INDEPENDENT_COMPONENTS 0 0 0 0 COMPONENT_NUMBER SUM 0.0 655374:2 1 2293761:11 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s',"coupling","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","forcePotentialOperator","forcePotentialExponent","isotropicTable#ClassID","isotropicTable#OID","kinematicTable#ClassID","kinematicTable#OID","components#ClassID","components#OID") FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: UNCOUPLED 1 TABULAR 0 0 0 HALF_CYCLE 0 0 SUM 0.0 655374:3 655374:4 2293761:12
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s',"coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: UNCOUPLED FORCE 0 SUM 0.0 0 1 MOTION_TYPE LINEAR 0 MAXIMUM 0 0 SUM 0.0 655374:5 655374:6 2293761:18 2293761:15
-- after: SELECT count(*) FROM nga_Catalogue WHERE ClassName IN ('kbeC_Tabular','kbeC_MotionDiscontinuity','kbeC_Elasticity','kbeC_Damping','kbeC_Stops','kbeC_Lock','kbeC_Failure','kbeC_Friction','kbeC_Plasticity','kbeC_Damage')
-- is: 0
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kbeC_ConnectorBehaviorOption','kbeC_ConnectorElasticity','kbeC_ConnectorDamping','kbeC_ConnectorStop','kbeC_ConnectorLock','kbeC_ConnectorFailure','kbeC_ConnectorFriction','kbeC_ConnectorPlasticity','kbeC_ConnectorDamage','kbeC_ConnectorOptions') ORDER BY ClassName
-- is: kbeC_ConnectorBehaviorOption:811 kbeC_ConnectorDamage:1022 kbeC_ConnectorDamping:1022 kbeC_ConnectorElasticity:1022 kbeC_ConnectorFailure:811 kbeC_ConnectorFriction:1022 kbeC_ConnectorLock:811 kbeC_ConnectorOptions:1026 kbeC_ConnectorPlasticity:1022 kbeC_ConnectorStop:811
