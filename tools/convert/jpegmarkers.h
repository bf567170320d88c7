#pragma once

/// The second bytes of the markers in a JPEG file (ITU T.81, table B.1) that its reader handles.
enum JpegMarker : int {
    baseline = 0xC0,
    progressive = 0xC2,
    huffmanTables = 0xC4,
    firstRestart = 0xD0,
    lastRestart = 0xD7,
    startOfImage = 0xD8,
    endOfImage = 0xD9,
    startOfScan = 0xDA,
    quantization = 0xDB,
    restartInterval = 0xDD,
    application0 = 0xE0,
    application1 = 0xE1,
    application2 = 0xE2,
    application13 = 0xED,
    application14 = 0xEE,
    application15 = 0xEF,
    losslessLs = 0xF7,
    comment = 0xFE,
};
