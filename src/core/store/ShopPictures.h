#pragma once

#include <QString>

/// The picture that a line's link stands for. A link is a whole path, written when the picture was taken; the
/// shop may have moved since, or come from another system, so only the file's name counts: the file of that
/// name in this shop's folder of pictures. Empty where the shop has none.
QString shopPicture(const QString& link);

/// The file to show for a link: the shop's own, else the linked one wherever it lies. Empty where neither is.
QString shownPicture(const QString& link);
