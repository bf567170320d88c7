#pragma once

class QApplication;

/// Lets command lines of several thousand paths through: the kernel (execve(2)) allows arguments a
/// quarter of the stack limit, up to 6 MiB. To be called before any child process is started.
void raiseArgumentLimit();

/// Prepares `application` for its window: plug-ins from the bundle alone, the bundle's folder as
/// the current directory, the window's own look, the user's language, and a bound on what one
/// image may take. Nothing is reported when a folder is missing.
void setUpApplication(QApplication &application);
