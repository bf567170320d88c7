#pragma once

#include <QSize>

/// The room for the preview, in pixels.
inline constexpr QSize previewBox{151, 187};

/// Size in pixels of the preview of an image of `image` pixels (both sides above 0): as wide or as
/// high as the box allows, the other side by integer division, so a very flat image gives 0.
QSize previewSize(QSize image);
