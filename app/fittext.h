#pragma once

class QWidget;

/// Makes every text below `window` fit the place that the fixed layout gives it, starting from the
/// window's font: all texts together get a smaller size where one does not fit. Combo boxes, whose
/// items are the longest, are set narrower first.
void fitText(QWidget &window);
