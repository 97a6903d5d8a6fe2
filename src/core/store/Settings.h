#pragma once

#include <QString>

/// An option of the shop: its number in the table `Settings`, and its value while it has no row there.
struct Setting
{
    qint32 number;
    QLatin1StringView standard;
};

/// The options, each kept as text. "Yes" and "No", and "1" and "0", are switches.
namespace settings {

using namespace Qt::StringLiterals;

inline constexpr Setting Language{0, "English"_L1};         ///< of the notices: "English" or "Hindi"
inline constexpr Setting WorkingDate{1, "1-April-2011"_L1}; ///< the shop's current day
inline constexpr Setting SmsWhenFinished{2, "No"_L1};       ///< offer it when the last line is completed
inline constexpr Setting SmsAfterRegistration{3, "No"_L1};  ///< offer it when a new card is saved
inline constexpr Setting ModemPort{4, ""_L1};               ///< COM port of the modem
inline constexpr Setting Logo{5, ""_L1};                    ///< picture file, on the client's paper
inline constexpr Setting TagLine{6, ""_L1};                 ///< below the shop's name on the client's paper
inline constexpr Setting LoginRequired{7, "0"_L1};          ///< switch
inline constexpr Setting UserName{8, ""_L1};                ///< of the one login
inline constexpr Setting Password{9, ""_L1};                ///< of the one login, in clear
inline constexpr Setting SmsTitle{10, ""_L1};               ///< the shop's name below its messages
inline constexpr Setting Wallpaper{11, ""_L1};              ///< picture file of the main screen
inline constexpr Setting HindiSlip{12, "No"_L1};      ///< the worker's slip in Hindi; only with Hindi notices
inline constexpr Setting DeliveryMargin{13, "0"_L1};  ///< days from order to delivery
inline constexpr Setting PrintAfterSave{14, "0"_L1};  ///< switch: a saved card prints at once
inline constexpr Setting PrintPreview{15, "1"_L1};    ///< switch: paper shows on the screen first
inline constexpr Setting DatabaseVersion{16, "0"_L1}; ///< the only setting that a new shop's file has
inline constexpr Setting WebcamDriver{17, "0"_L1};    ///< index of the camera
inline constexpr Setting BirthdayGreeting{18, ""_L1}; ///< text of the message
inline constexpr Setting BackupFolder{19, ""_L1};     ///< where the archive of the shop lies
inline constexpr Setting WorkerDetailsShown{20, "1"_L1}; ///< switch: a line's wages are in view
inline constexpr Setting TrialReminder{21, ""_L1};       ///< text of the message
inline constexpr Setting SystemDateAtStart{22, "0"_L1};  ///< switch: each start works on the system's date
inline constexpr Setting FirstJobNumber{23, "1"_L1};     ///< number of a new shop's first card
inline constexpr Setting SmsJobRegistered{24, ""_L1};    ///< draft; its readers name the factory text
inline constexpr Setting SmsJobFinished{25, ""_L1};      ///< draft; its readers name the factory text
inline constexpr Setting SmsDueBalance{26, ""_L1};       ///< draft; its readers name the factory text
inline constexpr Setting UndeliveredClientsOnly{28, "0"_L1}; ///< switch of the client search
inline constexpr Setting OldBooksTo{40, ""_L1};              ///< last day of the books before these; none yet
inline constexpr Setting ByPhone{41, "SMS"_L1};              ///< what the shop's phone opens: "SMS" or a chat
inline constexpr Setting PaymentAddress{42, ""_L1};          ///< a link by which clients pay from a phone
inline constexpr Setting TwoReceipts{43, "0"_L1};            ///< switch: a receipt twice, on A5
// The printer and the sheet that a paper was last sent to: "Office A4".
inline constexpr Setting ListPrinter{44, ""_L1};
inline constexpr Setting CardPrinter{45, ""_L1};
inline constexpr Setting SlipPrinter{46, ""_L1};
inline constexpr Setting LabelPrinter{47, ""_L1};
inline constexpr Setting StatementPrinter{48, ""_L1};
inline constexpr Setting WagesPrinter{49, ""_L1};
inline constexpr Setting ReceiptPrinter{50, ""_L1};
inline constexpr Setting TextSize{51, "100"_L1};     ///< of the screens, in per cent
inline constexpr Setting ScreenLook{52, "Light"_L1}; ///< of the screens: "Light" or "Dark"
inline constexpr Setting LastBackup{29, ""_L1};      ///< the day of it, by the system's date

} // namespace settings

/// The value of settings::ByPhone for links of wa.me.
inline constexpr auto byPhoneAsChat = QLatin1StringView("Chat (wa.me)");

/// The value of settings::ScreenLook for light letters on dark ground.
inline constexpr auto darkLook = QLatin1StringView("Dark");
/// The values of settings::TextSize.
inline constexpr int textSizes[] = {90, 100, 110, 125, 150, 160};

/// Of the screens, in per cent: one of `textSizes`, 100 for anything else that is stored.
int GetTextSize();
bool IsDarkLook();

/// Whether a switch is on: "Yes" or "1".
bool IsOn(const Setting& setting);
/// The number at the beginning of an option's text; 0 for a text without one.
double GetNumber(const Setting& setting);

/// The value of an option, or its standard when it was never written; `otherwise` for an option whose
/// standard only its reader can make. These use the shared recordset `DE.rsSettings` and throw
/// ado::DatabaseError.
QString GetSetting(const Setting& setting);
QString GetSetting(const Setting& setting, const QString& otherwise);
QString GetSetting(qint32 number, const QString& otherwise);
void SetSetting(const Setting& setting, const QString& value);
/// Sets what the program remembers by itself; a shop that is only looked at remembers nothing.
void RememberSetting(const Setting& setting, const QString& value);
void SetSetting(qint32 number, const QString& value);
