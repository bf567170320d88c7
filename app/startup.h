#pragma once

class QApplication;

/// Prepares `application` for its window: plug-ins from the bundle alone, the bundle's folder as
/// the current directory, the window's style, the user's language, and a memory limit for images.
/// A missing folder is not reported.
void setUpApplication(QApplication &application);
