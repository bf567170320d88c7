#include "filetip.h"

#include "rtllayout.h"

#include <QFileInfo>

QString fileTip(const QString &path, const QLocale &locale)
{
    // Always HTML: Qt would interpret a name that contains "<b>" and hide the tag.
    QString tip = QStringLiteral("<div dir=\"ltr\" style=\"white-space:pre\">%1</div>")
                      .arg(leftToRight(path).toHtmlEscaped());
    const QFileInfo file(path);
    if (file.isFile())
        tip += QStringLiteral("<div>%1</div>")
                   .arg(locale.formattedDataSize(file.size(), 1, QLocale::DataSizeSIFormat));
    return tip;
}
