#pragma once

class QLineEdit;

/// Lets `field` take a dropped folder as its path. Other files dropped on it go to its window; text
/// is the field's own affair.
void takeDroppedFolder(QLineEdit &field);
