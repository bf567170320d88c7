#pragma once

#include <string>

/// Puts `name`, a PDF's file name without its extension, into the PDF that ImageMagick has written
/// to the descriptor `file`, as its title.
///
/// ImageMagick 6.9.11 writes the title in UTF-16 with a null character at its end and without the
/// mark at its start, so that readers take every other byte for a character, and drops the upper
/// half of each unit. The right text has the same length, so it is written over the wrong one;
/// a file with a title of any other form is left alone.
void repairTitle(int file, const std::string &name);
