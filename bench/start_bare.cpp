// The floor of the start: a bare Qt program that opens the same encrypted file and shows one empty window.
#define SQLITE_HAS_CODEC
#include <QApplication>
#include <QWidget>
#include <sqlcipher/sqlite3.h>

namespace {

class Window : public QWidget
{
    void paintEvent(QPaintEvent*) override
    {
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    sqlite3* database = nullptr;
    const QByteArray path = QCoreApplication::arguments().value(1).toUtf8();
    const QByteArray password = QCoreApplication::arguments().value(2).toUtf8();
    sqlite3_open_v2(path.constData(), &database, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_key(database, password.constData(), static_cast<int>(password.size()));
    sqlite3_exec(database, "PRAGMA cipher_page_size=4096", nullptr, nullptr, nullptr);
    if (sqlite3_exec(database, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr) != SQLITE_OK)
        return 1;
    Window window;
    window.showMaximized();
    const int result = QApplication::exec();
    sqlite3_close(database);
    return result;
}
