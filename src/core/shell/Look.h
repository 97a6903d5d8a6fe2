#pragma once

#include "jobcards/Differences.h"

#include <QString>

class QWidget;

/// Shows the shop as a file has it (a dated copy, or one that a restore has put aside) on a main screen of
/// its own, from which all lists, cards, books and papers open. Nothing in it can be changed. Returns, with
/// the living shop open again, when that screen is left. Throws OperatorError when the file is no shop's.
void lookInto(const QString& path);

/// The same of old books, on the folder of a client; the folder closed, the look ends.
void lookIntoBooks(const QString& path, const QString& client);

/// Compares the shop that is looked at with the living one, and shows what differs. Throws OperatorError for
/// a copy of another shop.
void showDifferences(QWidget* parent);

/// Brings a card or voucher of the shop that is looked at into the living one. The look goes on. Throws
/// OperatorError, with nothing brought back.
differences::Returned bringToLivingShop(const differences::Difference& difference);
