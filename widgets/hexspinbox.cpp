#include "hexspinbox.h"

HexSpinBox::HexSpinBox(QWidget *parent)
    : QSpinBox(parent)
    , units({tr("pt"), tr("cm"), tr("in")})
{
    setRange(0, 2);
    setWrapping(true);
}

QString HexSpinBox::textFromValue(int value) const
{
    return units.value(value);
}
