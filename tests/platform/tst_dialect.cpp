#include <QtTest>
class tst_dialect : public QObject
{
    Q_OBJECT
};
QTEST_GUILESS_MAIN(tst_dialect)
#include "tst_dialect.moc"
