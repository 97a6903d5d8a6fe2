#pragma once

#include <QDate>
#include <QString>

/// The steps of the start that need no screen.

/// Fills `session.appFolder` and `session.partsFolder` for a program in this folder, which has no slash at
/// its end. Both are the program's own folder, so that a shop is moved by copying one folder. An installed
/// program has its parts in `../share/seamwise` and cannot write there: its shop is the folder `seamwise`
/// among the user's data, unless a database stands beside the program itself.
void FindFolders(const QString& programFolder);

/// Makes the shop's folder where it is missing, for its owner alone. Throws OperatorError.
void MakeShopFolder();

/// Makes the folder `images` in the shop's folder. That it cannot be made is no fault here: the picture
/// commands say so.
void MakeImagesFolder();

/// True when the database is of the version that this program runs on. A file without the version setting is
/// not.
bool CheckDatabaseVersion();

/// The working date as the file has it. One that cannot be read counts as never set.
QDate StoredWorkingDate();

/// Fills `session.Language` and `session.WorkingDate` from the settings 0, 1 and 22.
void LoadSessionDefaults();
