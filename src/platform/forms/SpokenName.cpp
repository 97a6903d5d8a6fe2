#include "platform/forms/SpokenName.h"

#include "platform/values/Literals.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace forms {

QString spokenName(const QWidget& control)
{
    if (!control.accessibleName().isEmpty() || !control.parentWidget())
        return control.accessibleName();
    for (const QLabel* label : control.parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        if (label->buddy() != &control)
            continue;
        QString caption = label->text().remove(u'&').trimmed();
        while (caption.endsWith(u':') || caption.endsWith(u' '))
            caption.chop(1);
        return caption;
    }
    return {};
}

void nameControls(const QWidget& screen)
{
    for (QAbstractItemView* list : screen.findChildren<QAbstractItemView*>())
        if (list->accessibleName().isEmpty())
            list->setAccessibleName(spokenName(*list));
    for (const QComboBox* box : screen.findChildren<QComboBox*>()) {
        if (box->isEditable())
            box->lineEdit()->setAccessibleName(spokenName(*box));
        if (QAccessible::isActive()) // a reader goes into closed lists, too
            box->view()->setAccessibleName(spokenName(*box));
    }
}

} // namespace forms
