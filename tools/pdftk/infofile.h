#pragma once

#include <optional>
#include <string>
#include <vector>

/// An entry of a PDF's information dictionary, in UTF-8.
struct InfoEntry
{
    std::string key;
    std::string value;
};

/// The entries of an info file: lines "InfoKey:KEY" with "InfoValue:VALUE" behind each. A line that
/// belongs to no such pair goes on with the value before it. `content` is in `charset`, or in UTF-8
/// if it begins with a byte order mark; lines may end in CR LF. Nothing when it does not
/// begin with a pair.
std::optional<std::vector<InfoEntry>> infoEntries(const std::string &content,
                                                  const std::string &charset);
