#pragma once

#include "convertlimits.h"
#include "imageplan.h"
#include "subprocess.h"

#include <string>
#include <vector>

/// The real ImageMagick under our policy, within `limits`, with `pixels` as the folder for pixels
/// that do not fit into memory.
SubprocessSpec magickCommand(const std::vector<std::string> &arguments, const ConvertLimits &limits,
                             const std::string &pixels);

/// What a run of `program`, the real ImageMagick, may do that reads `image` and writes into
/// `folders`.
Sandbox magickSandbox(const std::string &program, const std::string &image,
                      const std::vector<std::string> &folders);

/// The arguments that make the PDF `result` of `image`, which ImageMagick knows as `input`. Of what
/// the file holds beside its pixels the colour profile alone gets into it.
std::vector<std::string> pageArguments(const ConvertOptions &options, const ConvertedImage &image,
                                       const std::string &input, const std::string &result);
