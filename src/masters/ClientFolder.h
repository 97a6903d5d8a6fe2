#pragma once

#include <QString>
#include <functional>

/// Opens the folder of a client, by title, over the screen in front: F3 wherever a client stands. Does
/// nothing for a title that is no client's.
void showClientFolder(const QString& client);

/// Opens old books, only to be looked at, on the folder of a client.
void showOldBooks(const QString& file, const QString& client);
void setOldBooks(std::function<void(const QString& file, const QString& client)> show);

/// The folder shows job cards, so its screen stands above those that lead to it: the program tells here what
/// opens it.
void setClientFolder(std::function<void(const QString& client)> show);
