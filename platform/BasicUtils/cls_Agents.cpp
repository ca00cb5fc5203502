#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"

// One place for the virtual tables of the interfaces.
cls_AgentRequest::~cls_AgentRequest() = default;
cls_WriteListObj::~cls_WriteListObj() = default;
cls_WriteMapString2Obj::~cls_WriteMapString2Obj() = default;
cls_WriteMapInt2Obj::~cls_WriteMapInt2Obj() = default;
cls_ReadListObj::~cls_ReadListObj() = default;
cls_ReadMapString2Obj::~cls_ReadMapString2Obj() = default;
cls_ReadMapInt2Obj::~cls_ReadMapInt2Obj() = default;
