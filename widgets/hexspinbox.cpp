#include "hexspinbox.h"

HexSpinBox::HexSpinBox(QWidget *parent)
    : QSpinBox(parent)
    , m_units({tr("pt"), tr("cm"), tr("in")})
{
    setRange(0, 2);
    setWrapping(true);
    // The base class could not call textFromValue() yet; setting the value does.
    setValue(0);
}

QString HexSpinBox::textFromValue(int value) const
{
    return m_units.value(value);
}
