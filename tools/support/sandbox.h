#pragma once

#include <string>
#include <vector>

/// What a process in a sandbox may do with a file, or with a folder and all below it.
enum class Access {
    /// Read files and list folders.
    Read,
    /// Read and start a program.
    Execute,
    /// Read, write, create and remove; start and link nothing.
    Write,
};

struct FileRule
{
    /// Symbolic links are followed; a path that leads nowhere is left out.
    std::string path;
    Access access;
};

/// Limits for a process that reads files of strangers, beside those in sandbox.cpp for all.
struct Sandbox
{
    /// Beside the system's libraries and their data.
    std::vector<FileRule> files;
    /// Whether it starts other processes, and makes folders and symbolic links for them.
    bool startsProcesses = false;
};

/// Rules for running `program`, which is in the file system at that path: the program itself, the
/// libraries that LD_LIBRARY_PATH names, and what ImageMagick has beside it outside of /usr.
std::vector<FileRule> rulesToRun(const std::string &program);

/// Confines this process and all that it starts, for good; a second sandbox narrows the first.
/// Parts that the kernel does not offer, or a container refuses, are left out. Throws ToolError
/// when a part that is offered cannot be set up.
void enterSandbox(const Sandbox &sandbox);
