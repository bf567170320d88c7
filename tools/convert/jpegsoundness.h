#pragma once

/// Whether libjpeg accepts everything before the image data in the JPEG file behind the descriptor
/// `file` without a complaint: what other readers make of damaged tables is unpredictable.
bool isSoundJpeg(int file);
