#pragma once

#include "registers/ShopFigures.h"

#include <QDate>
#include <QString>

/// The words of the shop at a glance, on the screen and on its paper.
namespace glance {

/// "1,234".
QString count(qint64 number);
/// "1,234.50".
QString money(Currency amount);
/// "4 Feb".
QString shortDay(const QDate& day);
/// "Saturday, 10-Feb-2024".
QString longDay(const QDate& day);
/// What captions call the day: "today", or "that day" for another than the working date.
QString when(const QDate& day);
/// How far the lines in the shop are: "2 uncompleted, 1 ready"; those of which there are none are left out.
QString inWords(const figures::InShop& lines);
/// "up to 30 days old".
QString ageText(int age);
/// "Lines 29,491 of 32,767 (90%)".
QString roomText(const QString& what, const figures::Room& room);

} // namespace glance
