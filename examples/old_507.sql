-- A database of schema 507, written by hand. Make it with: sqlite3 old_507.nga < old_507.sql
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=507;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',507,0);
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
  "slipStyle" TEXT,
  "useContForceComponent" INTEGER,
  "contForceStyle" TEXT,
  "contForceComponent" INTEGER,
  "derivedComponent" TEXT,
  "frcPotOperator" TEXT,
  "frcPotExponent",
  "potentials#ClassID" INTEGER,
  "potentials#OID" INTEGER,
  "lastId" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80006,'kbeC_Friction','kbeC_Friction',507,0x2A80009);
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
  "coupling" TEXT,
  "frcPotOperator" TEXT,
  "frcPotExponent",
  "potentials#ClassID" INTEGER,
  "potentials#OID" INTEGER,
  "lastId" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8000E,'kbeC_Plasticity','kbeC_Plasticity',507,0x2A80008);
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
  "coupling" TEXT,
  "iniPotOperator" TEXT,
  "iniPotExponent",
  "iniPotentials#ClassID" INTEGER,
  "iniPotentials#OID" INTEGER,
  "lastIniId" INTEGER,
  "evoPotOperator" TEXT,
  "evoPotExponent",
  "evoPotentials#ClassID" INTEGER,
  "evoPotentials#OID" INTEGER,
  "lastEvoId" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8000F,'kbeC_Damage','kbeC_Damage',507,0x2A80008);
