#pragma once

#include "convertlimits.h"
#include "subprocess.h"

#include <string>
#include <vector>

/// The real ImageMagick under our policy: where it finds its policy, its bounds, its place for
/// pixels that do not fit into memory, and `words` as its arguments.
ChildSpec magickRun(const std::vector<std::string> &words, const ConvertLimits &limits,
                    const std::string &pixels);

/// The arguments that make a PDF `result` of the image `input`, with `options`, and nothing in it
/// that the file tells beside its pixels, but for the colour profile.
std::vector<std::string> pageWords(const std::vector<std::string> &options,
                                   const std::string &input, const std::string &result);
