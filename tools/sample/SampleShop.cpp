#include "sample/SampleShop.h"

#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Startup.h"
#include "messaging/modSMS.h"
#include "platform/values/Dates.h"
#include "sample/Catalogue.h"
#include "sample/Pictures.h"
#include "sample/Write.h"

#include <QDir>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

constexpr int batch = 500; ///< cards or vouchers to a commit

/// The newest lines get pictures, a few on each card: those are the ones that are looked at.
void choosePictures(std::vector<Card>& cards, int count, Random& random)
{
    for (auto card = cards.rbegin(); card != cards.rend() && count > 0; ++card)
        for (Line& line : card->lines)
            if (count > 0 && random.chance(35)) {
                line.pictured = true;
                --count;
            }
}

void writeProfile(const Plan& plan)
{
    session.ShopName = u"Rangoli Tailors"_s;
    session.ShopAddress1 = u"14, Johari Bazaar"_s;
    session.ShopAddress2 = u"Near Sanganeri Gate"_s;
    session.ShopAddress3 = u"Jaipur 302003"_s;
    session.ShopContacts = u"0141-2570000, 98290 14523"_s;
    ado::Recordset& shop = DE.rsSHOP;
    shop.Open(u"Select * from Shop"_s);
    shop.AddNew();
    shop["Name"] = session.ShopName;
    shop["Address1"] = session.ShopAddress1;
    shop["Address2"] = session.ShopAddress2;
    shop["Address3"] = session.ShopAddress3;
    shop["Contacts"] = session.ShopContacts;
    shop.Update();
    shop.Close();

    const QString logo = session.appFolder + u"/logo.png"_s;
    drawLogo(logo);
    SetSetting(settings::WorkingDate, values::CStr(plan.lastDay));
    SetSetting(settings::Logo, logo);
    SetSetting(settings::TagLine, u"Ladies' and gents' tailoring since 1974"_s);
    SetSetting(settings::SmsTitle, u"Rangoli"_s); // ten characters at most
    SetSetting(settings::DeliveryMargin, u"7"_s);
    SetSetting(settings::FirstJobNumber, QString::number(plan.firstNumber));
    SetSetting(settings::SmsJobRegistered, DefaultJobRegisteredDraft());
    SetSetting(settings::SmsJobFinished, DefaultJobFinishedDraft());
    SetSetting(settings::SmsDueBalance, DefaultDueBalanceDraft());
}

} // namespace

Plan demo(const QDate& lastDay)
{
    Plan plan;
    plan.lastDay = lastDay;
    plan.days = 92;
    plan.clients = 280;
    plan.workers = plan.workersAtOnce = 12;
    plan.cards = 530;
    plan.lines = 1000;
    plan.lastMonthLines = 420;
    plan.lastDayLines = 26;
    plan.pictures = 60;
    plan.firstNumber = 1001;
    return plan;
}

Plan full(const QDate& lastDay)
{
    Plan plan;
    plan.lastDay = lastDay;
    plan.days = 6 * 365;
    plan.clients = 8000;
    plan.workers = 200;
    plan.workersAtOnce = 16;
    plan.cards = 16000;
    plan.lines = 32000;
    plan.lastMonthLines = 1500;
    plan.lastDayLines = 60;
    plan.postings = 82000;
    plan.pictures = 40;
    return plan;
}

void layShop(const Plan& plan, const QString& folder)
{
    session = Session();
    session.appFolder = QDir(folder).absolutePath();
    QDir().mkpath(session.appFolder);
    CreateDatabase();
    DE.open(session.databasePath());
    DE.ensureIndexes();
    MakeImagesFolder();

    Random random(plan.seed);
    const People people = invitePeople(plan, random);
    std::vector<Card> cards = takeOrders(plan, people, random);
    choosePictures(cards, plan.pictures, random);
    const std::vector<Voucher> vouchers = keepBooks(plan, people, cards, random);

    DE.connection().writeBatch([&] {
        writeProfile(plan);
        writeCatalogue();
        writeAccounts(people);
    });
    // The vouchers first: a payroll takes its number from the counter of the last voucher's rows, and the
    // operator must still be able to make one in the largest shop.
    const auto inBatches = [](size_t count, const auto& write) {
        for (size_t from = 0; from < count; from += batch)
            write(from, std::min(count, from + batch));
    };
    inBatches(vouchers.size(), [&](size_t from, size_t to) {
        writeVouchers(&vouchers[from], vouchers.data() + to, static_cast<int>(from) + 1);
    });
    inBatches(cards.size(), [&](size_t from, size_t to) { writeCards(&cards[from], cards.data() + to); });
    LoadSessionDefaults();
}

} // namespace sample
