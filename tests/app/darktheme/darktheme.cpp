// A desktop theme with dark colours, large letters and a style of its own, loaded like any
// desktop's: QT_QPA_PLATFORMTHEME=tessarodark.

#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <qpa/qplatformtheme.h>
#include <qpa/qplatformthemeplugin.h>

namespace {

QPalette darkPalette()
{
    QPalette colours(Qt::white, QColor(0x30, 0x30, 0x30), QColor(0x50, 0x50, 0x50), Qt::black,
                     QColor(0x40, 0x40, 0x40), Qt::white, Qt::white, QColor(0x20, 0x20, 0x20),
                     QColor(0x2a, 0x2a, 0x2a));
    colours.setColor(QPalette::ToolTipBase, Qt::black);
    colours.setColor(QPalette::ToolTipText, Qt::white);
    return colours;
}

class DarkTheme : public QPlatformTheme
{
public:
    // A separate one for every kind of widget, as desktop themes have for some.
    const QPalette *palette(Palette /*type*/) const override { return &colours; }

    const QFont *font(Font type) const override
    {
        return type == SystemFont ? QPlatformTheme::font(type) : &large;
    }

    QVariant themeHint(ThemeHint hint) const override
    {
        return hint == StyleNames ? QStringList(QStringLiteral("Windows"))
                                  : QPlatformTheme::themeHint(hint);
    }

private:
    QPalette colours = darkPalette();
    QFont large{QStringLiteral("DejaVu Sans"), 30};
};

} // namespace

class DarkThemePlugin : public QPlatformThemePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QPlatformThemeFactoryInterface_iid FILE "darktheme.json")

public:
    QPlatformTheme *create(const QString & /*key*/, const QStringList & /*params*/) override
    {
        return new DarkTheme;
    }
};

#include "darktheme.moc"
