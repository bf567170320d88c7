#include "hexspinbox.h"

HexSpinBox::HexSpinBox(QWidget *parent)
    : QSpinBox(parent)
    , m_units({tr("pt"), tr("cm"), tr("in")})
{
    setRange(0, 2);
    setWrapping(true);
    // The base was constructed before there was a name to show, and shows none until it is set.
    setValue(0);
}

QString HexSpinBox::textFromValue(int value) const
{
    return m_units.value(value);
}
