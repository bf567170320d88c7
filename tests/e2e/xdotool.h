#pragma once

#include <QProcess>
#include <QStringList>
#include <QTest>

// Mouse and keys of an X server, by xdotool.

constexpr int stepTimeout = 30000; // ms

/// Runs a command and returns what it prints; "" when it fails.
inline QString run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(stepTimeout);
    return process.exitCode() == 0 ? QString::fromUtf8(process.readAllStandardOutput()).trimmed()
                                   : QString();
}

inline QString xdotool(const QStringList &arguments)
{
    return run(QStringLiteral("xdotool"), arguments);
}

/// Whether the window with `title` has the keyboard.
inline bool hasKeyboard(const QString &title)
{
    return xdotool({QStringLiteral("getwindowfocus"), QStringLiteral("getwindowname")}) == title;
}

/// Waits until the window with `title` has the keyboard.
inline bool waitForKeyboard(const QString &title)
{
    return QTest::qWaitFor([&title] { return hasKeyboard(title); }, stepTimeout);
}

inline void clickAt(int x, int y)
{
    xdotool({QStringLiteral("mousemove"), QString::number(x), QString::number(y),
             QStringLiteral("click"), QStringLiteral("1")});
}

/// Presses keys, named as xdotool names them, with blanks between them.
inline void press(const QString &keys)
{
    xdotool(QStringList(QStringLiteral("key")) + keys.split(QLatin1Char(' ')));
}

inline void type(const QString &text)
{
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("5"), text});
}

/// Chooses `file` in the open dialog that has the keyboard. In quotes the dialog offers no
/// completions: they load while keys are pressed, and keys that come faster than any person's end
/// up in a list that is just closing.
inline void choose(const QString &file)
{
    type(QStringLiteral("\"%1\"").arg(file));
    press(QStringLiteral("Return"));
}
