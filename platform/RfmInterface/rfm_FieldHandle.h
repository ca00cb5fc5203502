#pragma once

/// Names a column of a table. Names are numbered once for the process, so that a table finds the
/// column of a handle by a number and compares texts only once; a handle that is asked often is
/// therefore kept, best as a constant.
class rfm_FieldHandle {
public:
    /// \p index is the position of the column where it is known; a table where another column
    /// stands there looks the name up.
    explicit rfm_FieldHandle(char const* name, int index = -1);

    char const* Name() const { return m_name; }
    int Index() const { return m_index; }
    /// The number of the name.
    int Number() const { return m_number; }

private:
    char const* m_name;  ///< kept by the numbering of names
    int m_index;
    int m_number;
};
