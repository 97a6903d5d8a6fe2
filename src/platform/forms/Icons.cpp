#include "platform/forms/Icons.h"

#include <QAbstractButton>
#include <QIcon>

namespace forms {

void applyIcons(QWidget& screen, const char* suffix)
{
    for (QAbstractButton* button : screen.findChildren<QAbstractButton*>()) {
        const QString name = button->property("iconName").toString();
        if (name.isEmpty())
            continue;
        button->setIcon(
            QIcon(QStringLiteral(":/icons/") + name + QLatin1String(suffix) + QStringLiteral(".svg")));
        button->setIconSize(QSize(24, 24));
    }
}

} // namespace forms
