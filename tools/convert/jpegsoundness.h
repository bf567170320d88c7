#pragma once

/// Whether libjpeg accepts everything before the image data in the JPEG file behind the descriptor
/// `file` without a warning: how other readers handle damaged tables is unpredictable.
bool isSoundJpeg(int file);
