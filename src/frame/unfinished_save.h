#pragma once

#include "frame/save_group.h"
#include "frame/save_journal.h"

namespace korvin {

// Each answers 0, or minus the error number of the first call that failed; then what is left can be taken up
// again.

/// Brings a save to its end that was cut off, with its journal held: a committed one is completed, any other
/// gives the old files; then what lies beside is swept and the journal removed. May itself be cut off at any
/// call.
int bringToEnd(FileSystem& system, const SaveGroup& group, const SaveJournal& journal);

/// Gives the new files the targets' names. `done` counts those that have them.
int moveForward(FileSystem& system, const SaveGroup& group, std::size_t& done);

/// Removes what a save left beside its targets.
int sweep(FileSystem& system, const SaveGroup& group);

/// Flushes the folders of all targets.
int syncFolders(FileSystem& system, const SaveGroup& group);

/// Removes the journal for good, with what lies beside.
int clearAway(FileSystem& system, const SaveGroup& group);

}  // namespace korvin
