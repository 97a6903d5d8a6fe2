#pragma once

#include <QString>
#include <functional>

/// Opens the folder of a client, by title, over the screen in front: F3 wherever a client stands. Does
/// nothing for a title that is no client's.
void showClientFolder(const QString& client);

/// The folder shows job cards, so its screen stands above those that lead to it: the program tells here what
/// opens it.
void setClientFolder(std::function<void(const QString& client)> show);
