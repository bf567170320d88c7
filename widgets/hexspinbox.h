#pragma once

#include <QSpinBox>
#include <QStringList>

/// Steps through the length units "pt", "cm" and "in", wrapping at both ends. The value is the
/// unit's index; typed text is read as that number, never as a unit's name. A value outside the
/// range wraps: above it to "pt", below to "in". No form of the program uses it: it is part of the
/// widget set for others.
class HexSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit HexSpinBox(QWidget *parent = nullptr);

    /// The unit's name for 0, 1 and 2; "" for any other value.
    QString textFromValue(int value) const override;

private:
    const QStringList m_units;
};
