-- A database of schema 600, written by hand. Make it with: sqlite3 old_600.nga < old_600.sql
-- A robot's joints from the time of potentials: plasticity, damage and friction compute forces
-- from several components, kept in containers by number. And its signal filters, which had lost
-- their order.
-- What stands behind "after:" is asked of the upgraded file; what has to come out stands behind "is:".
PRAGMA page_size=16384;
PRAGMA application_id=0x4E474131;
PRAGMA user_version=600;
CREATE TABLE nga_Catalogue(
  TypeId INTEGER PRIMARY KEY,
  ClassName TEXT NOT NULL,
  TableName TEXT NOT NULL,
  Version INTEGER NOT NULL,
  ParentTypeId INTEGER NOT NULL
);
INSERT INTO nga_Catalogue VALUES(0,'sqlite3','',600,0);
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
CREATE TABLE "kflC_Filter"(
  "##OID" INTEGER PRIMARY KEY,
  "cutoffFrequency",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x3510002,'kflC_Filter','kflC_Filter',503,0x1);
CREATE TABLE "kflC_ButterworthFilter"(
  "##OID" INTEGER PRIMARY KEY,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x3510003,'kflC_ButterworthFilter','kflC_ButterworthFilter',427,0x3510002);
CREATE TABLE "kflC_Chebyshev1Filter"(
  "##OID" INTEGER PRIMARY KEY,
  "rippleFactor",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x3510004,'kflC_Chebyshev1Filter','kflC_Chebyshev1Filter',427,0x3510002);
