#pragma once

#include "windowfixture.h"

#include <QStringList>

#include <functional>
#include <optional>

/// One of the eight ways to convert: merged or not, with or without a description and security.
struct Mode
{
    const char *name;
    bool merged;
    bool title;
    bool security;

    bool hasOptions() const { return title || security; }
};

const QList<Mode> &allModes();

/// The modes at the corners: without options, and with a description and security.
inline const Mode &singlePlain()
{
    return allModes().at(0);
}
inline const Mode &singleFull()
{
    return allModes().at(3);
}
inline const Mode &mergedPlain()
{
    return allModes().at(4);
}
inline const Mode &mergedFull()
{
    return allModes().at(7);
}

/// The state after a run. `summary()` writes it as lines, for readable differences.
struct Outcome
{
    /// The fake tools' calls, by the tools' first letters: "cpcp".
    QString calls;
    /// Names and contents of the output folder.
    QStringList files;
    int fileIndex = 0;
    /// Value and maximum of the progress bar.
    QString bar;
    /// The names of the pdftk run as the window keeps them, without the folder.
    QString lastIn = {};
    QString lastOut = {};
    /// Titles of the message boxes, in order.
    QStringList boxes = {};

    QStringList summary() const;
};

/// What is expected of one fault in the four kinds of run; description and security are named
/// apart by no fault of a tool.
struct ExpectedOutcomes
{
    std::optional<Outcome> single;
    std::optional<Outcome> singleFinished;
    std::optional<Outcome> merged;
    std::optional<Outcome> mergedFinished;

    const std::optional<Outcome> &of(const Mode &mode) const;
};

/// A window with two images, a.jpg and b.png, ready to convert in a mode. Message boxes are
/// closed as they come and remembered.
class FaultFixture : public WindowFixture
{
public:
    explicit FaultFixture(const Mode &mode);
    ~FaultFixture();

    Outcome outcome();
    /// True when the window handles what is posted to it, turns its pages and draws itself.
    bool answers();
    /// Waits until the fake tools have been called so often.
    bool waitForCalls(qsizetype count);
    /// Waits, without handling any event, until every tool called so far has ended.
    bool waitForToolsAlone();
    void setFolderWritable(bool writable);

private:
    QString shortened(QString text) const;

    QTimer watcher;
    QStringList boxes;
};

/// Replaces a tool beside the test program while it lives.
class ToolPlace
{
public:
    enum Kind { Missing, NotExecutable };

    ToolPlace(const QString &tool, Kind kind);
    ~ToolPlace();

private:
    QString place;
    QString aside;
};

Q_DECLARE_METATYPE(Mode)
Q_DECLARE_METATYPE(Outcome)
