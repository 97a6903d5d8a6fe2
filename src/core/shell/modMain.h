#pragma once

/// The program's start: makes the database on a first run, proves it, takes up the session, shows the main
/// screen (after the login, where one is set). Returns false when the program is to end instead; a
/// message has said why. The folders of the session stand before (FindFolders).
bool Main();

/// Begins to open the shop's file, so that screens can be made meanwhile. The folders of the session stand.
void openShopAhead();
