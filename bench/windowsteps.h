#pragma once

#include <QList>
#include <QString>
#include <QUrl>

class Process;

/// What the measurements and the soak do with the real window. Drops: demo/dropfiles.h.

/// The files of `folder` by name.
QList<QUrl> filesIn(const QString &folder);

/// Sets the text of the field named `field`.
void setField(Process &window, const char *field, const QString &text);

/// Clicks the convert button and waits for the end of a one-by-one run; the milliseconds taken.
double convertAll(Process &window);
