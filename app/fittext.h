#pragma once

class QWidget;
class Ui_process;

/// Makes every text below `window` fit the place that the fixed layout gives it, starting from the
/// window's font: all texts together get a smaller size where one does not fit. Combo boxes, whose
/// items are the longest, are set narrower first.
void fitText(QWidget &window);

/// Gives translated captions, often longer than the English ones, the free room beside their
/// places: right-aligned ones that up to the margin of their page, the preview's that over the
/// frame. To be called before fitText().
void widenCaptions(const Ui_process &ui);
