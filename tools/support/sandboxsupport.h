#pragma once

#include <string>

/// The version of Landlock that the kernel offers; -1, with errno set, when it offers none.
int landlockAbi();
/// Whether system calls can be filtered; errno is set when they cannot.
bool hasSeccomp();

/// Whether both are there.
bool isSandboxComplete();

/// What enterSandbox() has to work with on this system: "Landlock ABI 7, seccomp", one of the two,
/// or "none" with the reasons in brackets.
std::string describeSandbox();
