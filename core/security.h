#pragma once

#include <QString>

/// Passwords as typed and the permissions granted to who opens the PDF without the owner's.
struct Security
{
    QString ownerPassword;
    QString userPassword;
    bool printing = false;
    bool modifying = false;
    bool copying = false;
    bool annotating = false;
};

/// Tail of the pdftk command, each piece with a leading blank; "" when nothing is asked for.
/// A password of blanks alone counts as none; a user password equal to the owner's is dropped.
/// Permissions are named also when there is no password.
QString securityOption(const Security &security);
