#pragma once

#include <QString>

/// Passwords as typed, and the permissions of a reader without the owner's password.
struct Security
{
    QString ownerPassword;
    QString userPassword;
    bool printing = false;
    bool modifying = false;
    bool copying = false;
    bool annotating = false;
};

/// Tail of the pdftk command, each piece with a leading blank; "" when nothing is set.
/// A password of blanks alone counts as none; a user password equal to the owner's is dropped.
/// Permissions are included even without a password.
QString securityOption(const Security &security);
