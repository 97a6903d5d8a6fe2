#pragma once

#include <QString>

/// What a phone's camera is shown, so that it opens a message to a client, written and ready to be sent: as
/// an SMS ("SMSTO:"), or in the chat that opens links of wa.me, as the shop has chosen (settings::ByPhone).
/// The number as the client's record has it; for a chat one of ten digits gets India's 91. Lines of the text
/// end in a carriage return, a line feed or both. Throws ado::DatabaseError.
QString phoneMessage(const QString& number, const QString& text);
