#pragma once

/// The start guard of a library or module: a plain integer without locking, since start and end run
/// on one thread by contract with the host. Each unit has one of its own and shows it to nobody.
class uti_Guard {
public:
    /// Only the first of nested calls answers true, and counts the unit in the caller's integer.
    bool Raise(int& count) {
        if (m_raised++ != 0) return false;
        ++count;
        return true;
    }

    /// Only the call that matches the first Raise answers true, and takes the unit out of the
    /// count.
    bool Lower(int& count) {
        if (m_raised-- != 1) return false;
        --count;
        return true;
    }

private:
    int m_raised = 0;
};
