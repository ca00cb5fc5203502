#pragma once

#include "cls_Uid.h"
#include "cow_2DArray.h"
#include "cow_List.h"
#include "cow_Map.h"
#include "cow_String.h"

class cls_ReadVisitor;
class cls_WriteVisitor;

// The persistent forms of collections of plain values: the container, and an identity of its own,
// so that a shared collection is one record. Assigning from the plain container keeps the identity.

/// A list of doubles that is a record.
class cls_xp1DArrayListDouble : public cow_List<double> {
public:
    cls_xp1DArrayListDouble() = default;
    explicit cls_xp1DArrayListDouble(cow_List<double> const& list) : cow_List<double>(list) {}
    explicit cls_xp1DArrayListDouble(cls_ReadVisitor const& visitor);
    cls_xp1DArrayListDouble& operator=(cow_List<double> const& list);
    void DBWrite(cls_WriteVisitor const& visitor) const;

    cls_Uid uid = cls_Uid::AllocateUid();
};

/// A list of integers that is a record.
class cls_xp1DArrayListInt : public cow_List<int> {
public:
    cls_xp1DArrayListInt() = default;
    explicit cls_xp1DArrayListInt(cow_List<int> const& list) : cow_List<int>(list) {}
    explicit cls_xp1DArrayListInt(cls_ReadVisitor const& visitor);
    cls_xp1DArrayListInt& operator=(cow_List<int> const& list);
    void DBWrite(cls_WriteVisitor const& visitor) const;

    cls_Uid uid = cls_Uid::AllocateUid();
};

/// A map from names to single-precision numbers that is a record.
class cls_xpMapString2Float : public cow_Map<cow_String, float> {
public:
    cls_xpMapString2Float() = default;
    explicit cls_xpMapString2Float(cow_Map<cow_String, float> const& map)
        : cow_Map<cow_String, float>(map) {}
    explicit cls_xpMapString2Float(cls_ReadVisitor const& visitor);
    cls_xpMapString2Float& operator=(cow_Map<cow_String, float> const& map);
    void DBWrite(cls_WriteVisitor const& visitor) const;

    cls_Uid uid = cls_Uid::AllocateUid();
};

/// A two-dimensional array of doubles, row-major, that is a record.
class cls_xp2DArrayDouble : public cow_2DArray<double> {
public:
    cls_xp2DArrayDouble() : cow_2DArray<double>(0, 0) {}
    cls_xp2DArrayDouble(int rows, int columns) : cow_2DArray<double>(rows, columns) {}
    explicit cls_xp2DArrayDouble(cow_2DArray<double> const& array) : cow_2DArray<double>(array) {}
    explicit cls_xp2DArrayDouble(cls_ReadVisitor const& visitor);
    cls_xp2DArrayDouble& operator=(cow_2DArray<double> const& array);
    void DBWrite(cls_WriteVisitor const& visitor) const;

    cls_Uid uid = cls_Uid::AllocateUid();
};

/// A plain array as a record of its own, with a new identity.
cls_xp2DArrayDouble cls_xp2DArrayDoubleFromCow(cow_2DArray<double> const& array);
