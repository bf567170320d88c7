#include "rememberedfolder.h"

RememberedFolder::RememberedFolder(const QString &key)
    : m_settings(QStringLiteral("setting.ini"), QSettings::IniFormat)
    , m_key(key)
{
}

QString RememberedFolder::read() const
{
    return m_settings.value(m_key, QStringLiteral(".")).toString();
}

void RememberedFolder::write(const QString &folder)
{
    m_settings.setValue(m_key, folder);
    m_settings.sync();
}
