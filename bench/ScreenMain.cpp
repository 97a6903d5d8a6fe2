#include "FullShop.h"
#include "platform/forms/Theme.h"

#include <QApplication>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

/// Measures with screens, as they look in the shop, over the full sample shop.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    forms::applyTheme(application, QCoreApplication::applicationDirPath() + u"/../bin/fonts"_s);
    benchmark::RunSpecifiedBenchmarks();
}
