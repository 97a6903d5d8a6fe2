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
