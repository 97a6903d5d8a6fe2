#include "support/ShopTest.h"

#include <QTest>

void ShopTest::init()
{
    shop = std::make_unique<Shop>();
    prompts = std::make_unique<Prompts>();
    lay();
}

void ShopTest::cleanup()
{
    const bool met = prompts->allMet();
    prompts.reset();
    shop.reset();
    QVERIFY(met);
}

QString focused(const QWidget& screen)
{
    const QWidget* widget = screen.focusWidget();
    return widget ? widget->objectName() : QString();
}

void save() { press(Qt::Key_S, Qt::AltModifier); }

void remove() { press(Qt::Key_D, Qt::AltModifier); }
