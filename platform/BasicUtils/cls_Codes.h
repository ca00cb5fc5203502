#pragma once

// The persistent codes of attributes and collections. They stand in every registered schema, so a
// number is never reused.

/// What kind of value an attribute holds.
enum cls_AttributeType : int {
    cls_AttributeInt = 5,
    cls_AttributeDouble = 10,
    cls_AttributeString = 11,
    cls_AttributeBool = 13,
    /// Stored as its literal, so that renumbering an enumeration leaves databases readable.
    cls_AttributeEnum = 14,
    cls_AttributeObject = 15
};

/// How many values an attribute holds, and under which keys.
enum cls_CollectionType : int {
    cls_CollectionNone = 0,
    cls_CollectionList = 1,
    cls_CollectionMapString = 2,
    cls_CollectionMapInt = 3,
    cls_CollectionListDouble = 52,
    cls_CollectionListInt = 54,
    cls_CollectionMapString2Float = 63,
    cls_CollectionArray2DDouble = 82
};

/// The TypeIds of the two container kinds, third argument of a collection's registration.
inline constexpr unsigned cls_ListTypeId = 0x230001;
inline constexpr unsigned cls_MapTypeId = 0x230002;

/// The parent of every class that has none in the system.
inline constexpr unsigned cls_RootTypeId = 1;
