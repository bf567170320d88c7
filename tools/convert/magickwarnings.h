#pragma once

#include <string_view>

/// Whether `messages`, of an ImageMagick that has ended well, tell that its image is not whole:
/// versions 6.9.11 and 7.1 make a page of the part that is there. Everything else that they warn
/// of, unknown tags and such, is no reason to refuse an image.
bool reportsDamage(std::string_view messages);
