#pragma once

#include <sys/types.h>

/// To be called first of all: nobody may look into the memory of this process, which holds
/// passwords, and no core dump of it or of its children is made.
void forbidCoreDumps();

/// Of the caller's descriptors only the standard streams stay, and these are open from now on (on
/// /dev/null if need be, so that no file of ours takes their place). New files are for the user
/// alone, signals wait for runSubprocess(), and processes that a child leaves behind become ours.
/// Throws ToolError.
void prepareProcess();

/// The umask that this process was started with, for the files that the user gets.
mode_t userMask();
