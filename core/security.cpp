#include "security.h"

#include "blanks.h"

#include <array>

namespace {

struct Permission
{
    bool Security::*granted;
    const char *piece;
};

// pdftk takes the word "allow" repeated before each permission.
constexpr std::array<Permission, 4> permissions{{
    {&Security::printing, " allow printing"},
    {&Security::modifying, " allow modifycontents"},
    {&Security::copying, " allow copycontents"},
    {&Security::annotating, " allow modifyannotations"},
}};

} // namespace

QString securityOption(const Security &security)
{
    QString option;
    if (!isBlank(security.ownerPassword))
        option += QStringLiteral(" owner_pw ") + security.ownerPassword;
    if (!isBlank(security.userPassword) && security.userPassword != security.ownerPassword)
        option += QStringLiteral(" user_pw ") + security.userPassword;
    for (const Permission &permission : permissions) {
        if (security.*permission.granted)
            option += QLatin1String(permission.piece);
    }
    return option;
}
