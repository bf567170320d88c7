#pragma once

#include <QString>

/// Text of the "File Size" column for a file of `bytes` bytes: 16 characters, right-aligned,
/// in KB (1000 bytes) up to 1024 * 1024 bytes and in MB (1000 * 1000 bytes) above.
/// Only the low 32 bits count, read as a signed number; "" when that number is not above 0.
QString sizeText(qint64 bytes);
