#pragma once

#include "cow_String.h"

/// Names a field in a class. Attribute classes number their fields from 0 in registration order;
/// the frame's own fields use -1 and are found by name.
class cls_FieldHandle {
public:
    cls_FieldHandle(int index, cow_String const& name) : m_index(index), m_name(name) {}

    int Index() const { return m_index; }
    cow_String const& Name() const { return m_name; }

private:
    int m_index;
    cow_String m_name;
};
