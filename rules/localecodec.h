#pragma once

class QTextCodec;

/// Codec of the charset that the environment's locale names; UTF-8 for the C and POSIX locales
/// and for a charset without a codec. Never null.
QTextCodec *localeCodec();
