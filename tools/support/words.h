#pragma once

#include <map>
#include <string>
#include <string_view>

/// Words to be replaced, and what by.
using Replacements = std::map<std::string, std::string, std::less<>>;

/// `text` with every one of the words replaced, the longest where several begin at the same place;
/// what has been put in is not looked at again.
std::string replaced(std::string_view text, const Replacements &words);
