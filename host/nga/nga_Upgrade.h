#pragma once

#include <string>
#include <vector>

#include "nga_Adoption.h"
#include "nga_Check.h"
#include "nga_UpgradeFile.h"

namespace nga {

/// What an upgrade of a file did, and what a person has to look at afterwards.
struct UpgradeOutcome {
    std::string path;
    std::string output;  ///< where the current database is
    bool dryRun = false;
    UpgradedFile file;
    /// What had no name, and has one now.
    std::vector<Adopted> adopted;
    /// Named objects that cannot be read, each with its path and cause.
    std::vector<Finding> unreadable;
    /// Objects that break a rule of their class.
    std::vector<Finding> findings;

    bool HasFindings() const { return !unreadable.empty() || !findings.empty(); }
};

/// Brings a file to the current schema, gives names to what has none where there is a place for it,
/// and looks at every object. The options' own functions for these two are not used.
UpgradeOutcome Upgrade(std::string const& path, UpgradeFileOptions options = {});

/// The account of an upgrade for people: what was done to each class, then what is to be looked at.
std::string UpgradeText(UpgradeOutcome const& outcome);
std::string UpgradeJson(UpgradeOutcome const& outcome);

}  // namespace nga
