#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

/// What an upgrade did to the rows of one class.
struct dbc_ClassReport {
    std::string name;           ///< as it was stored
    std::string newName;        ///< under which its rows are now; empty if it kept its own
    std::vector<int> versions;  ///< the stored one, then that of each step
    long long rowsIn = 0;
    long long rowsOut = 0;
    bool retired = false;  ///< its table is gone
    /// Rows by field: that got a value in it, that lost one with it.
    std::map<std::string, long long> filled;
    std::map<std::string, long long> dropped;
    /// Rows by the field that a value was in and the one that it is in now.
    std::map<std::pair<std::string, std::string>, long long> renamed;
    /// An enumeration without a literal was given its class's default.
    std::map<std::string, long long> defaulted;
    /// Rows by the field that had a value which another field or class has now: it is not lost.
    std::map<std::string, long long> taken;
    /// A number or flag has no value, or got a 0 for none, and its class's default is another.
    std::map<std::string, long long> missing;
    struct Note {
        long long rows = 0;
        int firstRow = 0;
    };
    std::map<std::string, Note> notes;

    bool Changed() const { return versions.size() > 1 || retired || rowsIn != rowsOut; }
};

/// References of a field that lead to no row.
struct dbc_DanglingReport {
    std::string className;
    std::string field;
    long long rows = 0;
    int firstRow = 0;
};

/// Objects of a class that no row refers to.
struct dbc_UnreferencedReport {
    unsigned typeId = 0;
    std::string className;
    long long rows = 0;
    int firstRow = 0;
    std::vector<bool> reached;  ///< by row, whether something refers to it
};

/// What the references of a database lead to, and what they do not.
struct dbc_References {
    std::vector<dbc_DanglingReport> dangling;
    std::vector<dbc_UnreferencedReport> unreferenced;
};

/// The account of one upgrade.
struct dbc_UpgradeReport {
    std::map<unsigned, dbc_ClassReport> classes;  ///< by TypeId as stored
    /// Whoever wants to know looks for it; see dbc_Upgrade::LookAtReferences.
    dbc_References references;
};
