#pragma once

#include <QDate>

/// The steps of the start that need no screen.

/// Makes the folder `images` beside the executable. That it cannot be made is no fault here: the picture
/// commands say so.
void MakeImagesFolder();

/// True when the database is of the version that this program runs on. A file without the version setting is
/// not.
bool CheckDatabaseVersion();

/// The working date as the file has it. One that cannot be read counts as never set.
QDate StoredWorkingDate();

/// Fills `session.Language` and `session.WorkingDate` from the settings 0, 1 and 22.
void LoadSessionDefaults();
