#pragma once

class Ui_process;

/// Prepares the layout's controls for screen readers: each label becomes the buddy of its field,
/// and each control without a visible text gets a name and a tool tip.
void describeControls(const Ui_process &ui);
