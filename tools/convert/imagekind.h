#pragma once

/// What an image file is by its first bytes, as far as that decides how it is converted.
enum class ImageKind { Jpeg, Png, Tiff, Gif, Other };

ImageKind imageKind(int file);
