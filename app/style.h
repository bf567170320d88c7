#pragma once

class QApplication;

/// Gives `application` the light colours that the window's own pictures and style sheets are made
/// for and one font, the user's, whatever theme the desktop has.
void applyStyle(QApplication &application);