CREATE TABLE "kbeC_PotentialContainer"(
  "##OID" INTEGER PRIMARY KEY,
  "map#ClassID" INTEGER,
  "map#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80015,'kbeC_PotentialContainer','kbeC_PotentialContainer',507,0x1);
CREATE TABLE "kbeC_Potential"(
  "##OID" INTEGER PRIMARY KEY,
  "componentStyle" TEXT,
  "componentNumber" INTEGER,
  "componentName" TEXT,
  "scaleFactor",
  "positiveExp",
  "shiftFactor",
  "hFunction" TEXT,
  "sign" TEXT,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80016,'kbeC_Potential','kbeC_Potential',507,0x1);

-- A hinge: a spring and a damper about its axis, between two stops.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(0,x'04000000',1,54,x'5C000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(0,2293761,0,-1,x'5D000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(1,x'0000000000C09240',1,82,x'5E000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,2293761,1,-1,x'5F000000000000000000000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(0,0,0,655374,0,0,x'60000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(2,x'',1,54,x'61000000000000000000000000005EED');
INSERT INTO "kbeC_Elasticity"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid") VALUES(0,'UNCOUPLED','LINEAR',2293761,2,0,0,x'62000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(3,x'04000000',1,54,x'63000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(1,2293761,3,-1,x'64000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(4,x'0000000000804140',1,82,x'65000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(1,2293761,4,-1,x'66000000000000000000000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(1,0,0,655374,1,1,x'67000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(5,x'',1,54,x'68000000000000000000000000005EED');
INSERT INTO "kbeC_Damping"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid") VALUES(0,'UNCOUPLED','LINEAR',2293761,5,0,1,x'69000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(6,x'04000000',1,54,x'6A000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(2,2293761,6,-1,x'6B000000000000000000000000005EED');
INSERT INTO "kbeC_Stops"("##OID","minDisplacement","maxDisplacement","##BaseClassOID","##Uid") VALUES(0,-0.5,0.75,2,x'6C000000000000000000000000005EED');

-- It locks all its components at its end, and tears at a force.
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(7,x'04000000',1,54,x'6D000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(3,2293761,7,-1,x'6E000000000000000000000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid") VALUES(0,-1,1.7976931348623157e+308,0.7,-1.7976931348623157e+308,1.7976931348623157e+308,3,x'6F000000000000000000000000005EED');
INSERT INTO "kbeC_Lock"("##OID","##BaseClassOID","##Uid") VALUES(0,0,x'70000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(8,x'01000000',1,54,x'71000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(4,2293761,8,-1,x'72000000000000000000000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid") VALUES(1,3,1.7976931348623157e+308,1.7976931348623157e+308,-1.7976931348623157e+308,50000.0,4,x'73000000000000000000000000005EED');
INSERT INTO "kbeC_Failure"("##OID","##BaseClassOID","##Uid") VALUES(0,1,x'74000000000000000000000000005EED');

-- The potentials of its friction and its plasticity: the second is of a named component.
INSERT INTO "kbeC_Potential"("##OID","componentStyle","componentNumber","componentName","scaleFactor","positiveExp","shiftFactor","hFunction","sign","##BaseClassOID","##Uid") VALUES(0,'NUMBER',1,'',1.0,2.0,0.0,'ABS','POSITIVE',-1,x'75000000000000000000000000005EED');
INSERT INTO "kbeC_Potential"("##OID","componentStyle","componentNumber","componentName","scaleFactor","positiveExp","shiftFactor","hFunction","sign","##BaseClassOID","##Uid") VALUES(1,'DERIV_COMP',0,'resultant',1.0,2.0,0.0,'ABS','POSITIVE',-1,x'76000000000000000000000000005EED');

-- Friction on the axis, plasticity and damage of its pin.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(0,0,4,44564502,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(1,0,9,44564502,1);
INSERT INTO "cls_Map"("##OID","Target#Kind","##Uid") VALUES(0,3,x'77000000000000000000000000005EED');
UPDATE cls_Map SET "#First"=0,"#Count"=2 WHERE "##OID"=0;
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid") VALUES(0,2293762,0,-1,x'78000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(9,x'04000000',1,54,x'79000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(5,2293761,9,-1,x'7A000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(10,x'333333333333C33F',1,82,x'7B000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(2,2293761,10,-1,x'7C000000000000000000000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(2,0,0,655374,2,5,x'7D000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(11,x'',1,54,x'7E000000000000000000000000005EED');
INSERT INTO "kbeC_Friction"("##OID","frictionModel","stickStiffness","tangentDirs","componentType","independentComponents#ClassID","independentComponents#OID","slipDependency","slipStyle","useContForceComponent","contForceStyle","contForceComponent","derivedComponent","frcPotOperator","frcPotExponent","potentials#ClassID","potentials#OID","lastId","##BaseClassOID","##Uid") VALUES(0,'USER_CUSTOMIZED',1000000.0,1,'NO_INDEP_COMPS',2293761,11,0,'COMPUTE',1,'NUMBER',1,'','SUM',2.0,44564501,0,9,2,x'7F000000000000000000000000005EED');
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID") VALUES(2,1,4,44564502,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","##Uid") VALUES(1,3,x'80000000000000000000000000005EED');
UPDATE cls_Map SET "#First"=2,"#Count"=1 WHERE "##OID"=1;
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid") VALUES(1,2293762,1,-1,x'81000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(12,x'01000000',1,54,x'82000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(6,2293761,12,-1,x'83000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(13,x'00000000000059400000000000000000000000000000000000000000008061407B14AE47E17A943F0000000000000000',3,82,x'84000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(3,2293761,13,-1,x'85000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(14,x'',0,82,x'86000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(4,2293761,14,-1,x'87000000000000000000000000005EED');
INSERT INTO "kbeC_Plasticity"("##OID","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","isotropicTable#ClassID","isotropicTable#OID","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","kinematicTable#ClassID","kinematicTable#OID","coupling","frcPotOperator","frcPotExponent","potentials#ClassID","potentials#OID","lastId","##BaseClassOID","##Uid") VALUES(0,1,'TABULAR',0,0,655374,3,0,'HALF_CYCLE',0,0,655374,4,'COUPLED','SUM',2.0,44564501,1,4,6,x'88000000000000000000000000005EED');
INSERT INTO "cls_Map"("##OID","Target#Kind","##Uid") VALUES(2,3,x'89000000000000000000000000005EED');
UPDATE cls_Map SET "#First"=3,"#Count"=0 WHERE "##OID"=2;
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid") VALUES(2,2293762,2,-1,x'8A000000000000000000000000005EED');
INSERT INTO "cls_Map"("##OID","Target#Kind","##Uid") VALUES(3,3,x'8B000000000000000000000000005EED');
UPDATE cls_Map SET "#First"=3,"#Count"=0 WHERE "##OID"=3;
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid") VALUES(3,2293762,3,-1,x'8C000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(15,x'01000000',1,54,x'8D000000000000000000000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid") VALUES(7,2293761,15,-1,x'8E000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(16,x'E32079CFF91268C70000000000007940',2,82,x'8F000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(5,2293761,16,-1,x'90000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(17,x'7B14AE47E17A843F',1,82,x'91000000000000000000000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid") VALUES(6,2293761,17,-1,x'92000000000000000000000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid") VALUES(18,x'',1,54,x'93000000000000000000000000005EED');
INSERT INTO "kbeC_Damage"("##OID","criterion","initiationTemperature","initiationDependencies","initiationTable#ClassID","initiationTable#OID","evolution","evolutionType","softening","useAffected","affectedComponents#ClassID","affectedComponents#OID","degradation","evolutionTemperature","evolutionDependencies","evolutionTable#ClassID","evolutionTable#OID","coupling","iniPotOperator","iniPotExponent","iniPotentials#ClassID","iniPotentials#OID","lastIniId","evoPotOperator","evoPotExponent","evoPotentials#ClassID","evoPotentials#OID","lastEvoId","##BaseClassOID","##Uid") VALUES(0,'FORCE',0,0,655374,5,1,'MOTION','LINEAR',0,2293761,18,'MAXIMUM',0,0,655374,6,'UNCOUPLED','SUM',2.0,44564501,2,0,'MAXIMUM',2.0,44564501,3,0,7,x'94000000000000000000000000005EED');

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
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=0
-- is: COMPONENT_NUMBER 1 POSITIVE 1.0 2.0 0.0 ABS 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=1
-- is: DERIVED_COMPONENT 0 POSITIVE 1.0 2.0 0.0 ABS 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s %s:%s %s',"frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","table#ClassID","table#OID","tangentialBehavior#OID" IS NULL,"independentComponents#ClassID","independentComponents#OID","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorFriction WHERE "##OID"=0
-- is: USER_CUSTOMIZED COMPUTE 1 1000000.0 NO_INDEPENDENT_COMPONENTS 0 0 0 1 COMPONENT_NUMBER 1 SUM 2.0 655374:2 1 2293761:11 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s:%s %s:%s %s:%s',"coupling","isotropic","isotropicType","kinematic","kinematicType","forcePotentialOperator","forcePotentialExponent","isotropicTable#ClassID","isotropicTable#OID","kinematicTable#ClassID","kinematicTable#OID","components#ClassID","components#OID") FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: COUPLED 1 TABULAR 0 HALF_CYCLE SUM 2.0 655374:3 655374:4 2293761:12
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s',"coupling","criterion","initiationPotentialOperator","initiationPotentialExponent","evolution","evolutionType","softening","useAffected","degradation","evolutionPotentialOperator","evolutionPotentialExponent","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: UNCOUPLED FORCE SUM 2.0 1 MOTION_TYPE LINEAR 0 MAXIMUM MAXIMUM 2.0 655374:5 655374:6 2293761:18 2293761:15
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorFriction o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is: 44564511:0 44564511:1
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorFriction o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=0 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 2
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorPlasticity o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is: 44564511:0
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorPlasticity o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=0 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 1
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorDamage o JOIN cls_ListEntry e ON e.owner=o."initiationPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is:
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorDamage o JOIN cls_List l ON l."##OID"=o."initiationPotentials#OID" WHERE o."##OID"=0 AND o."initiationPotentials#ClassID"=2293761
-- is: 1 0
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorDamage o JOIN cls_ListEntry e ON e.owner=o."evolutionPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is:
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorDamage o JOIN cls_List l ON l."##OID"=o."evolutionPotentials#OID" WHERE o."##OID"=0 AND o."evolutionPotentials#ClassID"=2293761
-- is: 1 0
-- after: SELECT count(*) FROM nga_Catalogue WHERE ClassName IN ('kbeC_Potential','kbeC_PotentialContainer','kbeC_Tabular','kbeC_MotionDiscontinuity','kbeC_Elasticity','kbeC_Damping','kbeC_Stops','kbeC_Lock','kbeC_Failure','kbeC_Friction','kbeC_Plasticity','kbeC_Damage')
-- is: 0
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kbeC_ConnectorPotential','kbeC_ConnectorBehaviorOption','kbeC_ConnectorElasticity','kbeC_ConnectorDamping','kbeC_ConnectorStop','kbeC_ConnectorLock','kbeC_ConnectorFailure','kbeC_ConnectorFriction','kbeC_ConnectorPlasticity','kbeC_ConnectorDamage','kbeC_ConnectorOptions') ORDER BY ClassName
-- is: kbeC_ConnectorBehaviorOption:811 kbeC_ConnectorDamage:1022 kbeC_ConnectorDamping:1022 kbeC_ConnectorElasticity:1022 kbeC_ConnectorFailure:811 kbeC_ConnectorFriction:1022 kbeC_ConnectorLock:811 kbeC_ConnectorOptions:1026 kbeC_ConnectorPlasticity:1022 kbeC_ConnectorPotential:836 kbeC_ConnectorStop:811
-- What a potential calls by a name is lost, as the layouts of 811 had no place for it.
-- finds: sections['recovered behaviors'].options[5]: kbe 37
