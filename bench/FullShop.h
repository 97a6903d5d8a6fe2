#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// The full sample shop, in a temporary folder of its own, opened as the program opens it: 16,000 cards,
/// 32,000 lines, 75,000 postings, 8,000 clients, 200 workers. The same every time; built once, copied here.
class FullShop
{
public:
    static constexpr int cards = 16000;
    static constexpr int lines = 32000;

    FullShop();
    ~FullShop();
    FullShop(const FullShop&) = delete;
    FullShop& operator=(const FullShop&) = delete;

    QString folder() const { return m_folder.path(); }
    /// Titles of the clients, and names of the catalogue's garments.
    static const QStringList& clients() { return s_clients; }
    static const QStringList& garments() { return s_garments; }

    /// Writes something, so that lists are filled anew.
    static void touch();

private:
    QTemporaryDir m_folder;
    static inline QStringList s_clients;
    static inline QStringList s_garments;
};
