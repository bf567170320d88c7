#pragma once

#include "subprocess.h"

#include <string_view>

/// Whether `messages`, of an ImageMagick that reported success, say that its image is not whole:
/// versions 6.9.11 and 7.1 make a page of the part that is there. Other warnings, of unknown tags
/// for example, are no reason to refuse an image.
bool reportsDamage(std::string_view messages);

/// Makes a success of the `result` of an ImageMagick whose only error was the size that the header
/// of a BMP states: it makes the whole page of such a file, and many programs write them.
void forgiveWrongFileSize(SubprocessResult &result);
