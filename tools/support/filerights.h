#pragma once

#include <string>

/// Gives the file open as `file` the rights of the one at `path`, which it is about to replace:
/// mode, group, access list, extended attributes of the user and, for root, the owner. Where the
/// group or the list cannot be kept, nobody but the owner and everybody gets rights. Without a file
/// at `path`, which is no symbolic link, those of a new file of the user.
void takeOverRights(int file, const std::string &path);
