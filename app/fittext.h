#pragma once

class QWidget;
class Ui_process;

/// Makes every text below `window` fit its place in the fixed layout. If one does not fit, all
/// texts get a smaller size than the window's font. Combo boxes, whose items are the longest, first
/// get a narrower font.
void fitText(QWidget &window);

/// Widens the places of translated captions, often longer than the English ones: right-aligned ones
/// up to the margin of their page, the preview's across its frame. Call it before fitText().
void widenCaptions(const Ui_process &ui);
