#pragma once

/// The papers of the shop that have a printer and a sheet of their own: what Report::Kind counts. All others
/// go where lists go.
enum class PaperKind : int { List, Card, Slip, Label, Statement, Wages, Receipt };

/// Has the shop remember the printer and the sheet that each paper was last sent to, from now on.
void rememberPrinters();
