#include "look.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

void applyLook(QApplication &application)
{
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(application.style()->standardPalette());
}
