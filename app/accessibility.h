#pragma once

class Ui_process;

/// Gives the layout's controls what a screen reader and a hovering user need: each label becomes
/// the buddy of its field, each control without a visible text gets a name and a tool tip.
void describeControls(const Ui_process &ui);