CREATE TABLE "kflC_Chebyshev2Filter"(
  "##OID" INTEGER PRIMARY KEY,
  "rippleFactor",
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x3510005,'kflC_Chebyshev2Filter','kflC_Chebyshev2Filter',427,0x3510002);
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
CREATE TABLE "kbeC_PotentialContainer"(
  "##OID" INTEGER PRIMARY KEY,
  "map#ClassID" INTEGER,
  "map#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A80015,'kbeC_PotentialContainer','kbeC_PotentialContainer',507,0x1);
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
CREATE TABLE "kbeC_TangentialBehavior"(
  "##OID" INTEGER PRIMARY KEY,
  "formulation" TEXT,
  "slipRateDependency" INTEGER,
  "pressureDependency" INTEGER,
  "temperatureDependency" INTEGER,
  "dependencies" INTEGER,
  "exponentialDecayDefinition" TEXT,
  "shearStressLimit",
  "maximumElasticSlip" TEXT,
  "fraction",
  "absoluteDistance",
  "table#ClassID" INTEGER,
  "table#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x2A8000D,'kbeC_TangentialBehavior','kbeC_TangentialBehavior',453,0x1);
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
CREATE TABLE "kflC_FCWrapper"(
  "##OID" INTEGER PRIMARY KEY,
  "extension#ClassID" INTEGER,
  "extension#OID" INTEGER,
  "##BaseClassOID" INTEGER,
  "##Uid" BLOB
);
INSERT INTO nga_Catalogue VALUES(0x3510001,'kflC_FCWrapper','kflC_FCWrapper',427,0x1);

-- Three filters for the test signals. The order of each comes back as 2.
INSERT INTO "kflC_Filter"("##OID","cutoffFrequency","##BaseClassOID","##Uid")
  VALUES(0,100.0,-1,x'01000000000000005802000000005EED');
INSERT INTO "kflC_ButterworthFilter"("##OID","##BaseClassOID","##Uid")
  VALUES(0,0,x'02000000000000005802000000005EED');
INSERT INTO "kflC_Filter"("##OID","cutoffFrequency","##BaseClassOID","##Uid")
  VALUES(1,1650.0,-1,x'03000000000000005802000000005EED');
INSERT INTO "kflC_Chebyshev1Filter"("##OID","rippleFactor","##BaseClassOID","##Uid")
  VALUES(0,0.3,1,x'04000000000000005802000000005EED');
INSERT INTO "kflC_Filter"("##OID","cutoffFrequency","##BaseClassOID","##Uid")
  VALUES(2,400.0,-1,x'05000000000000005802000000005EED');
INSERT INTO "kflC_Chebyshev2Filter"("##OID","rippleFactor","##BaseClassOID","##Uid")
  VALUES(0,0.05,2,x'06000000000000005802000000005EED');
-- after: SELECT cutoffFrequency||' '||"order" FROM kflC_Filter ORDER BY "##OID"
-- is: 100.0 2 1650.0 2 400.0 2
-- after: SELECT printf('%s',"rippleFactor") FROM kflC_Chebyshev1Filter WHERE "##OID"=0
-- is: 0.3
-- after: SELECT printf('%s',"rippleFactor") FROM kflC_Chebyshev2Filter WHERE "##OID"=0
-- is: 0.05
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kflC_Filter','kflC_ButterworthFilter','kflC_Chebyshev1Filter','kflC_Chebyshev2Filter') ORDER BY ClassName
-- is: kflC_ButterworthFilter:427 kflC_Chebyshev1Filter:427 kflC_Chebyshev2Filter:427 kflC_Filter:821

-- The potentials. Number and derived component have longer literals now. The second names a
-- component that is derived from others; its name was text, the field became an object, and the
-- name is lost.
INSERT INTO "kbeC_Potential"("##OID","componentStyle","componentNumber","componentName","scaleFactor","positiveExp","shiftFactor","hFunction","sign","##BaseClassOID","##Uid")
  VALUES(0,'NUMBER',1,'',1.0,2.0,0.0,'ABS','POSITIVE',-1,x'07000000000000005802000000005EED');
INSERT INTO "kbeC_Potential"("##OID","componentStyle","componentNumber","componentName","scaleFactor","positiveExp","shiftFactor","hFunction","sign","##BaseClassOID","##Uid")
  VALUES(1,'DERIV_COMP',0,'shear',0.5,1.5,0.1,'MACAULEY','POSITIVE',-1,x'08000000000000005802000000005EED');
INSERT INTO "kbeC_Potential"("##OID","componentStyle","componentNumber","componentName","scaleFactor","positiveExp","shiftFactor","hFunction","sign","##BaseClassOID","##Uid")
  VALUES(2,'NUMBER',3,'',2.0,2.0,0.0,'IDENTITY','NEGATIVE',-1,x'09000000000000005802000000005EED');
INSERT INTO "kbeC_Potential"("##OID","componentStyle","componentNumber","componentName","scaleFactor","positiveExp","shiftFactor","hFunction","sign","##BaseClassOID","##Uid")
  VALUES(3,'NUMBER',4,'',1.0,2.0,0.0,'ABS','POSITIVE',-1,x'0A000000000000005802000000005EED');
INSERT INTO "kbeC_Potential"("##OID","componentStyle","componentNumber","componentName","scaleFactor","positiveExp","shiftFactor","hFunction","sign","##BaseClassOID","##Uid")
  VALUES(4,'NUMBER',5,'',1.0,3.0,-0.2,'ABS','POSITIVE',-1,x'0B000000000000005802000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=0
-- is: COMPONENT_NUMBER 1 POSITIVE 1.0 2.0 0.0 ABS 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=1
-- is: DERIVED_COMPONENT 0 POSITIVE 0.5 1.5 0.1 MACAULEY 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=2
-- is: COMPONENT_NUMBER 3 NEGATIVE 2.0 2.0 0.0 IDENTITY 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=3
-- is: COMPONENT_NUMBER 4 POSITIVE 1.0 2.0 0.0 ABS 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s',"componentStyle","componentNumber","sign","scaleFactor","positiveExponent","shiftFactor","hFunction","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorPotential WHERE "##OID"=4
-- is: COMPONENT_NUMBER 5 POSITIVE 1.0 3.0 -0.2 ABS 1
-- after: SELECT count(*) FROM pragma_table_info('kbeC_ConnectorPotential') WHERE name IN ('positiveExp','componentName')
-- is: 0

-- The wrist's friction from three potentials, under the numbers 2, 5 and 11: the list keeps their
-- order and forgets the numbers. Its contact force comes from a derived component, whose name goes
-- as well.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(0,0,2,44564502,2);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(1,0,5,44564502,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(2,0,11,44564502,1);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(0,3,0,3,x'0C000000000000005802000000005EED');
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,0,-1,x'0D000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(0,x'',1,54,x'0E000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,0,-1,x'0F000000000000005802000000005EED');
-- 0.11, 20, 0; 0.08, 90, 1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(1,x'295C8FC2F528BC3F000000000000344000000000000000007B14AE47E17AB43F0000000000805640000000000000F03F',3,82,x'10000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,2293761,1,-1,x'11000000000000005802000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,1,1,655374,0,0,x'12000000000000005802000000005EED');
-- 4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(2,x'04000000',1,54,x'13000000000000005802000000005EED');
INSERT INTO "kbeC_Friction"("##OID","frictionModel","stickStiffness","tangentDirs","componentType","independentComponents#ClassID","independentComponents#OID","slipDependency","slipStyle","useContForceComponent","contForceStyle","contForceComponent","derivedComponent","frcPotOperator","frcPotExponent","potentials#ClassID","potentials#OID","lastId","##BaseClassOID","##Uid")
  VALUES(0,'USER_CUSTOMIZED',800000.0,4,'MOTION',2293761,2,1,'COMPUTE',1,'DERIV_COMP',0,'normal','MAXIMUM',3.0,44564501,0,11,0,x'14000000000000005802000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s %s:%s %s',"frictionModel","slipStyle","tangentDirection","stickStiffness","componentType","slipDependency","temperatureDependency","dependencies","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","table#ClassID","table#OID","tangentialBehavior#OID" IS NULL,"independentComponents#ClassID","independentComponents#OID","derivedComponent#OID" IS NULL) FROM kbeC_ConnectorFriction WHERE "##OID"=0
-- is: USER_CUSTOMIZED COMPUTE 4 800000.0 MOTION 1 1 1 1 DERIVED_COMPONENT 0 MAXIMUM 3.0 655374:0 1 2293761:2 1
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorFriction o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is: 44564511:2 44564511:0 44564511:1
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorFriction o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=0 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 3
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorFriction o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=0 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT count(*) FROM pragma_table_info('kbeC_ConnectorFriction') WHERE name IN ('potentials#OID','lastId','tangentDirs','frcPotOperator','contForceStyle')
-- is: 0

-- A second friction with a contact force by number, without a potential, and with a law.
-- 0.2
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(3,x'9A9999999999C93F',1,82,x'15000000000000005802000000005EED');
INSERT INTO "kbeC_TangentialBehavior"("##OID","formulation","slipRateDependency","pressureDependency","temperatureDependency","dependencies","exponentialDecayDefinition","shearStressLimit","maximumElasticSlip","fraction","absoluteDistance","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(0,'PENALTY',0,0,0,0,'COEFFICIENTS',1.7976931348623157e+308,'ABSOLUTE_DISTANCE',0.0001,0.002,2293761,3,-1,x'16000000000000005802000000005EED');
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(1,3,3,0,x'17000000000000005802000000005EED');
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid")
  VALUES(1,2293762,1,-1,x'18000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(4,x'',1,54,x'19000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(1,2293761,4,-1,x'1A000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(5,x'',0,82,x'1B000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,2293761,5,-1,x'1C000000000000005802000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(1,0,0,655374,1,1,x'1D000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(6,x'',1,54,x'1E000000000000005802000000005EED');
INSERT INTO "kbeC_Friction"("##OID","frictionModel","stickStiffness","tangentDirs","componentType","independentComponents#ClassID","independentComponents#OID","slipDependency","tangentialBehavior#ClassID","tangentialBehavior#OID","slipStyle","useContForceComponent","contForceStyle","contForceComponent","derivedComponent","frcPotOperator","frcPotExponent","potentials#ClassID","potentials#OID","lastId","##BaseClassOID","##Uid")
  VALUES(1,'PREDEFINED',1000000.0,1,'NO_INDEP_COMPS',2293761,6,0,44564493,0,'SPECIFY',1,'NUMBER',3,'','SUM',2.0,44564501,1,0,1,x'1F000000000000005802000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s',"frictionModel","slipStyle","tangentDirection","componentType","useContactForceComponent","contactForceStyle","contactForceComponent","forcePotentialOperator","forcePotentialExponent","table#ClassID","table#OID","tangentialBehavior#ClassID","tangentialBehavior#OID","independentComponents#ClassID","independentComponents#OID") FROM kbeC_ConnectorFriction WHERE "##OID"=1
-- is: PREDEFINED SPECIFY 1 NO_INDEPENDENT_COMPONENTS 1 COMPONENT_NUMBER 3 SUM 2.0 655374:1 44564493:0 2293761:6
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorFriction o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=1 ORDER BY e."##OID"
-- is:
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorFriction o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=1 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorFriction o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."options#OID" WHERE o."##OID"=1 AND o."options#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT

-- The elbow's plasticity, coupled by one potential, by an exponential law; its kinematic table is
-- empty.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(3,2,1,44564502,3);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(2,3,3,1,x'20000000000000005802000000005EED');
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid")
  VALUES(2,2293762,2,-1,x'21000000000000005802000000005EED');
-- 4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(7,x'04000000',1,54,x'22000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(2,2293761,7,-1,x'23000000000000005802000000005EED');
-- 120, 30, 4, 20, 0, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(8,x'0000000000005E400000000000003E400000000000001040000000000000344000000000000000000000000000000000',6,82,x'24000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,2293761,8,-1,x'25000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(9,x'',0,82,x'26000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,2293761,9,-1,x'27000000000000005802000000005EED');
INSERT INTO "kbeC_Plasticity"("##OID","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","isotropicTable#ClassID","isotropicTable#OID","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","kinematicTable#ClassID","kinematicTable#OID","coupling","frcPotOperator","frcPotExponent","potentials#ClassID","potentials#OID","lastId","##BaseClassOID","##Uid")
  VALUES(0,1,'EXPONENTIAL_LAW',1,2,655374,2,0,'PARAMETERS',0,0,655374,3,'COUPLED','MAXIMUM',2.5,44564501,2,1,2,x'28000000000000005802000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s',"coupling","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","forcePotentialOperator","forcePotentialExponent","isotropicTable#ClassID","isotropicTable#OID","kinematicTable#ClassID","kinematicTable#OID","components#ClassID","components#OID") FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: COUPLED 1 EXPONENTIAL_LAW 1 2 0 PARAMETERS 0 0 MAXIMUM 2.5 655374:2 655374:3 2293761:7
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorPlasticity o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is: 44564511:3
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorPlasticity o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=0 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 1
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."isotropicOptions#OID" WHERE o."##OID"=0 AND o."isotropicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."kinematicOptions#OID" WHERE o."##OID"=0 AND o."kinematicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "isotropicOptions#OID"<>"kinematicOptions#OID" FROM kbeC_ConnectorPlasticity WHERE "##OID"=0
-- is: 1

-- Its spare has the same container: each has a list of its own, of the same potential.
-- 4
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(10,x'04000000',1,54,x'29000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(3,2293761,10,-1,x'2A000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(11,x'',0,82,x'2B000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(4,2293761,11,-1,x'2C000000000000005802000000005EED');
-- 15, 0; 18, 0.1
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(12,x'0000000000002E40000000000000000000000000000032409A9999999999B93F',2,82,x'2D000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(5,2293761,12,-1,x'2E000000000000005802000000005EED');
INSERT INTO "kbeC_Plasticity"("##OID","isotropic","isotropicType","isotropicTemperature","isotropicDependencies","isotropicTable#ClassID","isotropicTable#OID","kinematic","kinematicType","kinematicTemperature","kinematicDependencies","kinematicTable#ClassID","kinematicTable#OID","coupling","frcPotOperator","frcPotExponent","potentials#ClassID","potentials#OID","lastId","##BaseClassOID","##Uid")
  VALUES(1,0,'TABULAR',0,0,655374,4,1,'HALF_CYCLE',0,0,655374,5,'COUPLED','SUM',2.0,44564501,2,1,3,x'2F000000000000005802000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s:%s %s:%s %s:%s',"coupling","isotropic","kinematic","kinematicType","forcePotentialOperator","forcePotentialExponent","isotropicTable#ClassID","isotropicTable#OID","kinematicTable#ClassID","kinematicTable#OID","components#ClassID","components#OID") FROM kbeC_ConnectorPlasticity WHERE "##OID"=1
-- is: COUPLED 0 1 HALF_CYCLE SUM 2.0 655374:4 655374:5 2293761:10
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorPlasticity o JOIN cls_ListEntry e ON e.owner=o."connectorPotentials#OID" WHERE o."##OID"=1 ORDER BY e."##OID"
-- is: 44564511:3
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorPlasticity o JOIN cls_List l ON l."##OID"=o."connectorPotentials#OID" WHERE o."##OID"=1 AND o."connectorPotentials#ClassID"=2293761
-- is: 1 1
-- after: SELECT count(DISTINCT "connectorPotentials#OID") FROM kbeC_ConnectorPlasticity
-- is: 2
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."isotropicOptions#OID" WHERE o."##OID"=1 AND o."isotropicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorPlasticity o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."kinematicOptions#OID" WHERE o."##OID"=1 AND o."kinematicOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "isotropicOptions#OID"<>"kinematicOptions#OID" FROM kbeC_ConnectorPlasticity WHERE "##OID"=1
-- is: 1

-- The gripper's damage by motion, begun by one sum of potentials and evolved by the largest of
-- none. Both operators took longer literals for a while and have their short ones back.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(4,3,7,44564502,4);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(3,3,4,1,x'30000000000000005802000000005EED');
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid")
  VALUES(3,2293762,3,-1,x'31000000000000005802000000005EED');
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(4,3,5,0,x'32000000000000005802000000005EED');
INSERT INTO "kbeC_PotentialContainer"("##OID","map#ClassID","map#OID","##BaseClassOID","##Uid")
  VALUES(4,2293762,4,-1,x'33000000000000005802000000005EED');
-- 5
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(13,x'05000000',1,54,x'34000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(4,2293761,13,-1,x'35000000000000005802000000005EED');
-- -1e+36, 4.5, 20, 0
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(14,x'E32079CFF91268C7000000000000124000000000000034400000000000000000',4,82,x'36000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(6,2293761,14,-1,x'37000000000000005802000000005EED');
-- 2.2, 0.7, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(15,x'9A99999999990140666666666666E63F0000000000003440',3,82,x'38000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(7,2293761,15,-1,x'39000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(16,x'',1,54,x'3A000000000000005802000000005EED');
INSERT INTO "kbeC_Damage"("##OID","criterion","initiationTemperature","initiationDependencies","initiationTable#ClassID","initiationTable#OID","evolution","evolutionType","softening","useAffected","affectedComponents#ClassID","affectedComponents#OID","degradation","evolutionTemperature","evolutionDependencies","evolutionTable#ClassID","evolutionTable#OID","coupling","iniPotOperator","iniPotExponent","iniPotentials#ClassID","iniPotentials#OID","lastIniId","evoPotOperator","evoPotExponent","evoPotentials#ClassID","evoPotentials#OID","lastEvoId","##BaseClassOID","##Uid")
  VALUES(0,'MOTION',1,1,655374,6,1,'MOTION','EXPONENTIAL',0,2293761,16,'MAXIMUM',1,0,655374,7,'COUPLED','SUM',2.0,44564501,3,7,'MAXIMUM',1.5,44564501,4,0,4,x'3B000000000000005802000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s %s %s %s %s %s %s %s:%s %s:%s %s:%s %s:%s',"coupling","criterion","initiationTemperature","initiationPotentialOperator","initiationPotentialExponent","initiationDependencies","evolution","evolutionType","softening","useAffected","degradation","evolutionTemperature","evolutionDependencies","evolutionPotentialOperator","evolutionPotentialExponent","initiationTable#ClassID","initiationTable#OID","evolutionTable#ClassID","evolutionTable#OID","affectedComponents#ClassID","affectedComponents#OID","components#ClassID","components#OID") FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: COUPLED MOTION 1 SUM 2.0 1 1 MOTION_TYPE EXPONENTIAL 0 MAXIMUM 1 0 MAXIMUM 1.5 655374:6 655374:7 2293761:16 2293761:13
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorDamage o JOIN cls_ListEntry e ON e.owner=o."initiationPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is: 44564511:4
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorDamage o JOIN cls_List l ON l."##OID"=o."initiationPotentials#OID" WHERE o."##OID"=0 AND o."initiationPotentials#ClassID"=2293761
-- is: 1 1
-- after: SELECT e."value#ClassID"||':'||e."value#OID" FROM kbeC_ConnectorDamage o JOIN cls_ListEntry e ON e.owner=o."evolutionPotentials#OID" WHERE o."##OID"=0 ORDER BY e."##OID"
-- is:
-- after: SELECT l."Target#Kind"||' '||l."#Count" FROM kbeC_ConnectorDamage o JOIN cls_List l ON l."##OID"=o."evolutionPotentials#OID" WHERE o."##OID"=0 AND o."evolutionPotentials#ClassID"=2293761
-- is: 1 0
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."initiationOptions#OID" WHERE o."##OID"=0 AND o."initiationOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT printf('%s %s %s %s %s %s %s %s %s',p.useBehRegSettings,p.regularize,p.defaultTolerance,p.regularization,p.defaultRateFactor,p.rateFactor,p.interpolation,p.useBehExtSettings,p.extrapolation) FROM kbeC_ConnectorDamage o JOIN kbeC_ConnectorOptions p ON p."##OID"=o."evolutionOptions#OID" WHERE o."##OID"=0 AND o."evolutionOptions#ClassID"=0x2A8003E
-- is: 1 1 1 0.03 1 0.9 LINEAR 1 CONSTANT
-- after: SELECT "initiationOptions#OID"<>"evolutionOptions#OID" FROM kbeC_ConnectorDamage WHERE "##OID"=0
-- is: 1

-- A joint that is rigid but for a damper, a stop at its end, a lock and a release.
-- 6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(17,x'06000000',1,54,x'3C000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(5,2293761,17,-1,x'3D000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(18,x'',0,82,x'3E000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(8,2293761,18,-1,x'3F000000000000005802000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(2,0,0,655374,8,5,x'40000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(19,x'',1,54,x'41000000000000005802000000005EED');
INSERT INTO "kbeC_Elasticity"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid")
  VALUES(0,'UNCOUPLED','RIGID',2293761,19,0,2,x'42000000000000005802000000005EED');
-- 6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(20,x'06000000',1,54,x'43000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(6,2293761,20,-1,x'44000000000000005802000000005EED');
-- -0.8, -1, 20; 0.8, 1, 20
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(21,x'9A9999999999E9BF000000000000F0BF00000000000034409A9999999999E93F000000000000F03F0000000000003440',3,82,x'45000000000000005802000000005EED');
INSERT INTO "mdl_PropertyTable"("##OID","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(9,2293761,21,-1,x'46000000000000005802000000005EED');
INSERT INTO "kbeC_Tabular"("##OID","temperatureDependency","dependencies","table#ClassID","table#OID","##BaseClassOID","##Uid")
  VALUES(3,1,0,655374,9,6,x'47000000000000005802000000005EED');
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(22,x'',1,54,x'48000000000000005802000000005EED');
INSERT INTO "kbeC_Damping"("##OID","coupling","behavior","dependentComponents#ClassID","dependentComponents#OID","frequencyDependency","##BaseClassOID","##Uid")
  VALUES(0,'UNCOUPLED','NONLINEAR',2293761,22,0,3,x'49000000000000005802000000005EED');
-- 6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(23,x'06000000',1,54,x'4A000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(7,2293761,23,-1,x'4B000000000000005802000000005EED');
INSERT INTO "kbeC_Stops"("##OID","minDisplacement","maxDisplacement","##BaseClassOID","##Uid")
  VALUES(0,-1.57,1.57,7,x'4C000000000000005802000000005EED');
-- 6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(24,x'06000000',1,54,x'4D000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(8,2293761,24,-1,x'4E000000000000005802000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid")
  VALUES(0,6,1.7976931348623157e+308,1.5,1.7976931348623157e+308,1.7976931348623157e+308,8,x'4F000000000000005802000000005EED');
INSERT INTO "kbeC_Lock"("##OID","##BaseClassOID","##Uid")
  VALUES(0,0,x'50000000000000005802000000005EED');
-- 6
INSERT INTO "cls_List"("##OID","Target#Handle","Target#Columns","Target#Kind","##Uid")
  VALUES(25,x'06000000',1,54,x'51000000000000005802000000005EED');
INSERT INTO "kbeC_ConnectorBehaviorOption"("##OID","components#ClassID","components#OID","##BaseClassOID","##Uid")
  VALUES(9,2293761,25,-1,x'52000000000000005802000000005EED');
INSERT INTO "kbeC_MotionDiscontinuity"("##OID","affectedComponent","minDisplacement","maxDisplacement","minForce","maxForce","##BaseClassOID","##Uid")
  VALUES(1,1,1.7976931348623157e+308,1.7976931348623157e+308,-300.0,300.0,9,x'53000000000000005802000000005EED');
INSERT INTO "kbeC_Failure"("##OID","##BaseClassOID","##Uid")
  VALUES(0,1,x'54000000000000005802000000005EED');
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID") FROM kbeC_ConnectorElasticity WHERE "##OID"=0
-- is: RIGID UNCOUPLED 0 0 0 655374:8 2293761:19
-- after: SELECT printf('%s %s %s %s %s %s:%s %s:%s',"behavior","coupling","dependencies","temperatureDependency","frequencyDependency","table#ClassID","table#OID","independentComponents#ClassID","independentComponents#OID") FROM kbeC_ConnectorDamping WHERE "##OID"=0
-- is: NONLINEAR UNCOUPLED 0 1 0 655374:9 2293761:22
-- after: SELECT printf('%s %s %s:%s',"minMotion","maxMotion","components#ClassID","components#OID") FROM kbeC_ConnectorStop WHERE "##OID"=0
-- is: -1.57 1.57 2293761:23
-- after: SELECT printf('%s %s %s %s %s %s:%s',"lockingComponent","minMotion"=1.7976931348623157e308,"maxMotion","minForce"=1.7976931348623157e308,"maxForce"=1.7976931348623157e308,"components#ClassID","components#OID") FROM kbeC_ConnectorLock WHERE "##OID"=0
-- is: 6 1 1.5 1 1 2293761:24
-- after: SELECT printf('%s %s %s %s %s %s:%s',"releaseComponent","minMotion"=1.7976931348623157e308,"maxMotion"=1.7976931348623157e308,"minForce","maxForce","components#ClassID","components#OID") FROM kbeC_ConnectorFailure WHERE "##OID"=0
-- is: 1 1 1 -300.0 300.0 2293761:25
-- after: SELECT count(*) FROM nga_Catalogue WHERE ClassName IN ('kbeC_Potential','kbeC_PotentialContainer','kbeC_Tabular','kbeC_MotionDiscontinuity','kbeC_Elasticity','kbeC_Damping','kbeC_Stops','kbeC_Lock','kbeC_Failure','kbeC_Friction','kbeC_Plasticity','kbeC_Damage')
-- is: 0
-- after: SELECT ClassName||':'||Version FROM nga_Catalogue WHERE ClassName IN ('kbeC_ConnectorPotential','kbeC_ConnectorBehaviorOption','kbeC_ConnectorElasticity','kbeC_ConnectorDamping','kbeC_ConnectorStop','kbeC_ConnectorLock','kbeC_ConnectorFailure','kbeC_ConnectorFriction','kbeC_ConnectorPlasticity','kbeC_ConnectorDamage','kbeC_ConnectorOptions') ORDER BY ClassName
-- is: kbeC_ConnectorBehaviorOption:811 kbeC_ConnectorDamage:1022 kbeC_ConnectorDamping:1022 kbeC_ConnectorElasticity:1022 kbeC_ConnectorFailure:811 kbeC_ConnectorFriction:1022 kbeC_ConnectorLock:811 kbeC_ConnectorOptions:1026 kbeC_ConnectorPlasticity:1022 kbeC_ConnectorPotential:836 kbeC_ConnectorStop:811

-- The filters by name.
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(5,5,'CFC 60',55640067,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(6,5,'accelerometer',55640068,0);
INSERT INTO "cls_MapEntry"("##OID","owner","key","value#ClassID","value#OID")
  VALUES(7,5,'load cell',55640069,0);
INSERT INTO "cls_Map"("##OID","Target#Kind","#First","#Count","##Uid")
  VALUES(5,2,5,3,x'55000000000000005802000000005EED');
INSERT INTO "kflC_FCWrapper"("##OID","extension#ClassID","extension#OID","##BaseClassOID","##Uid")
  VALUES(0,2293762,5,-1,x'56000000000000005802000000005EED');
-- after: SELECT group_concat(e.key,', ') FROM kflC_FCWrapper w JOIN cls_MapEntry e ON e.owner=w."extension#OID"
-- is: CFC 60, accelerometer, load cell
-- The name of a derived component leads to nothing any more.
-- finds: sections['recovered behaviors'].options[5]: kbe 37
