#include "sample/Catalogue.h"

#include "core/store/DE.h"

#include <QCryptographicHash>
#include <QStringList>
#include <cmath>

using namespace Qt::StringLiterals;

namespace sample {

namespace {

const QString lineBreak = u"\r\n"_s;

struct Measurement
{
    QString name;
    QString usual; ///< inches
    QString preset;
};

std::vector<Measurement> parse(const char* measurements)
{
    std::vector<Measurement> result;
    for (const QString& part : QString::fromLatin1(measurements).split(u'|')) {
        const qsizetype equals = part.indexOf(u'=');
        const qsizetype blank = part.lastIndexOf(u' ');
        if (equals >= 0)
            result.push_back({part.left(equals), {}, part.mid(equals + 1)});
        else
            result.push_back({part.left(blank), part.mid(blank + 1), {}});
    }
    return result;
}

/// A number from -1 to 1 that belongs to a text, mostly near 0: the same on every machine.
double swing(const QString& of)
{
    const QByteArray bytes = QCryptographicHash::hash(of.toUtf8(), QCryptographicHash::Md5);
    double sum = 0;
    for (int i = 0; i < 4; ++i)
        sum += static_cast<quint8>(bytes[i]) / 127.5 - 1;
    return sum / 4;
}

/// To the quarter of an inch, as the tape is read.
QString inches(double value) { return QString::number(std::round(value * 4) / 4); }

template <typename Text>
QString joined(const char* measurements, Text text)
{
    QStringList lines;
    for (const Measurement& measurement : parse(measurements))
        lines << text(measurement);
    return lines.join(lineBreak);
}

} // namespace

QString Garment::details() const
{
    return joined(measurements, [](const Measurement& measurement) {
        return measurement.preset.isEmpty() ? measurement.name
                                            : QString(measurement.name + u'=' + measurement.preset);
    });
}

QString Garment::names() const
{
    return joined(measurements, [](const Measurement& measurement) { return measurement.name; });
}

QString Garment::values(qint32 person, int size, int order) const
{
    return joined(measurements, [=](const Measurement& measurement) {
        if (!measurement.preset.isEmpty())
            return measurement.preset;
        const QString body = measurement.name + QString::number(person);
        const double build = 0.10 * swing(body);
        const double change = 0.02 * swing(body + u'/' + QString::number(order));
        return inches(measurement.usual.toDouble() * (size / 100.0) * (1 + build + change));
    });
}

const std::vector<Garment>& catalogue()
{
    using enum Wearer;
    using enum Craft;
    using enum Shape;
    static const std::vector<Garment> garments = {
        {"Shirt", Man, Light, Top, 26, 450, 140, 6, 14,
         "Length 29.5|Chest 42|Waist 40|Hip 41|Shoulder 18.5|Sleeve 24.5|Cuff 9.5|Collar 16|Front "
         "Pocket=One|Collar Style=Regular"},
        {"Trouser", Man, Light, Legs, 22, 550, 170, 6, 12,
         "Length 41|Waist 36|Hip 41|Thigh 25|Knee 18|Bottom 15.5|Rise 27|Pleats=None|Back Pocket=Two"},
        {"Suit (2 piece)", Man, Heavy, Coat, 5, 4800, 1500, 16, 2,
         "Coat Length 29|Chest 42|Waist 39|Hip 42|Shoulder 18.5|Cross Back 17|Sleeve 25|Trouser Length "
         "41|Trouser Waist 36|Bottom 15.5|Lapel=Notch|Vents=Two"},
        {"Suit (3 piece)", Man, Heavy, Coat, 3, 6200, 1950, 18, 1,
         "Coat Length 29|Chest 42|Waist 39|Hip 42|Shoulder 18.5|Sleeve 25|Waistcoat Length 25|Trouser Length "
         "41|Trouser Waist 36|Bottom 15.5|Lapel=Peak|Vents=Two"},
        {"Blazer", Man, Heavy, Coat, 4, 3600, 1150, 14, 2,
         "Length 29|Chest 42|Waist 39|Hip 42|Shoulder 18.5|Cross Back 17|Sleeve 25|Buttons=Two|Lining=Full"},
        {"Waistcoat", Man, Light, Top, 4, 1200, 380, 8, 4,
         "Length 25|Chest 42|Waist 40|Shoulder 15|Neck 15|Buttons=Five"},
        {"Sherwani", Man, Heavy, Coat, 3, 6500, 2200, 20, 1,
         "Length 43|Chest 42|Waist 40|Hip 43|Shoulder 18.5|Sleeve 25|Collar 16.5|Bottom Flare "
         "52|Buttons=Covered"},
        {"Bandhgala", Man, Heavy, Coat, 3, 4200, 1350, 16, 2,
         "Length 29.5|Chest 42|Waist 39|Hip 42|Shoulder 18.5|Sleeve 25|Collar 16.5|Pocket=Welt"},
        {"Nehru Jacket", Man, Light, Top, 5, 1600, 480, 8, 4,
         "Length 27|Chest 42|Waist 40|Shoulder 16|Collar 16.5|Buttons=Five"},
        {"Kurta", Man, Light, Top, 10, 600, 180, 6, 8,
         "Length 40|Chest 43|Hip 44|Shoulder 18.5|Sleeve 24|Collar 16|Side Slit=Yes|Placket=Plain"},
        {"Pyjama", Man, Light, Legs, 6, 350, 100, 5, 12,
         "Length 40|Waist 38|Hip 44|Bottom 14|Style=Aligarhi"},
        {"Churidar", Anyone, Light, Legs, 4, 380, 120, 5, 8,
         "Length 46|Waist 36|Hip 42|Thigh 24|Calf 14|Ankle 10.5"},
        {"School Uniform", Anyone, Light, Top, 5, 750, 240, 7, 6,
         "Shirt Length 24|Chest 32|Shoulder 14|Sleeve 19|Trouser Length 32|Waist 26|Tie=No"},
        {"Safari Suit", Man, Light, Top, 2, 1500, 460, 9, 3,
         "Shirt Length 28|Chest 42|Waist 40|Shoulder 18.5|Sleeve 10|Trouser Length 41|Trouser Waist "
         "36|Bottom "
         "16|Pockets=Four"},
        {"Blouse", Woman, Ladies, Top, 24, 400, 150, 6, 12,
         "Length 15|Bust 36|Under Bust 31|Waist 30|Shoulder 14|Sleeve 9|Armhole 16|Front Neck 7|Back Neck "
         "9|Hooks=Front|Lining=Yes"},
        {"Salwar Kameez", Woman, Ladies, Dress, 16, 900, 300, 7, 8,
         "Kameez Length 40|Bust 36|Waist 32|Hip 40|Shoulder 14|Sleeve 16|Front Neck 6.5|Salwar Length "
         "38|Bottom 14|Side Slit=Yes"},
        {"Lehenga", Woman, Ladies, Dress, 4, 3200, 1100, 18, 2,
         "Length 42|Waist 31|Hip 39|Flare 144|Can-can=Yes"},
        {"Anarkali", Woman, Ladies, Dress, 4, 1800, 620, 12, 3,
         "Length 52|Bust 36|Waist 31|Shoulder 14|Sleeve 18|Armhole 16|Flare 130|Lining=Yes"},
        {"Petticoat", Woman, Ladies, Dress, 7, 220, 70, 4, 14,
         "Length 38|Waist 32|Hip 40|Bottom 66|Style=Six piece"},
        {"Gown", Woman, Ladies, Dress, 3, 2600, 900, 14, 2,
         "Length 56|Bust 36|Waist 30|Hip 39|Shoulder 14|Sleeve 22|Front Neck 6|Back Neck 7|Zip=Back"},
    };
    return garments;
}

void writeCatalogue()
{
    ado::Recordset& items = DE.rsITEMS;
    items.Open(u"Select * from Items"_s);
    for (const Garment& garment : catalogue()) {
        items.AddNew();
        items["Name"] = QString::fromLatin1(garment.name);
        items["Fees"] = garment.fees;
        items["WorkerFees"] = garment.wage;
        items["ItemDetails"] = garment.details();
        items["ProdcutionCap"] = QString::number(garment.capacity);
        items["OpPendingOrders"] = u"0"_s;
    }
    items.UpdateBatch();
    items.Close();
}

} // namespace sample
