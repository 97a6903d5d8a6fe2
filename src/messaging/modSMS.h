#pragma once

#include <QString>

/// The wording of the shop's text messages. Lines of a message end with a carriage return alone. Everything
/// here throws ado::DatabaseError when the file
/// refuses.

/// The drafts that a shop begins with. "%eid%" stands for the card's number, "%amount%" for money.
QString DefaultJobRegisteredDraft();
QString DefaultJobFinishedDraft();
QString DefaultDueBalanceDraft();

/// The messages in the shop's own drafts (settings 24 to 26), with the shop's signature (setting 10) on its
/// own line. The amount stands without fixed decimals: 301, 0.5.
QString MakeJobRegisteredSms(qint32 jobId, double amount);
QString MakeJobFinishedSms(qint32 jobId, double amount);
/// The balance stands as given; the signature is the caller's to add.
QString MakeDueBalanceSms(const QString& amount);

/// The text that arrives: the modem carries the letters of Latin-1 alone, every other one (a rupee sign,
/// Hindi) becomes "?".
QString TextAsSent(const QString& text);

/// Runs a program and returns when it has ended, or could not be started; the screens live on meanwhile.
void RunAndWait(const QString& commandLine);
