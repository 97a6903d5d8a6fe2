#pragma once

#include "support/Fields.h"
#include "support/Files.h"
#include "support/Modal.h"
#include "support/Prompts.h"
#include "support/Shop.h"

#include <QTest>
#include <QTimer>
#include <memory>

/// A test whose functions each begin in a fresh shop and must meet every prompt and screen that they expect.
class ShopTest : public QObject
{
    Q_OBJECT
protected:
    std::unique_ptr<Shop> shop;
    std::unique_ptr<Prompts> prompts;

    /// Lays what all functions of the test need.
    virtual void lay() {}

    /// After a restore the program is told to end, and opens no screen any more until it begins anew.
    static void forgetExit()
    {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }

private Q_SLOTS:
    void init()
    {
        forgetExit();
        shop = std::make_unique<Shop>();
        prompts = std::make_unique<Prompts>();
        lay();
    }
    void cleanup()
    {
        const bool met = prompts->allMet();
        prompts.reset();
        shop.reset();
        QVERIFY(met);
    }
};
