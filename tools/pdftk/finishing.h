#pragma once

#include "fileoutput.h"
#include "infofile.h"
#include "passwords.h"

#include <optional>
#include <string>
#include <vector>

/// Writes the PDF at `input` to `output`, an empty file, with `entries` in its information
/// dictionary and encrypted by AES-256 as `encryption` says, not at all without. Everything else
/// stays, object streams included. Data is read when it is written: memory holds the largest
/// stream, not the pages. Throws ToolError, with part of it written, when the input is damaged or
/// does not grant every right without a password.
void writeFinishedPdf(const std::string &input, const std::vector<InfoEntry> &entries,
                      const std::optional<Encryption> &encryption, FileOutput &output);
