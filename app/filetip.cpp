#include "filetip.h"

#include "rtllayout.h"

#include <QFileInfo>

QString fileTip(const QString &path, const QLocale &locale)
{
    // As HTML always: Qt would take a name with "<b>" in it for some, and shows nothing of the tag.
    QString tip = QStringLiteral("<div dir=\"ltr\" style=\"white-space:pre\">%1</div>")
                      .arg(leftToRight(path).toHtmlEscaped());
    const QFileInfo file(path);
    if (file.isFile())
        tip += QStringLiteral("<div>%1</div>")
                   .arg(locale.formattedDataSize(file.size(), 1, QLocale::DataSizeSIFormat));
    return tip;
}
