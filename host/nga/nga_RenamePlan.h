#pragma once

#include <vector>

#include "nga_History.h"

namespace nga {

/// One step on the way of objects to their new names. An empty name to go to stands for an object
/// that makes room, since nothing of it is left behind the run.
struct RenameStep {
    Collection const* collection;
    cow_String from;
    cow_String to;
};

/// The renames of a run, as a script makes them once more: each object goes to its last name at
/// once, in an order in which every name is free when its turn comes. Objects that change places go
/// by way of a name that the run itself had used.
struct RenamePlan {
    std::vector<RenameStep> steps;
    /// What is left to be changed when the steps were made: an object that was renamed has its
    /// former content as what was before, under its new name.
    std::vector<EntryChange> left;
};
RenamePlan PlanRenames(EditRun const& run);

/// Takes out of the runs what leaves nothing behind: objects that one run made and a later one took
/// away, under whatever name.
void DropPassing(std::vector<EditRun>& runs);

}  // namespace nga
