#pragma once

#include <QTemporaryDir>

/// A shop of many years in a temporary folder, opened as the program opens it: 8,000 clients, 20 items, 20
/// workers, 15,000 cards of two lines each with their vouchers. The same every time.
class BigShop
{
public:
    static constexpr int clients = 8000;
    static constexpr int cards = 15000;
    static constexpr int linesPerCard = 2;

    BigShop();
    ~BigShop();
    BigShop(const BigShop&) = delete;
    BigShop& operator=(const BigShop&) = delete;

    QString folder() const { return m_folder.path(); }
    static QString clientName(int number);

private:
    QTemporaryDir m_folder;
};
