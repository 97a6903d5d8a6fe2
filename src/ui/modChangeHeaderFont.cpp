#include "ui/modChangeHeaderFont.h"

#include <QHeaderView>
#include <QTreeView>

void ChangeHeaderFont(QTreeView& list, const QTreeView& fontList, int)
{
    list.header()->setFont(fontList.header()->font());
}
