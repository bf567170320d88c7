#include "rtllayout.h"

#include "ui_process.h"

#include <QFrame>
#include <QLineEdit>
#include <QStackedWidget>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableWidget>

namespace {

/// @param room the rectangle of `parent`, or the one that it will get
void mirrorIn(const QWidget &parent, const QRect &room)
{
    const auto children = parent.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget *child : children)
        child->setGeometry(QStyle::visualRect(parent.layoutDirection(), room, child->geometry()));
}

/// Paints a path from left to right, at the side of its column's title.
class PathDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale & /*locale*/) const override
    {
        return leftToRight(value.toString());
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->displayAlignment = QStyle::visualAlignment(option->direction, Qt::AlignLeft) |
                                   Qt::AlignVCenter | Qt::AlignAbsolute;
        option->direction = Qt::LeftToRight;
    }
};

} // namespace

void mirrorChildren(const QWidget &parent)
{
    mirrorIn(parent, parent.rect());
}

void mirrorPlaces(const Ui_process &ui)
{
    QStackedWidget *pages = ui.stackedWidget_dialog;
    if (!pages->isRightToLeft())
        return;
    mirrorChildren(*pages->parentWidget());
    for (int page = 0; page < pages->count(); ++page)
        mirrorIn(*pages->widget(page), pages->rect());
    for (const QFrame *frame : {ui.frame_6, ui.frame_4, ui.frame_2, ui.frame_3, ui.frame_8})
        mirrorChildren(*frame);

    for (QLineEdit *field : {ui.outputfolderEdit, ui.lineEdit_ownerpwd, ui.lineEdit_userpwd})
        field->setLayoutDirection(Qt::LeftToRight);
    ui.inputfiletableWidget->setItemDelegateForColumn(0, new PathDelegate(ui.inputfiletableWidget));
}

QString leftToRight(QString path)
{
    constexpr QChar leftToRightMark(0x200e);
    const QChar slash(QLatin1Char('/'));
    return path.replace(slash, QString(slash) + leftToRightMark);
}
