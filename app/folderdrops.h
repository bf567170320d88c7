#pragma once

class QLineEdit;

/// Lets `field` take a dropped folder as its path. Other files dropped on it go to its window; text
/// is handled by the field.
void takeDroppedFolder(QLineEdit &field);
